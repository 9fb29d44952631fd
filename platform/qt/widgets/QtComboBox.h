#pragma once

#include <memory>

#include "host/widgets/ComboBox.h"
#include "platform/qt/widgets/QtLine.h"

class QStyleOptionComboBox;

namespace kel::qt {

class ComboList;

/// A combo box: a line of text with a button at its end, drawn by the style as a combo box, and a list that exists as
/// long as it is open.
class QtComboBox final : public QtLine {
public:
    QtComboBox(ControlSite& site, ComboBox& box, QWidget& parent);
    ~QtComboBox() override;

    /// What shows the list; nullptr while it is closed.
    ComboList* list() const { return List_.get(); }
    /// Where the button is.
    const QRect& button() const { return Button_; }

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void showMore(Changes changes) override;
    void paintGround(QPainter& painter) const override;
    QRect findTextArea() const override;
    bool lendsKeys() const override { return List_ != nullptr; }
    void showList();
    void closeList();
    void tellExpanded();

    QStyleOptionComboBox styleOption() const;
    QRect buttonRect() const;
    void placeButton();
    void hover(bool onButton);

    ComboBox& Combo_;
    std::unique_ptr<ComboList> List_;
    QRect Button_;
    bool ButtonPressed_ = false;  ///< the mouse button in hand went down there
    bool Hovered_ = false;        ///< the pointer is over it
};

}  // namespace kel::qt
