#pragma once

#include <memory>

#include "platform/qt/widgets/ComboList.h"
#include "platform/qt/widgets/QtLine.h"

class QStyleOptionComboBox;

namespace kel::qt {

/// A combo box: a line of text with a button at its end, drawn by the style as a combo box, and a list that exists as
/// long as it is open.
class QtComboBox final : public QtLine {
public:
    QtComboBox(ControlSite& site, ComboBox& box, QWidget& parent);
    ~QtComboBox() override;

    /// What shows the list; nullptr while it is closed.
    ComboList* list() const { return List_.get(); }
    /// What takes the presses on the button.
    QWidget& button() const { return *Button_; }
    void pressButton();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void showMore(Changes changes) override;
    void paintGround(QPainter& painter) const override;
    QRect findTextArea() const override;
    bool lendsKeys() const override { return List_ != nullptr; }
    void showList();
    void closeList();

    QStyleOptionComboBox styleOption() const;
    QRect buttonRect() const;
    void placeButton();
    void paintAroundText(QPainter& painter, const QStyleOptionComboBox& option) const;
    void paintFramed(QPainter& painter, const QStyleOptionComboBox& option) const;

    ComboBox& Combo_;
    std::unique_ptr<ComboList> List_;
    QWidget* Button_;  ///< Qt owns it
};

}  // namespace kel::qt
