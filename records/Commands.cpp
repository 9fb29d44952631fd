#include "records/Commands.h"

#include <algorithm>
#include <set>

#include "host/focus/Mnemonic.h"
#include "records/make/Words.h"
#include "values/Text.h"

namespace kel::records {

namespace {

constexpr std::u16string_view RecordMenu = u"Record";
constexpr std::u16string_view GoMenu = u"Go";
constexpr std::u16string_view ViewMenu = u"View";
constexpr std::u16string_view HelpMenu = u"Help";

constexpr CommandRow Rows[] = {
    {Command::New, RecordMenu, u"&New", u"Ctrl+N", u"Begins a new record.", true},
    {Command::Save, RecordMenu, u"&Save", u"Ctrl+S", u"Checks the fields and stores the record.", true},
    {Command::SaveAndNew, RecordMenu, u"Save and ne&xt new", u"F12",
     u"Stores the record and begins the next one, in its first field.", true},
    {Command::Undo, RecordMenu, u"&Undo to saved", u"F8", u"Shows the record as it was stored last.", true},
    {Command::Duplicate, RecordMenu, u"Dup&licate", u"Ctrl+D", u"Begins a new record with what stands on the screen.",
     false, true},
    {Command::CarryOver, RecordMenu, u"Carry this &field over", u"Ctrl+K",
     u"From now on the field's value goes along into the next new record; once more, no longer."},
    {Command::Delete, RecordMenu, u"&Delete", u"Shift+F8", u"Deletes the record, after asking."},
    {Command::Import, RecordMenu, u"&Import\u2026", u"Ctrl+Shift+I",
     u"Stores the records of a list (CSV), each checked by the form.", false, true},
    {Command::Export, RecordMenu, u"&Export\u2026", u"Ctrl+Shift+E", u"Writes all records to a list (CSV)."},
    {Command::Close, RecordMenu, u"&Close", u"Ctrl+Q", u"Closes the window; what is not saved is asked about.", false,
     true},
    {Command::First, GoMenu, u"&First", u"Alt+Home", u"Shows the first record.", true},
    {Command::Previous, GoMenu, u"&Previous", u"Alt+PgUp", u"Shows the record before.", true},
    {Command::Next, GoMenu, u"&Next", u"Alt+PgDown", u"Shows the record that follows.", true},
    {Command::Last, GoMenu, u"&Last", u"Alt+End", u"Shows the last record.", true},
    {Command::GoTo, GoMenu, u"&Go to\u2026", u"Ctrl+G", u"Shows the record of a number."},
    {Command::Find, GoMenu, u"F&ind\u2026", u"Ctrl+F",
     u"Looks for a text in any field, also for parts of words, without regard to case and accents.", true, true},
    {Command::FindNext, GoMenu, u"Find n&ext", u"F3", u"Shows the next record in which the text is found."},
    {Command::FindPrevious, GoMenu, u"Find p&revious", u"Shift+F3", u"Shows the one before."},
    {Command::ShowList, ViewMenu, u"&List of the records", u"F9", u"Shows the records beside the form, or hides them."},
    {Command::Refresh, ViewMenu, u"&Read again", u"F5", u"Shows the record as it is in the database now."},
    {Command::Keys, HelpMenu, u"&Keys", u"F1", u"Shows this page."},
};

constexpr FieldKeyRow FieldKeys[] = {
    {u"Tab, Enter", u"all", u"Go on to the next field."},
    {u"Shift+Tab", u"all", u"Go back to the field before."},
    {u"Alt+letter", u"all", u"Go to the field whose caption has the letter underlined."},
    {u"Insert", u"text, number, date, time", u"Overwrite or insert."},
    {u"Up, Down", u"number, date, time", u"One step up or down; in a date, of the part at the caret."},
    {u"+, -", u"date", u"One step up or down of the part at the caret."},
    {u"Down, F4, Alt+Down", u"combo", u"Open the list."},
    {u"Escape", u"combo", u"Close the list and keep what stands."},
    {u"Space", u"check", u"Check it or not."},
    {u"Ctrl+X, Ctrl+C, Ctrl+V", u"all with a text", u"Cut, copy, paste."},
    {u"Ctrl+Z, Ctrl+Y", u"all with a text", u"Undo what was typed, and do it again."},
};

}  // namespace

std::span<const CommandRow> commandRows() { return Rows; }

std::map<std::u16string_view, std::u16string> menuCaptions(const FormFile& form) {
    std::set<char16_t> taken;
    for (FormBlockId id = 1; id < form.blocks().size(); ++id)
        if (form.boolean(id, u"UseMnemonic", true)) taken.insert(toLowerAscii(mnemonicIn(form.text(id, u"Caption"))));
    std::vector<std::u16string> captions;
    for (const CommandRow& row : Rows)
        if (captions.empty() || captions.back() != row.menu) captions.emplace_back(row.menu);
    const std::vector<std::u16string> marked = withMnemonics(captions, std::move(taken));
    std::map<std::u16string_view, std::u16string> byName;
    for (const CommandRow& row : Rows)
        byName[row.menu] =
            marked[static_cast<std::size_t>(std::find(captions.begin(), captions.end(), row.menu) - captions.begin())];
    return byName;
}

std::span<const FieldKeyRow> fieldKeyRows() { return FieldKeys; }

}  // namespace kel::records
