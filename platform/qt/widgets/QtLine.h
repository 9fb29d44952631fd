#pragma once

#include <QBasicTimer>
#include <QPointer>
#include <QWidget>

#include "host/widgets/TextEntry.h"
#include "platform/qt/widgets/FieldView.h"
#include "platform/qt/widgets/LineLayout.h"
#include "platform/qt/widgets/TextInput.h"

class QStyleOptionFrame;

namespace kel::qt {

/// A line of text that can be edited, in the style's look of a line edit. What stands in it is the widget's; here it is
/// only laid out and painted, and whatever a person does goes to the widget.
class QtLine : public QWidget, public TextView, public TextInput {
public:
    QtLine(ControlSite& site, TextEntry& box, QWidget& parent);
    ~QtLine() override;

    void outOfDate() override;
    void paintAgain() override { update(); }
    bool isMirrored() const override { return layout().isRightToLeft(); }

    void colorAgain() override { recolor(); }
    bool isTall() const override { return false; }
    int baseline() const override;
    int widthFor(int characters) const override;

    QAccessibleInterface* makeAccessible() override;
    /// The colours it has now.
    const QPalette& look() const { return Look_; }
    /// Where the caret stands before `position`.
    QRect caretRect(std::size_t position) const;
    std::size_t positionAt(const QPoint& point) const;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override { keyPressed(*event); }
    void inputMethodEvent(QInputMethodEvent* event) override { composed(*event); }
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override { event->setAccepted(wheelTurned(*event)); }
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override { dragMoveEvent(event); }
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    /// All but the text.
    virtual void paintGround(QPainter& painter) const;
    /// Where the text may be, as the style has it. It is asked again when that may differ.
    virtual QRect findTextArea() const;
    void placeTextAgain();
    virtual void showMore(Changes /*changes*/) {}
    QStyleOptionFrame panel(int frameWidth) const;
    /// The popup that has the keys passes them on to here: it is as good as having the focus, caret and all.
    virtual bool lendsKeys() const { return false; }

private:
    QRect textArea() const;
    QRect areaOfEdit() const;
    const LineLayout& layout() const;
    void dropLayout() const;
    QPoint textCorner() const;
    void scrollToCaret();
    void recolor();
    void showComposition(QInputMethodEvent& event) override;
    void compose(Composition composition);
    void showCaret(bool shown);
    bool seesCaret() const { return (hasFocus() || lendsKeys()) && !box().locked(); }
    void startDrag();
    void tellReaders(bool textDiffers);
    void tellStanding(QAccessibleInterface& spoken);
    void paintGroundIn(QPainter& painter, const QRect& area) const;

    static constexpr std::size_t Nowhere = static_cast<std::size_t>(-1);

    QPalette Look_;
    Composition Composition_;
    QBasicTimer Blink_;
    QPoint PressedAt_;
    Selection Painted_;
    mutable QRect TextArea_;  ///< none while it is to be found
    std::size_t DropPlace_ = Nowhere;
    std::u16string ToldText_;  ///< to screen readers; kept while there are any
    QString ToldDescription_;
    int Scrolled_ = 0;  ///< pixels of the text in front of what is seen
    bool CaretOn_ = false;
    bool MayDrag_ = false;  ///< the press in hand is in what is selected
};

}  // namespace kel::qt
