#pragma once

#include <QMimeData>
#include <QPlainTextEdit>

#include "host/widgets/TextEntry.h"
#include "platform/qt/widgets/FieldView.h"
#include "platform/qt/widgets/TextInput.h"

namespace kel::qt {

/// Several lines of text that can be edited. Qt's own box lays them out, and is kept showing what the widget holds;
/// what anybody else does to its text goes to the widget, and is taken back where that refuses it.
class QtTextArea final : public QPlainTextEdit, public TextView, public TextInput, private TextLines {
public:
    QtTextArea(ControlSite& site, TextEntry& box, QWidget& parent);

    void outOfDate() override;
    void paintAgain() override { viewport()->update(); }
    const TextLines* lines() const override { return this; }
    std::ptrdiff_t linesOfPage() const override;
    bool isMirrored() const override;

    void colorAgain() override;
    bool isTall() const override { return true; }
    int baseline() const override;
    QWidget& mouseArea() override { return *viewport(); }
    void prepareSpeech() override;

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override { keyPressed(*event); }
    void inputMethodEvent(QInputMethodEvent* event) override { composed(*event); }
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    /// Scrolls as well, whether or not it has the focus; at its end the surroundings scroll.
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

    QMimeData* createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData* source) const override { return source->hasText(); }
    /// By the middle mouse button.
    void insertFromMimeData(const QMimeData* source) override { pastePicked(source->text()); }

private:
    TextLine lineAt(std::size_t position) const override;

    std::int32_t positionAt(const QMouseEvent& event) const;
    void allowScrollBar();
    void showText();
    void showSelection(const Selection& selection);
    Selection shownSelection() const;
    void showLocked();
    void describeAgain();
    void showComposition(QInputMethodEvent& event) override;
    void textChangedInWidget();
    void selectionChangedInWidget();

    std::u16string Shown_;  ///< as the document holds it, which would be slow to ask
    int PressClicks_ = 1;   ///< that the last press was, with those before it
    bool Showing_ = false;  ///< what Qt's box tells is no news
};

}  // namespace kel::qt
