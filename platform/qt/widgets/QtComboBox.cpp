#include "platform/qt/widgets/QtComboBox.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <utility>

#include "platform/qt/control/QtFocus.h"
#include "platform/qt/widgets/ComboList.h"

namespace kel::qt {

namespace {

/// As thick as each edge is that the frame draws over the style's own picture of the box.
constexpr int ComboEdge = 2;

/// What the sunken edge goes around.
QRect framed(const QRect& box) { return box.adjusted(0, 0, 0, -1); }

/// The light falls from the top left, also where the box is mirrored.
void paintLines(QPainter& painter, const QRect& rect, const QColor& topLeft, const QColor& bottomRight) {
    painter.fillRect(QRect(rect.left(), rect.top(), rect.width() - 1, 1), topLeft);
    painter.fillRect(QRect(rect.left(), rect.top(), 1, rect.height() - 1), topLeft);
    painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), bottomRight);
    painter.fillRect(QRect(rect.right(), rect.top(), 1, rect.height()), bottomRight);
}

/// The strip of the button, `width` pixels of it, inside the sunken edge of a box; at its right end, `mirrored` at the
/// left one.
QRect comboButtonStrip(const QRect& box, int width, bool mirrored) {
    const QRect inner = framed(box).adjusted(ComboEdge, ComboEdge, -ComboEdge, -ComboEdge);
    const int left = mirrored ? inner.left() : inner.right() - width + 1;
    return {left, inner.top(), width, inner.height()};
}

/// A sunken edge around all of the box but its lowest row of pixels, and a raised one around the strip; an empty strip
/// has none.
void paintComboFrame(QPainter& painter, const QRect& box, const QRect& strip, const QPalette& palette) {
    const QRect outer = framed(box);
    paintLines(painter, outer, palette.color(QPalette::Dark), palette.color(QPalette::Light));
    paintLines(painter, outer.adjusted(1, 1, -1, -1), palette.color(QPalette::Shadow),
               palette.color(QPalette::Midlight));
    if (strip.isEmpty()) return;
    paintLines(painter, strip, palette.color(QPalette::Midlight), palette.color(QPalette::Shadow));
    paintLines(painter, strip.adjusted(1, 1, -1, -1), palette.color(QPalette::Light), palette.color(QPalette::Dark));
}

}  // namespace

QtComboBox::QtComboBox(ControlSite& site, ComboBox& box, QWidget& parent) : QtLine(site, box, parent), Combo_(box) {
    setMouseTracking(true);
    placeButton();
}

QtComboBox::~QtComboBox() = default;

void QtComboBox::showMore(Changes changes) {
    if (changes.has(Change::List)) showList();
    if (!changes.has(Change::Frame)) return;
    placeButton();
    placeTextAgain();
}

// ---- List

void QtComboBox::showList() {
    if (!Combo_.isDropped()) {
        closeList();
        return;
    }
    if (!List_) {
        List_ = std::make_unique<ComboList>(*this, Combo_);
        update();
    }
    List_->drop();
}

/// It may be the list that is saying so.
void QtComboBox::closeList() {
    if (!List_) return;
    ComboList* const list = List_.release();
    list->hide();
    list->deleteLater();
    update();
}

// ---- Parts

QStyleOptionComboBox QtComboBox::styleOption() const {
    QStyleOptionComboBox option;
    option.initFrom(this);
    option.palette = look();
    option.palette.setCurrentColorGroup(palette().currentColorGroup());
    option.editable = true;
    option.frame = true;
    option.subControls = QStyle::SC_All;
    if (Hovered_ && isEnabled()) option.activeSubControls = QStyle::SC_ComboBoxArrow;
    option.state.setFlag(QStyle::State_MouseOver, option.activeSubControls != QStyle::SC_None);
    option.state.setFlag(QStyle::State_On, List_ != nullptr);
    return option;
}

QRect QtComboBox::buttonRect() const {
    const std::int16_t* const width = Combo_.frameButtonWidth();
    if (width != nullptr && *width > 0) return comboButtonStrip(rect(), *width, isRightToLeft());
    const QStyleOptionComboBox option = styleOption();
    return style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this);
}

