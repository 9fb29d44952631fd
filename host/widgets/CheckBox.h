#pragma once

#include "host/focus/Mnemonic.h"
#include "host/widgets/Widget.h"

namespace kel {

class CheckBoxListener {
public:
    /// The user is about to toggle the box. False: it stays as it is.
    virtual bool Check1_Toggle() { return true; }
    /// The state differs from before, by the user or by code.
    virtual void Check1_Click() = 0;
    /// A character, or a control character, is about to act; 0 swallows it.
    virtual void Check1_KeyPress(char32_t& KeyAscii) = 0;

protected:
    ~CheckBoxListener() = default;
};

/// A check box with its caption. "&" marks the caption's mnemonic, which toggles the box and gives it the focus. A new
/// box is enabled, visible, unchecked, without a caption.
class CheckBox final : public FieldWidget {
public:
    static constexpr std::int32_t Unchecked = 0;
    static constexpr std::int32_t Checked = 1;
    static constexpr std::int32_t Grey = 2;

    CheckBox(WidgetHost& host, CheckBoxListener& listener);

    const std::u16string& caption() const { return Caption_; }
    void setCaption(std::u16string_view caption) { changeCaption(Caption_, caption); }
    char16_t mnemonic() const { return mnemonicIn(Caption_); }

    std::int32_t value() const { return Value_; }
    /// Notifies a click when it differs from the old value.
    void setValue(std::int32_t value);

    // ---- What a person does

    /// What comes of a key that goes down.
    enum class Key : std::uint8_t { Ignored, Swallowed, Presses };
    Key keyDown(const KeyStroke& stroke);
    Key typed(char32_t character);

    /// Something other than a key presses the box: it takes the focus first. False where that goes elsewhere, and the
    /// press is none.
    bool takePress();
    /// What pressed the box, a key or a button, is let go over it: it toggles, a grey one to unchecked.
    void release();
    /// Both at once: the mnemonic, another program.
    void press();

    bool strike(const KeyStroke& stroke) override;
    void pressMnemonic() override { press(); }
    void click(std::int32_t /*position*/) override { press(); }

    View* view() const override { return View_.get(); }

private:
    CheckBoxListener& Listener_;
    std::u16string Caption_;
    std::int32_t Value_ = Unchecked;
    std::unique_ptr<View> View_;  ///< last: it reads all of the above until it goes
};

}  // namespace kel
