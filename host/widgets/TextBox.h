#pragma once

#include "host/widgets/TextEntry.h"

namespace kel {

/// A single-line or multi-line edit box. A new box is enabled, visible, unlocked, empty, with `colors::SystemWindow`
/// behind `colors::SystemWindowText`.
class TextBox final : public TextEntry {
public:
    TextBox(WidgetHost& host, TextBoxListener& listener, bool multiLine = false)
        : TextEntry(host, listener, multiLine), View_(host.makeView(*this)) {}

    /// Shown in place of every character; 0 shows the text.
    char32_t passwordChar() const { return shownPasswordChar(); }
    void setPasswordChar(char32_t character) { hideBy(character); }

    TextView* view() const override { return View_.get(); }

private:
    std::unique_ptr<TextView> View_;  ///< last: it reads all of the above until it goes
};

}  // namespace kel
