#pragma once

#include "platform/win32/ole/pages/DialogTemplate.h"
#include "platform/win32/ole/pages/SelectedObjects.h"

namespace kel::win32::ole {

/// How one property is edited on a page: a check box for a switch, a list of names for an enumeration, a box with
/// choices below it, a line or some lines of text for all else.
class RowEditor {
public:
    /// Takes what the property is. `id` is that of the editor's window; `mnemonic` stands in the name, 0 for none.
    RowEditor(const MemberRow& row, const SelectedObjects& objects, DWORD id, wchar_t mnemonic);

    const MemberRow& row() const { return Row_; }
    bool isSwitch() const { return Row_.type == TypeTag::Boolean; }
    /// In the dialog's units, with what is between it and the next.
    short height() const;
    /// The name and the editor, from this place on.
    void layOut(DialogTemplate& dialog, short left, short top, short width) const;

    /// Where the page's window is there.
    void show(HWND page) const;
    void focus(HWND page) const;

    /// A command of the editor: true where something else has been typed or chosen.
    bool hears(HWND page, UINT code);

    /// Nothing where it is as it was.
    const std::optional<Variant>& typed() const { return Typed_; }
    /// What stands in the editor; nothing where the selected objects differ.
    const std::optional<Variant>& current() const { return Typed_ ? Typed_ : Value_; }
    /// It has been put, and is read back.
    void applied(const SelectedObjects& objects);

    /// "CaptionWidth, 16-bit integer: Width of the caption in twips".
    std::u16string help() const;

private:
    enum class Kind { Switch, Names, Choices, Lines, Line };
    Kind kind() const;
    Variant read(HWND page, UINT code) const;

    const MemberRow& Row_;
    DWORD Id_;
    wchar_t Mnemonic_;
    bool HasLines_ = false;
    std::optional<Variant> Value_;
    std::optional<Variant> Typed_;
};

}  // namespace kel::win32::ole
