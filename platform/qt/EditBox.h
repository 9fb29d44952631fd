#pragma once

#include <optional>
#include <QStringView>

#include "host/editing/EditedTextBox.h"
#include "platform/qt/QtField.h"

class QInputMethodEvent;
class QKeyEvent;
class QMouseEvent;
class QPoint;

namespace kel::qt {

/// An edit box, whichever of Qt's widgets shows it. The editor holds text and selection and says what becomes of
/// them; Qt's widget is made to show both, and what the user or somebody else does to it comes back here.
class EditBox : public EditedTextBox<QtField<TextBox>>, private EditSurroundings {
public:
    void setText(std::u16string_view text) override;

    void setLocked(bool locked) override;
    void setPasswordChar(char16_t character) override;

    void gotFocus() override { Editor_.listener().Text1_GotFocus(); }
    void lostFocus() override { Editor_.listener().Text1_LostFocus(); }

    /// Whether a menu should offer it now.
    bool offers(EditAction action) const;
    void perform(EditAction action) { Editor_.perform(action); }

    /// The next press of a mouse button puts the caret to `position`, wherever in the box it is; -1 withdraws.
    void aim(std::int32_t position) { Aim_ = position; }
    /// Where presses arrive.
    virtual QWidget& mouseArea() = 0;

protected:
    EditBox(ControlSite& site, TextBoxListener& listener, QWidget& widget, bool multiLine)
        : EditedTextBox(listener, *this, multiLine, site, widget) {}

    // ---- What Qt's widget shows. Positions are those of the text.

    virtual std::u16string shownText() = 0;
    /// A text that came of the one shown: Qt's widget is told the difference only.
    virtual void showEdited(std::u16string_view text, std::size_t caret) = 0;
    virtual void showNew(std::u16string_view text) = 0;
    virtual Selection shownSelection() const = 0;
    virtual void showSelection(const Selection& selection) = 0;
    virtual void showLocked(bool locked) = 0;
    virtual void showPasswordChar(char16_t character) = 0;
    /// Shows what is being composed; `event` commits nothing.
    virtual void compose(QInputMethodEvent& event) = 0;
    /// The text at the caret runs from right to left.
    virtual bool isMirrored() const = 0;

    // ---- What Qt's widget tells

    void keyPressed(QKeyEvent& event);
    void shortcutAsked(QKeyEvent& event) const;
    void inputMethodSpoke(QInputMethodEvent& event);
    /// In front of what Qt does at a press, so that it finds no selection there to drag.
    void takeAim();
    void mousePressed(const QMouseEvent& event);
    void mouseReleased(const QMouseEvent& event);
    void menuAsked(const QPoint& globalPosition);
    /// Text from elsewhere was let go at `place`.
    void dropped(std::size_t place, QStringView text);
    /// The selected text itself was.
    void selectionMoved(std::size_t place);
    void textChangedInWidget();
    void selectionChangedInWidget();

    std::ptrdiff_t linesOfPage() const override { return 1; }

private:
    /// While Qt's widget is made to show something, what it tells is no news.
    class ShowingScope {
    public:
        explicit ShowingScope(bool& showing) : Showing_(showing), Before_(std::exchange(showing, true)) {}
        ~ShowingScope() { Showing_ = Before_; }
        ShowingScope(const ShowingScope&) = delete;
        ShowingScope& operator=(const ShowingScope&) = delete;

    private:
        bool& Showing_;
        bool Before_;
    };

    bool takesInput() const override { return QtField::takesInput(); }
    void bufferChanged() override;
    std::u16string clipboardText() override;
    void setClipboardText(std::u16string_view text) override;

    /// Returns whether the key meant anything here.
    bool strike(const KeyStroke& stroke);
    void stepMirrored(EditAction step, bool extend);
    void showComposition(QInputMethodEvent& event);

    std::optional<QStringView> Incoming_;  ///< pasted next, in place of what the clipboard holds
    std::int32_t Aim_ = -1;
    bool Showing_ = false;
    bool ShowsNew_ = false;
    bool LeftPressed_ = false;
};

}  // namespace kel::qt
