#include "platform/qt/records/CommandIcons.h"

#include <QPainter>
#include <QStyle>
#include <QWidget>

namespace kel::qt {

namespace {

using records::Command;

constexpr int ArrowPixels = 64;  ///< of the picture; smaller ones are made of it

/// Arrows in the colour of the window's texts: those of the styles are black, on a dark ground too.
QIcon arrowsOf(const QPalette& palette, Command command, bool isMirrored) {
    const bool isForward = command == Command::Next || command == Command::Last;
    const bool isToEnd = command == Command::First || command == Command::Last;
    QPixmap pixmap(QSize(ArrowPixels, ArrowPixels));
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.color(QPalette::ButtonText));
    painter.scale(ArrowPixels / 16.0, ArrowPixels / 16.0);
    if (isForward == isMirrored) {
        painter.translate(16, 0);
        painter.scale(-1, 1);
    }
    painter.drawPolygon(QPolygonF({{4, 3}, {11, 8}, {4, 13}}));
    if (isToEnd) painter.drawRect(QRectF(11, 3, 2, 10));
    return pixmap;
}

/// The desktop's own picture, or where it has none one of the style.
QIcon desktopIcon(const QStyle& style, Command command) {
    struct Row {
        Command command;
        const char* name;
        QStyle::StandardPixmap otherwise;
    };
    static constexpr Row Rows[] = {
        {Command::New, "document-new", QStyle::SP_FileIcon},
        {Command::Save, "document-save", QStyle::SP_DialogSaveButton},
        {Command::SaveAndNew, "document-save-as", QStyle::SP_DialogApplyButton},
        {Command::Undo, "edit-undo", QStyle::SP_ArrowBack},
        {Command::Find, "edit-find", QStyle::SP_FileDialogContentsView},
    };
    for (const Row& row : Rows)
        if (row.command == command) return QIcon::fromTheme(QLatin1String(row.name), style.standardIcon(row.otherwise));
    return {};
}

}  // namespace

QIcon iconOf(const QWidget& window, Command command) {
    const bool isArrow = command >= Command::First && command <= Command::Last;
    return isArrow ? arrowsOf(window.palette(), command, window.isRightToLeft())
                   : desktopIcon(*window.style(), command);
}

}  // namespace kel::qt
