#pragma once

#include <optional>
#include <QClipboard>
#include <QString>
#include <utility>

#include "host/editing/EditAction.h"
#include "host/editing/EditHistory.h"
#include "platform/qt/QtField.h"

class QInputMethodEvent;
class QKeyEvent;
class QMouseEvent;
class QPoint;

namespace kel::qt {

/// How an edit box behaves, whichever of Qt's widgets shows it. Every way by which a user can change the text
/// leads through here: keys, input methods, clipboard, drops, menus. Qt's widget holds and shows text and
/// selection, no more.
class EditBox : public QtField<TextBox> {
public:
    void setText(std::u16string_view text) override;

    std::int32_t selStart() const override { return static_cast<std::int32_t>(selection().start()); }
    void setSelStart(std::int32_t position) override;
    std::int32_t selLength() const override { return static_cast<std::int32_t>(selection().length()); }
    void setSelLength(std::int32_t length) override;
    std::u16string selText() const override;
    void setSelText(std::u16string_view text) override;

    std::int32_t maxLength() const override { return MaxLength_; }
    void setMaxLength(std::int32_t units) override { MaxLength_ = units > 0 ? units : 0; }

    void gotFocus() override { Listener_.Text1_GotFocus(); }
    void lostFocus() override { Listener_.Text1_LostFocus(); }

    /// Whether a menu should offer it now.
    bool offers(EditAction action) const;
    /// As a menu does. Returns whether it concerned the box.
    bool perform(EditAction action);

    /// The next press of a mouse button puts the caret to `position`, wherever in the box it is; -1 withdraws.
    void aim(std::int32_t position) { Aim_ = position; }
    /// Where presses arrive.
    virtual QWidget& mouseArea() = 0;

protected:
    EditBox(ControlSite& site, TextBoxListener& listener, QWidget& widget)
        : QtField(site, widget), Listener_(listener) {}

    // ---- What Qt's widget does for its box. Positions are the controls'.

    virtual Selection selection() const = 0;
    virtual void select(const Selection& selection) = 0;
    virtual std::u16string textBetween(std::size_t start, std::size_t end) const = 0;
    /// The caret comes to stand behind `text`, nothing selected.
    virtual void replace(std::size_t start, std::size_t end, std::u16string_view text) = 0;
    /// The caret comes to stand at 0.
    virtual void replaceAll(std::u16string_view text) = 0;
    /// Hands it on without what it commits.
    virtual void compose(QInputMethodEvent& event) = 0;

    virtual bool multiLine() const = 0;
    /// `position`, or the place just in front of it where no caret can stand.
    virtual std::size_t snapped(std::size_t position) const = 0;
    virtual std::size_t nextCodePoint(std::size_t position) const = 0;
    virtual std::size_t previousCodePoint(std::size_t position) const = 0;
    /// Where a move leads that keeps its line or goes by the order of the text.
    virtual std::size_t destination(EditAction move, std::size_t position) const = 0;
    /// Up and down, by lines and pages.
    virtual void moveByLine(EditAction move, bool extend) = 0;
    /// What of a pasted text may come in, with line breaks as the box writes them.
    virtual std::u16string pasteable(QStringView text) const = 0;

    // ---- What Qt's widget hands to its box.

    void keyPressed(QKeyEvent& event);
    void shortcutAsked(QKeyEvent& event) const;
    void inputMethodSpoke(QInputMethodEvent& event);
    /// In front of what Qt does at a press, so that it finds no selection there to drag.
    void takeAim();
    void mousePressed(const QMouseEvent& event);
    void mouseReleased(const QMouseEvent& event);
    void menuAsked(const QPoint& globalPosition);
    /// The text came by a drag or the middle mouse button; `replaced` gives way to it.
    void dropped(const Selection& replaced, const QString& text);
    /// The selected text itself was dragged to `place`.
    void selectionMoved(std::size_t place);
    /// Qt's widget changed its text, because the box told it to or because somebody else did.
    void textChangedInWidget();

    bool isPassword() const { return !multiLine() && passwordChar() != 0; }

private:
    /// While the box itself has Qt's widget change.
    class EditScope {
    public:
        explicit EditScope(bool& editing) : Editing_(editing), Before_(std::exchange(editing, true)) {}
        ~EditScope() { Editing_ = Before_; }
        EditScope(const EditScope&) = delete;
        EditScope& operator=(const EditScope&) = delete;

    private:
        bool& Editing_;
        bool Before_;
    };

    void setSelection(const Selection& wanted);
    std::size_t room() const;
    void edit(EditKind kind, std::size_t start, std::size_t end, std::u16string_view text);
    void replaceSelection(EditKind kind, std::u16string_view text);

    bool act(EditAction action, char32_t character, bool extend);
    void moveCaret(EditAction action, bool extend);
    void type(char32_t character);
    void breakLine();
    void erase(EditKind kind, std::size_t reach);
    void copy() const;
    void cut();
    void paste(QStringView text);
    void takeBack(const std::optional<EditHistory::Replacement>& replacement);

    /// Returns whether the key concerned the box.
    bool strike(const KeyStroke& stroke, QStringView text);
    bool strikeCharacter(char32_t character, const KeyStroke& stroke);
    void typeCommitted(QStringView text);
    void showComposition(QInputMethodEvent& event);

    TextBoxListener& Listener_;
    EditHistory History_;
    std::int32_t MaxLength_ = 0;
    std::int32_t Aim_ = -1;
    bool Editing_ = false;
    bool LeftPressed_ = false;
};

}  // namespace kel::qt
