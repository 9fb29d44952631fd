#pragma once

#include <QCheckBox>

#include "host/widgets/CheckBox.h"
#include "platform/qt/widgets/FieldView.h"

class QStyleOptionButton;

namespace kel::qt {

/// A check box in the style's look. All of it takes clicks. It stands on the ground of its window, whatever its back
/// colour.
class QtCheckBox final : public QCheckBox, public View, public FieldView {
public:
    QtCheckBox(ControlSite& site, CheckBox& box, QWidget& parent);

    void outOfDate() override;
    void paintAgain() override { update(); }

    void colorAgain() override { update(); }
    bool isTall() const override { return false; }
    int baseline() const override;
    void prepareSpeech() override;
    int widthFor(int characters) const override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    bool hitButton(const QPoint& point) const override { return rect().contains(point); }
    void nextCheckState() override;

private:
    QRect place() const override;
    void stateChangedInWidget();
    bool looksEnabled() const;
    QStyleOptionButton look() const;

    CheckBox& Box_;
    int HeldKey_ = 0;  ///< Qt's code of the key that presses the box down
};

}  // namespace kel::qt
