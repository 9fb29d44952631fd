#include "platform/qt/widgets/QtComboBox.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>

#include "platform/qt/base/EdgeGuard.h"
#include "platform/qt/control/QtFocus.h"
#include "platform/qt/widgets/ComboFrame.h"

namespace kel::qt {

namespace {

/// The place of the button, which the box draws.
class ButtonArea final : public QWidget {
public:
    explicit ButtonArea(QtComboBox& box) : QWidget(&box), Box_(box) {
        setFocusPolicy(Qt::NoFocus);
        setCursor(Qt::ArrowCursor);
        setAttribute(Qt::WA_Hover);
    }

protected:
    bool event(QEvent* event) override {
        return atEdge([&] { return QWidget::event(event); });
    }
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton) Box_.pressButton();
    }

private:
    QtComboBox& Box_;
};

}  // namespace

QtComboBox::QtComboBox(ControlSite& site, ComboBox& box, QWidget& parent)
    : QtLine(site, box, parent), Combo_(box), Button_(new ButtonArea(*this)) {
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

void QtComboBox::pressButton() {
    // Getting the focus may have moved it on, or barred the box.
    if (focus::isHeldBy(*this)) Combo_.pressButton();
}

void QtComboBox::showList() {
    if (!Combo_.isDropped()) {
        closeList();
        return;
    }
    if (!List_) {
        List_ = std::make_unique<ComboList>(*this, Combo_);
        List_->setButton(Button_->geometry());
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
    if (Button_->underMouse() && isEnabled()) option.activeSubControls = QStyle::SC_ComboBoxArrow;
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
    if (Button_->geometry() == buttonRect()) return;
    Button_->setGeometry(buttonRect());
    placeTextAgain();
}

// ---- Events

void QtComboBox::resizeEvent(QResizeEvent* event) {
    QtLine::resizeEvent(event);
    placeButton();
}

void QtComboBox::changeEvent(QEvent* event) {
    QtLine::changeEvent(event);
    switch (event->type()) {
        case QEvent::EnabledChange:
            if (!isEnabled()) Combo_.showDropDown(false);
            break;
        case QEvent::StyleChange:
        case QEvent::LayoutDirectionChange: placeButton(); break;
        default: break;
    }
}

// The list takes keys away from the window and passes them on: to the box that is as good as having the focus, caret
// and all.

void QtComboBox::focusInEvent(QFocusEvent* event) {
    if (event->reason() != Qt::PopupFocusReason || !List_) QtLine::focusInEvent(event);
}

void QtComboBox::focusOutEvent(QFocusEvent* event) {
    if (event->reason() != Qt::PopupFocusReason || !List_) QtLine::focusOutEvent(event);
}

void QtComboBox::hideEvent(QHideEvent* event) {
    QtLine::hideEvent(event);
    Combo_.showDropDown(false);
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
