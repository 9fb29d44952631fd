#include "records/make/FormOfTable.h"

#include "library/Identities.h"
#include "records/Commands.h"
#include "records/make/FieldPlan.h"
#include "records/make/Grid.h"
#include "records/make/Words.h"
#include "records/OpenTable.h"
#include "values/Text.h"

namespace kel::records {

namespace {

constexpr std::string_view LineEnd = "\r\n";

std::u16string formNameOf(const Table& table) {
    const std::u16string name = nameOf(wordsOf(table.name));
    return u"frm" + (name.empty() ? u"Records" : name.substr(0, 36));
}

/// The blocks, without a property.
std::string skeleton(const std::string& formName, const std::vector<FieldPlan>& fields) {
    std::string text;
    const auto line = [&](const std::string& content) { text.append(content).append(LineEnd); };
    line("VERSION 5.00");
    line("Object = \"{" + kel::textOf(identities::TypeLibrary) + "}#1.4#0\"; \"KelControls8.ocx\"");
    line("Begin VB.Form " + formName);
    for (const FieldPlan& field : fields) {
        line("   Begin KelControls8." + toUtf8(field.className) + " " + toUtf8(field.name));
        line("   End");
    }
    line("End");
    line("Attribute VB_Name = \"" + formName + "\"");
    return text;
}

void setForm(FormFile& file, const Table& table, const Size& size) {
    file.set(0, u"Caption", captionOf(wordsOf(table.name)));
    file.set(0, u"ClientHeight", size.height);
    file.set(0, u"ClientWidth", size.width);
}

void setField(FormFile& file, FormBlockId block, const FieldPlan& field, const Grid::Place& place,
              const std::u16string& caption) {
    file.set(block, u"Left", place.bounds.left);
    file.set(block, u"Top", place.bounds.top);
    file.set(block, u"Width", place.bounds.width);
    file.set(block, u"Height", place.bounds.height);
    file.set(block, u"TabIndex", static_cast<std::int32_t>(block - 1));
    if (!field.dataField.empty()) file.set(block, u"DataField", field.dataField);
    file.set(block, u"Caption", caption);
    if (place.captionWidth > 0) file.set(block, u"CaptionWidth", place.captionWidth);
    for (const auto& [name, value] : field.properties) file.set(block, name, value);
}

}  // namespace

MadeForm formFor(Store& store, const Table& table, const RegionalSettings& region, const std::string& path) {
    FieldPlanner planner(store, table, region);
    std::vector<FieldPlan> fields;
    std::vector<std::u16string> leftOut;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        std::vector<FieldPlan> made = planner.fieldsFor(i);
        if (made.empty() && i != table.version) leftOut.push_back(table.columns[i].name);
        for (FieldPlan& field : made) fields.push_back(std::move(field));
    }
    if (fields.empty())
        throw StoreError(StoreError::Kind::Wrong,
                         "The table " + toUtf8(table.name) + " has no column that a field could show.");
    const Grid grid = arrange(fields);
    const std::u16string formName = formNameOf(table);
    FormFile file = FormFile::parse(skeleton(toUtf8(formName), fields), path);
    setForm(file, table, grid.size);
    std::vector<std::u16string> captions;
    for (const FieldPlan& field : fields) captions.push_back(field.caption);
    std::set<char16_t> taken;
    for (const CommandRow& row : commandRows()) taken.insert(toLowerAscii(row.menu.front()));
    captions = withMnemonics(std::move(captions), std::move(taken));
    for (std::size_t i = 0; i < fields.size(); ++i) setField(file, i + 1, fields[i], grid.places[i], captions[i]);
    // There may be another one of nearly this name.
    const std::optional<Table> meant = tableOfForm(store, formName);
    return {std::move(file), fields.size(), std::move(leftOut), meant && meant->name == table.name};
}

}  // namespace kel::records
