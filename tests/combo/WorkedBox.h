#pragma once

#include <string>
#include <string_view>

#include "host/widgets/ComboBox.h"

namespace kel::test {

/// A combo box that nobody sees, worked as a person would.
class WorkedBox final : private WidgetHost {
public:
    explicit WorkedBox(ComboBoxListener& listener) : Box_(*this, listener) {}

    ComboBox& box() { return Box_; }

    /// Steps separated by ";": keys as `press` reads them, or "pick 2", "hover 2", "wheel -1" or "button".
    void play(std::string_view script);

    /// There is somebody whose deeds count, or nobody.
    void setAttended(bool attended) { Attended_ = attended; }

    /// "Ap[ple] 0", with " open 2" after it for a dropped list with its third row highlighted.
    std::string look() const;

private:
    void playStep(std::string_view step);

    bool takesInput() const override { return Attended_; }
    void moveFocusTo(FieldWidget&) override {}
    void focusBarred(FieldWidget&) override {}
    std::u16string clipboardText() override { return Clipboard_; }
    void setClipboardText(std::u16string_view text) override { Clipboard_.assign(text); }

    bool Attended_ = true;
    std::u16string Clipboard_;
    ComboBox Box_;
};

}  // namespace kel::test
