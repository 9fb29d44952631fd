#pragma once

#include "host/focus/Mnemonic.h"
#include "host/widgets/Widget.h"

namespace kel {

/// A caption in front of a field. "&" marks its mnemonic, which gives the field the focus.
class Label final : public TextualWidget {
public:
    explicit Label(WidgetHost& host) : TextualWidget(colors::SystemButtonText), View_(host.makeView(*this)) {}

    const std::u16string& caption() const { return Caption_; }
    void setCaption(std::u16string_view caption) { changeCaption(Caption_, caption); }
    char16_t mnemonic() const { return mnemonicIn(Caption_); }

    View* view() const override { return View_.get(); }

private:
    std::u16string Caption_;
    std::unique_ptr<View> View_;  ///< last: it reads all of the above until it goes
};

}  // namespace kel
