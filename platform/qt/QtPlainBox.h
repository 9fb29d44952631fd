#pragma once

#include <QMimeData>
#include <QPlainTextEdit>

#include "platform/qt/QtTextBox.h"

namespace kel::qt {

/// The multi-line edit box.
class QtPlainBox final : public QPlainTextEdit, public QtTextBox, private TextLines {
public:
    QtPlainBox(ControlSite& site, TextBoxListener& listener, QWidget& parent);

    void setVisible(bool visible) override;
    void refresh() override { viewport()->update(); }

    bool isTall() const override { return true; }
    int baseline() const override;
    QWidget& mouseArea() override { return *viewport(); }

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override { keyPressed(*event); }
    void inputMethodEvent(QInputMethodEvent* event) override { inputMethodSpoke(*event); }
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    /// Scrolls as well, whether or not it has the focus; at its end the surroundings scroll.
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

    QMimeData* createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    /// By the middle mouse button.
    void insertFromMimeData(const QMimeData* source) override { pastePicked(source->text()); }

private:
    std::u16string shownText() override;
    void showEdited(std::u16string_view text, std::size_t caret) override;
    void showNew(std::u16string_view text) override;
    Selection shownSelection() const override;
    void showSelection(const Selection& selection) override;
    void showLocked(bool locked) override;
    /// Several lines are always shown in clear.
    void showPasswordChar(char16_t /*mask*/) override {}
    void compose(QInputMethodEvent& event) override { QPlainTextEdit::inputMethodEvent(&event); }
    bool isMirrored() const override;
    std::size_t positionAt(const QPoint& point) const override;
    const TextLines* lines() const override { return this; }
    TextLine lineAt(std::size_t position) const override;
    std::ptrdiff_t linesOfPage() const override;

    std::u16string Shown_;  ///< as the document holds it, which would be slow to ask
};

}  // namespace kel::qt
