#pragma once

#include "host/focus/Mnemonic.h"
#include "host/widgets/Widget.h"

namespace kel {

inline constexpr std::int32_t CaptionHeight = 195;  ///< of one line, twips

/// A caption in front of a field. "&" marks its mnemonic, which gives the field the focus.
class Label final : public TextualWidget {
public:
    explicit Label(WidgetHost& host) : TextualWidget(colors::SystemButtonText), View_(host.makeView(*this)) {}

    const std::u16string& caption() const { return Caption_; }
    void setCaption(std::u16string_view caption) { changeCaption(Caption_, caption); }
    char16_t mnemonic() const { return mnemonicIn(Caption_); }

    /// There is something to be read, and room for it.
    bool isSeen() const { return !Caption_.empty() && bounds().width > 0; }
    /// What is too long for a line goes on in the next one.
    bool wraps() const { return bounds().height > CaptionHeight; }

    View* view() const override { return View_.get(); }

private:
    std::u16string Caption_;
    std::unique_ptr<View> View_;  ///< last: it reads all of the above until it goes
};

}  // namespace kel
