#include "platform/qt/widgets/CaptionLabel.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <utility>

#include "platform/qt/base/FieldColors.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/base/WidgetSettings.h"
#include "platform/qt/control/ControlSite.h"

namespace kel::qt {

CaptionLabel::CaptionLabel(ControlSite& site, Label& label) : Site_(site), Label_(label) { Site_.setLabel(this); }

CaptionLabel::~CaptionLabel() { Site_.setLabel(nullptr); }

void CaptionLabel::outOfDate() {
    const Changes changes = Label_.takeChanges();
    const std::int32_t width = Label_.bounds().width;
    if (std::exchange(Width_, width) != width) Site_.widget().updateGeometry();
    if (changes.has(Change::Caption))
        Site_.captionChanged(std::exchange(Spoken_, toQString(readCaption(Label_.caption()).text)));
    if (changes.has(Changes(Change::Caption) | Change::Font)) Site_.fitCaption();
    paintAgain();
}

void CaptionLabel::paintAgain() { Site_.widget().update(); }

QFont CaptionLabel::font() const { return fontOf(Site_.widget().font(), Label_.font()); }

int CaptionLabel::neededWidth() const {
    if (Label_.caption().empty()) return 0;
    const QFontMetrics metrics(font());
    const int text = metrics.size(int{Qt::TextSingleLine} | Qt::TextShowMnemonic, toQString(Label_.caption())).width();
    return text + metrics.horizontalAdvance(u'x');
}

QRect CaptionLabel::area() const {
    QRect area = Site_.pixelRect(Label_.bounds());
    area.setTop(0);
    area.setBottom(Site_.widget().height() - 1);
    return area;
}

void CaptionLabel::paint(QPainter& painter, int baseline) const {
    if (!Label_.isSeen()) return;
    const QWidget& widget = Site_.widget();
    const QStyle& style = *widget.style();
    QStyleOption option;
    option.initFrom(&widget);
    const bool enabled = Label_.enabled() && widget.isEnabled();

    QRect area = this->area();
    painter.setClipRect(area);
    painter.setFont(font());
    painter.setPen(enabled ? captionColorOn(option.palette, Label_.foreColor()) : disabledCaptionColor(option.palette));

    const bool underlines = style.styleHint(QStyle::SH_UnderlineShortcut, &option, &widget) != 0;
    const Qt::Alignment alignment = QStyle::visualAlignment(widget.layoutDirection(), Qt::AlignLeft) | Qt::AlignTop;
    int flags = static_cast<int>(alignment.toInt());
    flags |= underlines ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    flags |= Label_.wraps() ? Qt::TextWordWrap : Qt::TextSingleLine;
    area.setTop(baseline - painter.fontMetrics().ascent());
    style.drawItemText(&painter, area, flags, option.palette, enabled, toQString(Label_.caption()));
}

}  // namespace kel::qt
