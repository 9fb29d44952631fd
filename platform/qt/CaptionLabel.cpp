#include "platform/qt/CaptionLabel.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include "common/FieldLayout.h"
#include "platform/qt/ControlSite.h"
#include "platform/qt/FieldColors.h"
#include "platform/qt/TextBridge.h"
#include "platform/qt/WidgetLook.h"

namespace kel::qt {

CaptionLabel::CaptionLabel(ControlSite& site) : Site_(site) { Site_.setLabel(this); }

CaptionLabel::~CaptionLabel() { Site_.setLabel(nullptr); }

void CaptionLabel::move(const Rect& bounds) {
    if (bounds == Bounds_) return;
    const bool widthChanges = bounds.width != Bounds_.width;
    Bounds_ = bounds;
    if (widthChanges) Site_.widget().updateGeometry();
    refresh();
}

void CaptionLabel::setEnabled(bool enabled) {
    if (enabled == Enabled_) return;
    Enabled_ = enabled;
    refresh();
}

void CaptionLabel::setForeColor(Color color) {
    if (color == ForeColor_) return;
    ForeColor_ = color;
    refresh();
}

QFont CaptionLabel::font() const { return Font_ ? *Font_ : Site_.widget().font(); }

void CaptionLabel::setFont(std::u16string_view name, double size) {
    Font_ = fontLike(font(), name, size);
    refresh();
}

void CaptionLabel::setFontBold(bool bold) {
    QFont changed = font();
    changed.setBold(bold);
    Font_ = changed;
    refresh();
}

void CaptionLabel::refresh() { Site_.widget().update(); }

void CaptionLabel::setCaption(std::u16string_view caption) {
    const QString spokenBefore = spokenCaption();
    Caption_.assign(caption);
    Site_.captionChanged(spokenBefore);
    refresh();
}

QString CaptionLabel::spokenCaption() const {
    if (Caption_.find(u'&') == std::u16string::npos) return toQString(Caption_);
    QString spoken;
    bool marks = false;
    for (const char16_t unit : Caption_) {
        marks = !marks && unit == u'&';
        if (!marks) spoken += QChar(unit);
    }
    return spoken;
}

void CaptionLabel::paint(QPainter& painter, int baseline) const {
    if (Caption_.empty() || Bounds_.width <= 0) return;
    const QWidget& widget = Site_.widget();
    const QStyle& style = *widget.style();
    QStyleOption option;
    option.initFrom(&widget);
    const bool enabled = Enabled_ && widget.isEnabled();
    const bool severalLines = Bounds_.height > CaptionHeight;

    QRect area = Site_.pixelRect(Bounds_);
    area.setTop(0);
    area.setBottom(widget.height() - 1);
    painter.setClipRect(area);
    painter.setFont(font());
    painter.setPen(enabled ? captionColorOn(option.palette, ForeColor_) : disabledCaptionColor(option.palette));

    const bool underlines = style.styleHint(QStyle::SH_UnderlineShortcut, &option, &widget) != 0;
    const Qt::Alignment alignment = QStyle::visualAlignment(widget.layoutDirection(), Qt::AlignLeft) | Qt::AlignTop;
    int flags = static_cast<int>(alignment.toInt());
    flags |= underlines ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    flags |= severalLines ? Qt::TextWordWrap : Qt::TextSingleLine;
    area.setTop(baseline - painter.fontMetrics().ascent());
    style.drawItemText(&painter, area, flags, option.palette, enabled, toQString(Caption_));
}

}  // namespace kel::qt
