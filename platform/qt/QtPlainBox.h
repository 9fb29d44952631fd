#pragma once

#include <QPlainTextEdit>

#include "platform/qt/EditBox.h"

namespace kel::qt {

/// The multi-line edit box.
class QtPlainBox final : public QPlainTextEdit, public EditBox {
public:
    QtPlainBox(ControlSite& site, TextBoxListener& listener, QWidget& parent);

    std::u16string text() const override;
    bool textEquals(std::u16string_view other) const override;
    std::int32_t textLength() const override;

    bool locked() const override { return isReadOnly(); }
    void setLocked(bool locked) override;

    /// Kept only: several lines are always shown in clear.
    char16_t passwordChar() const override { return PasswordChar_; }
    void setPasswordChar(char16_t character) override { PasswordChar_ = character; }

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
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;

    QMimeData* createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    Selection selection() const override;
    void select(const Selection& selection) override;
    std::u16string textBetween(std::size_t start, std::size_t end) const override;
    void replace(std::size_t start, std::size_t end, std::u16string_view text) override;
    void replaceAll(std::u16string_view text) override;
    void compose(QInputMethodEvent& event) override { QPlainTextEdit::inputMethodEvent(&event); }

    bool multiLine() const override { return true; }
    std::size_t snapped(std::size_t position) const override;
    std::size_t nextCodePoint(std::size_t position) const override;
    std::size_t previousCodePoint(std::size_t position) const override;
    std::size_t destination(EditAction move, std::size_t position) const override;
    void moveByLine(EditAction move, bool extend) override;
    std::u16string pasteable(QStringView text) const override;

    char16_t PasswordChar_ = 0;
};

}  // namespace kel::qt
