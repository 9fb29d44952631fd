#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "forms/file/FormFile.h"

namespace kel::records {

/// What a person can do with the records of a form beside typing.
enum class Command : std::uint8_t {
    New,
    Save,
    SaveAndNew,
    Duplicate,
    Delete,
    Undo,
    Refresh,
    Import,
    Export,
    Close,
    First,
    Previous,
    Next,
    Last,
    GoTo,
    Find,
    FindNext,
    FindPrevious,
    ShowList,
    CarryOver,
    Keys
};

/// A command as menus, tool bars and the page of keys name it.
struct CommandRow {
    Command command;
    std::u16string_view menu;     ///< its first letter leads to it by Alt, where no field of the form has that
    std::u16string_view caption;  ///< with & before its mnemonic in the menu
    std::u16string_view key;      ///< "Ctrl+N": no field uses it for itself
    std::u16string_view help;     ///< a sentence
    bool inToolBar = false;
    bool startsGroup = false;  ///< a line stands above it in the menu
};

/// In the order of the menus.
std::span<const CommandRow> commandRows();

/// The captions of the menus by their names, with "&" before a letter that no caption of the form has: who keys in
/// relies on those.
std::map<std::u16string_view, std::u16string> menuCaptions(const FormFile& form);

/// A key of the fields themselves, for the same page.
struct FieldKeyRow {
    std::u16string_view key;
    std::u16string_view fields;
    std::u16string_view help;
};
std::span<const FieldKeyRow> fieldKeyRows();

}  // namespace kel::records
