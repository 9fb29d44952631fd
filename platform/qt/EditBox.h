#pragma once

#include <QDropEvent>

#include <string>
#include <string_view>
#include <utility>

#include "host/editing/TextBoxEditor.h"
#include "platform/qt/ChildField.h"

class QInputMethodEvent;
class QKeyEvent;
class QMouseEvent;
class QPoint;
class QWheelEvent;

namespace kel::qt {

/// Where text is edited, whichever of Qt's widgets shows it and whatever control's widget it is part of. The editor
/// holds text and selection and says what becomes of them; Qt's widget is made to show both, and what the user or
/// somebody else does to it comes back here.
class EditBox : protected EditSurroundings {
public:
    EditBox(const EditBox&) = delete;
    EditBox& operator=(const EditBox&) = delete;
    virtual ~EditBox() = default;

    ChildField& field() const { return Field_; }

    /// Whether a menu should offer it now.
    bool offers(EditAction action) const;
    void perform(EditAction action) { Edit_.perform(action); }

    /// The next press of a mouse button puts the caret to `position`, wherever in the box it is; -1 withdraws.
    void aim(std::int32_t position) { Aim_ = position; }
    /// Where presses arrive.
    virtual QWidget& mouseArea() = 0;

protected:
    /// Both outlive the box.
    EditBox(TextBoxEditor& edit, ChildField& field) : Edit_(edit), Field_(field) {}

    /// The next text that comes is no edit of the one shown.
    void expectNew() { ShowsNew_ = true; }
    void gainFocus() { Edit_.listener().Text1_GotFocus(); }
    void loseFocus() {
        TurnedRest_ = 0;
        Edit_.listener().Text1_LostFocus();
    }

    // ---- What Qt's widget shows. Positions are those of the text.

    /// Laying out a text is what a widget spends most of its time on. One that would rather wait for further edits, or
    /// until somebody looks, answers true, and brings itself up to date then.
    virtual bool postponesShowing() { return false; }
    void bringUpToDate() {
        if (OutOfDate_) showBuffer();
    }
    virtual std::u16string shownText() = 0;
    /// A text that came of the one shown: Qt's widget is told the difference only.
    virtual void showEdited(std::u16string_view text, std::size_t caret) = 0;
    virtual void showNew(std::u16string_view text) = 0;
    virtual Selection shownSelection() const = 0;
    virtual void showSelection(const Selection& selection) = 0;
    virtual void showLocked(bool locked) = 0;
    /// Shows what is being composed; `event` commits nothing.
    virtual void compose(QInputMethodEvent& event) = 0;
    /// The text at the caret runs from right to left.
    virtual bool isMirrored() const = 0;
    /// Where in the text a point of the mouse area is.
    virtual std::size_t positionAt(const QPoint& point) const = 0;

    // ---- What Qt's widget tells

    void keyPressed(QKeyEvent& event);
    void shortcutAsked(QKeyEvent& event) const;
    void inputMethodSpoke(QInputMethodEvent& event);
    /// In front of what Qt does at a press, so that it finds no selection there to drag.
    void takeAim();
    void mousePressed(const QMouseEvent& event);
    void mouseReleased(const QMouseEvent& event);
    void menuAsked(const QPoint& globalPosition);
    /// Returns whether it was turned for this box.
    bool wheelTurned(const QWheelEvent& event);
    /// By the middle button: the text that is selected somewhere on the desktop.
    void pastePicked(const QString& text);

    /// A text hovers above the box; `show` makes Qt show where it would go, which moves nothing of the text's own.
    template <class Show>
    void dragMoved(QDropEvent& event, Show show) {
        const ShowingScope scope(Showing_);
        show();
        if (event.isAccepted()) chooseDropAction(event);
    }
    template <class Hide>
    void dragLeft(Hide hide) {
        const ShowingScope scope(Showing_);
        hide();
        if (shownSelection() != buffer().selection()) showSelection(buffer().selection());
    }
    void dropped(QDropEvent& event);

    void textChangedInWidget();
    void selectionChangedInWidget();

    // ---- For the editor

    void bufferChanged() override;
    std::u16string clipboardText() override;
    void setClipboardText(std::u16string_view text) override;
    std::ptrdiff_t linesOfPage() const override { return 1; }

    /// Whether a shortcut of the window with this key would take something away from the box.
    virtual bool claims(const KeyStroke& stroke) const { return claimsKey(stroke, Edit_.locked()); }

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

    const EditBuffer& buffer() const { return Edit_.buffer(); }
    bool textIs(std::u16string_view other) const { return buffer().text() == other; }
    void showBuffer();

    /// Returns whether the key meant anything here.
    bool strike(const KeyStroke& stroke);
    void stepMirrored(EditAction step, bool extend);
    void showComposition(QInputMethodEvent& event);

    void adopt(std::u16string_view text, std::size_t caret);
    bool isMovedHere(const QDropEvent& event);
    void chooseDropAction(QDropEvent& event);
    bool takeFocus();
    void moveSelection(std::size_t place);

    TextBoxEditor& Edit_;
    ChildField& Field_;
    std::int32_t Aim_ = -1;
    int TurnedRest_ = 0;      ///< of the wheel, less than a notch
    bool OutOfDate_ = false;  ///< what Qt's widget shows
    bool Showing_ = false;
    bool Adopting_ = false;
    bool Composing_ = false;
    bool ShowsNew_ = false;
    bool LeftPressed_ = false;
};

}  // namespace kel::qt