QRect QtComboBox::findTextArea() const {
    const QRect button = buttonRect();
    const int left = isRightToLeft() ? button.right() + 1 : ComboEdge;
    const int right = isRightToLeft() ? width() - ComboEdge : button.left();
    return {left, 0, right - left, height()};
}

void QtComboBox::placeButton() {
    const QRect place = buttonRect();
    if (std::exchange(Button_, place) != place) placeTextAgain();
}

// ---- Events

void QtComboBox::resizeEvent(QResizeEvent* event) {
    QtLine::resizeEvent(event);
    placeButton();
}

void QtComboBox::changeEvent(QEvent* event) {
    QtLine::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::LayoutDirectionChange) placeButton();
}

bool QtComboBox::event(QEvent* event) {
    // The list takes keys away from the window and passes them on: to the box that is as good as having the focus,
    // caret and all.
    const bool movesFocus = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
    if (List_ && movesFocus && static_cast<QFocusEvent*>(event)->reason() == Qt::PopupFocusReason) return true;
    const bool taken = QtLine::event(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled()) Combo_.showDropDown(false);
    return taken;
}

void QtComboBox::hideEvent(QHideEvent* event) {
    QtLine::hideEvent(event);
    Combo_.showDropDown(false);
}

// ---- The button

void QtComboBox::mousePressEvent(QMouseEvent* event) {
    ButtonPressed_ = Button_.contains(event->position().toPoint());
    if (!ButtonPressed_) return QtLine::mousePressEvent(event);
    // Getting the focus may have moved it on, or barred the box.
    if (event->button() == Qt::LeftButton && focus::isHeldBy(*this)) Combo_.pressButton();
}

void QtComboBox::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton) hover(Button_.contains(event->position().toPoint()));
    if (!ButtonPressed_) QtLine::mouseMoveEvent(event);
}

void QtComboBox::mouseReleaseEvent(QMouseEvent* event) {
    if (!std::exchange(ButtonPressed_, false)) QtLine::mouseReleaseEvent(event);
}

void QtComboBox::leaveEvent(QEvent* /*event*/) { hover(false); }

void QtComboBox::hover(bool onButton) {
    if (std::exchange(Hovered_, onButton) == onButton) return;
    setCursor(onButton ? Qt::ArrowCursor : Qt::IBeamCursor);
    update();
}

// ---- Painting

/// The button's width may be another one by now.
void QtComboBox::paintEvent(QPaintEvent* event) {
    placeButton();
    QtLine::paintEvent(event);
}

void QtComboBox::paintGround(QPainter& painter) const {
    const QStyleOptionFrame frameless = panel(0);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &frameless, &painter, this);
    const QStyleOptionComboBox option = styleOption();
    painter.save();
    if (Combo_.frameButtonWidth() == nullptr)
        paintAroundText(painter, option);
    else
        paintFramed(painter, option);
    painter.restore();
}

void QtComboBox::paintAroundText(QPainter& painter, const QStyleOptionComboBox& option) const {
    const QRect text = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    painter.setClipRegion(QRegion(rect()).subtracted(text));
    style()->drawComplexControl(QStyle::CC_ComboBox, &option, &painter, this);
}

/// The frame hides the style's own but for the row that it leaves free, where half of another one would show.
void QtComboBox::paintFramed(QPainter& painter, const QStyleOptionComboBox& option) const {
    const QRect strip = comboButtonStrip(rect(), *Combo_.frameButtonWidth(), isRightToLeft());
    const QRect arrow = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this);
    const QRect button = strip.isEmpty() ? arrow : strip;
    painter.save();
    painter.setClipRect(button);
    painter.translate(button.center() - arrow.center());
    style()->drawComplexControl(QStyle::CC_ComboBox, &option, &painter, this);
    painter.restore();
    painter.fillRect(0, height() - 1, width(), 1, option.palette.window());
    paintComboFrame(painter, rect(), strip, option.palette);
}

}  // namespace kel::qt
