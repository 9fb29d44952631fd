#include "platform/qt/widgets/QtComboBox.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <utility>

#include "platform/qt/widgets/ComboList.h"

namespace kel::qt {

namespace {

constexpr int LeastEdge = 2;  ///< beside the text, where the style has none

}  // namespace

QtComboBox::QtComboBox(ControlSite& site, ComboBox& box, QWidget& parent) : QtLine(site, box, parent), Combo_(box) {
    setMouseTracking(true);
    placeButton();
}

QtComboBox::~QtComboBox() = default;

void QtComboBox::showMore(Changes changes) {
    if (changes.has(Change::List)) showList();
}

// ---- List

void QtComboBox::showList() {
    if (!Combo_.isDropped()) {
        closeList();
        return;
    }
    const bool opens = !List_;
    if (opens) {
        List_ = std::make_unique<ComboList>(*this, Combo_);
        update();
    }
    List_->drop();
    if (opens) tellExpanded();
}

void QtComboBox::tellExpanded() {
    if (!QAccessible::isActive()) return;
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
    // A reader has followed the highlight into the list.
    if (List_ || !hasFocus()) return;
    QAccessibleEvent back(this, QAccessible::Focus);
    QAccessible::updateAccessibility(&back);
}

/// It may be the list that is saying so.
void QtComboBox::closeList() {
    if (!List_) return;
    ComboList* const list = List_.release();
    list->hide();
    list->deleteLater();
    update();
    tellExpanded();
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
    const QStyleOptionComboBox option = styleOption();
    return style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this);
}

QRect QtComboBox::findTextArea() const {
    const QRect button = buttonRect();
    const int left = isRightToLeft() ? button.right() + 1 : LeastEdge;
    const int right = isRightToLeft() ? width() - LeastEdge : button.left();
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
    if (event->button() == Qt::LeftButton) Combo_.pressButton();
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

/// The edge and the button are the style's own, as those of the text fields beside it are; the frame of the classic
/// look stays with the classic desktops.
void QtComboBox::paintGround(QPainter& painter) const {
    const QStyleOptionComboBox option = styleOption();
    style()->drawComplexControl(QStyle::CC_ComboBox, &option, &painter, this);
    QStyleOptionFrame inside = panel(0);
    inside.rect = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &inside, &painter, this);
}

}  // namespace kel::qt
