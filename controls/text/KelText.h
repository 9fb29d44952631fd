#pragma once

#include "host/Container.h"
#include "host/System.h"
#include "host/Widgets.h"
#include "library/Control.h"

namespace kel {

struct BackChange;

/// Free text entry: a caption and a single-line or multi-line text field.
class KelText final : public Control, private TextBoxListener {
public:
    static const EventRow Change;
    static const EventRow Click;

    explicit KelText(ControlHost& host);

    std::u16string get_Caption() const;
    void put_Caption(const std::u16string& caption);
    std::int16_t get_CaptionWidth() const;
    void put_CaptionWidth(std::int16_t twips);
    bool get_Changed() const;
    bool get_ChangedSaved() const;
    bool get_Enabled() const;
    void put_Enabled(bool enabled);
    std::int32_t get_hWnd() const;
    bool get_InsertMode() const { return InsertMode_; }
    void put_InsertMode(bool insert);
    bool get_Locked() const;
    void put_Locked(bool locked);
    bool get_Mandatory() const { return Mandatory_; }
    void put_Mandatory(bool mandatory);
    std::int16_t get_MaxLength() const;
    void put_MaxLength(std::int16_t units);
    bool get_MultiLine() const { return FieldIndex_ == 1; }
    void put_MultiLine(bool multiLine);
    std::u16string get_PasswordChar() const;
    void put_PasswordChar(const std::u16string& character);
    void Refresh();
    bool get_SelectOnFocus() const { return SelectOnFocus_; }
    void put_SelectOnFocus(bool select);
    /// Takes trailing empty lines off a multi-line field itself, not only off the result.
    std::u16string get_Text();
    void put_Text(const std::u16string& text);
    std::u16string get_TextOriginal() const { return TextOriginal_; }
    void put_TextOriginal(const std::u16string& text) { TextOriginal_ = text; }
    std::u16string get_TextRaw() const;
    std::u16string get_TextSaved() const { return TextSaved_; }
    void put_TextSaved(const std::u16string& text) { TextSaved_ = text; }
    void TooltipSet(const std::u16string& tooltip);
    bool get_Valid() const;

    const ClassModel& model() const override;
    void InitProperties() override;
    void ReadProperties(PropertyBag& bag) override;
    void WriteProperties(PropertyBag& bag) const override;
    void Resize() override;
    void Show() override;
    void EnterFocus() override;
    void ExitFocus() override;
    WidgetSet widgets() override;

private:
    void Text1_Change() override;
    void Text1_Click() override;
    void Text1_KeyDown(std::int16_t& KeyCode, Modifiers Shift) override;
    void Text1_KeyPress(char32_t& KeyAscii) override;
    bool Text1_Paste(std::u16string& /*Text*/) override { return true; }
    void Text1_MouseDown(MouseButton /*Button*/) override {}
    bool Text1_UsesWheel() override { return false; }
    void Text1_Wheel(std::int32_t /*Notches*/) override {}
    void Text1_GotFocus() override;
    void Text1_LostFocus() override;

    TextBox& activeBox() const { return *Text1_[FieldIndex_]; }
    void makeMultiLineBox();
    void applyBack(const BackChange& change);
    void applyStateLook();
    void reportChanged(std::u16string_view bagName) { Host_.container.propertyChanged(bagName); }

    /// Runs `action` on each box that has been made.
    template <class Action>
    void forEachBox(Action action) {
        for (const auto& box : Text1_)
            if (box) action(*box);
    }

    ControlHost Host_;
    std::unique_ptr<Label> Label1_;
    /// 0 single-line, 1 multi-line. The second is made when the field first turns multi-line, which few do;
    /// it then takes over what is kept in the first.
    std::unique_ptr<TextBox> Text1_[2];

    bool InsertMode_ = true;
    bool Mandatory_ = true;
    std::int16_t FieldIndex_ = 0;
    bool SelectOnFocus_ = false;
    std::u16string TextOriginal_;
    std::u16string TextSaved_;
    std::int16_t LoadingDepth_ = 0;

    bool Shown_ = false;
    Color CommonBack_ = colors::SystemWindow;  ///< last background that every box was given
};

extern const ClassModel KelTextModel;

}  // namespace kel
