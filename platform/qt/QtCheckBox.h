#pragma once

#include <QCheckBox>

#include "platform/qt/QtField.h"

class QStyleOptionButton;

namespace kel::qt {

/// A check box in the style's look. All of it takes clicks. It stands on the ground of its window, whatever its back
/// colour.
class QtCheckBox final : public QCheckBox, public QtField<CheckBox> {
public:
    QtCheckBox(ControlSite& site, CheckBoxListener& listener, QWidget& parent);

    const std::u16string& caption() const override { return Caption_; }
    void setCaption(std::u16string_view caption) override;

    std::int32_t value() const override;
    void setValue(std::int32_t value) override;

    void setEnabled(bool enabled) override;
    void setVisible(bool visible) override;

    void gotFocus() override {}
    void lostFocus() override {}
    bool isTall() const override { return false; }
    int baseline() const override;
    int widthFor(int characters) const override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    bool hitButton(const QPoint& point) const override { return rect().contains(point); }
    void nextCheckState() override;

private:
    void showColors() override { update(); }
    bool looksEnabled() const;
    QStyleOptionButton look() const;

    CheckBoxListener& Listener_;
    std::u16string Caption_;
    int HeldKey_ = 0;  ///< Qt's code of the key that presses the box down
};

}  // namespace kel::qt
