#include "platform/qt/QtComboBox.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionComboBox>

#include "platform/qt/ComboFrame.h"
#include "platform/qt/EdgeGuard.h"
#include "platform/qt/FocusTracker.h"

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

QtComboBox::QtComboBox(ControlSite& site, ComboBoxListener& listener, QWidget& parent)
    : QtLine(parent, site, listener), Button_(new ButtonArea(*this)) {
    setFrame(false);
    placeParts();
}

QtComboBox::~QtComboBox() = default;

void QtComboBox::installFrame(const std::int16_t& buttonWidthPixels) {
    FrameButtonWidth_ = &buttonWidthPixels;
    placeParts();
    update();
}

// ---- List

void QtComboBox::pressButton() {
    // Getting the focus may have moved it on, or barred the box.
    if (focus::isHeldBy(*this)) Editor_.pressButton();
}

void QtComboBox::listChanged() {
    if (!isDropped()) {
        closeList();
        return;
    }
    if (!List_) {
        List_ = std::make_unique<ComboList>(*this, Editor_, MostRows);
        List_->setButton(Button_->geometry());
        update();
    }
    List_->drop(droppedWidth());
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
    option.editable = true;
    option.frame = true;
    option.subControls = QStyle::SC_All;
    if (Button_->underMouse() && isEnabled()) option.activeSubControls = QStyle::SC_ComboBoxArrow;
    option.state.setFlag(QStyle::State_MouseOver, option.activeSubControls != QStyle::SC_None);
    option.state.setFlag(QStyle::State_On, List_ != nullptr);
    return option;
}

QRect QtComboBox::buttonRect(const QStyleOptionComboBox& option) const {
    if (FrameButtonWidth_ != nullptr && *FrameButtonWidth_ > 0)
        return comboButtonStrip(rect(), *FrameButtonWidth_, isRightToLeft());
    return style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this);
}

void QtComboBox::placeParts() {
    const QRect button = buttonRect(styleOption());
    Button_->setGeometry(button);
    const int left = isRightToLeft() ? button.right() + 1 : ComboEdge;
    const int right = isRightToLeft() ? ComboEdge : width() - button.left();
    const QMargins margins(left, 0, right, 0);
    if (margins != textMargins()) setTextMargins(margins);
}

// ---- Events

void QtComboBox::resizeEvent(QResizeEvent* event) {
    QLineEdit::resizeEvent(event);
    placeParts();
}

void QtComboBox::changeEvent(QEvent* event) {
    QtLine::changeEvent(event);
    switch (event->type()) {
        case QEvent::EnabledChange:
            if (!isEnabled()) showDropDown(false);
            break;
        case QEvent::StyleChange:
        case QEvent::LayoutDirectionChange: placeParts(); break;
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
    QLineEdit::hideEvent(event);
    showDropDown(false);
}

// ---- Painting

void QtComboBox::paintEvent(QPaintEvent* event) {
    placeParts();
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    const QStyleOptionComboBox option = styleOption();
    if (FrameButtonWidth_ == nullptr)
        paintAroundText(painter, option);
    else
        paintFramed(painter, option);
}

void QtComboBox::paintAroundText(QPainter& painter, const QStyleOptionComboBox& option) const {
    const QRect text = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    painter.setClipRegion(QRegion(rect()).subtracted(text));
    style()->drawComplexControl(QStyle::CC_ComboBox, &option, &painter, this);
}

/// The frame hides the style's own but for the row that it leaves free, where half of another one would show.
void QtComboBox::paintFramed(QPainter& painter, const QStyleOptionComboBox& option) const {
    const QRect strip = comboButtonStrip(rect(), *FrameButtonWidth_, isRightToLeft());
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
