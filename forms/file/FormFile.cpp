#include "forms/file/FormFile.h"

#include <algorithm>

#include "forms/file/FormEdit.h"
#include "forms/file/FormParser.h"
#include "forms/file/FormReading.h"
#include "forms/file/FormStore.h"

namespace kel {

FormFile FormFile::parse(std::string bytes, const std::string& path) {
    return FormFile(parseForm(std::move(bytes), path));
}

FormFile readFormFile(const std::string& path) { return FormFile::parse(readWholeFile(pathOf(path)), path); }

std::vector<FormProperty> FormFile::properties(FormBlockId block) const {
    std::vector<FormProperty> properties;
    for (FormEntries entries(Model_, block); entries.next();) {
        if (!entries.isGroup()) properties.push_back(propertyAt(Model_, entries.first()));
    }
    return properties;
}

std::optional<FormProperty> FormFile::find(FormBlockId block, std::u16string_view name) const {
    const auto entry = findEntry(Model_, block, name);
    if (!entry || entry->isGroup()) return std::nullopt;
    return propertyAt(Model_, entry->first());
}

std::vector<FormGroup> FormFile::groups(FormBlockId block) const {
    std::vector<FormGroup> groups;
    for (FormEntries entries(Model_, block); entries.next();) {
        if (!entries.isGroup()) continue;
        FormGroup& group = groups.emplace_back();
        group.name = Model_.nameOf(entries.first());
        group.line = Model_.lines[entries.first()].number;
        for (auto line = Model_.lines[entries.first()].next; line != entries.last(); line = Model_.lines[line].next)
            if (Model_.lines[line].kind == FormLine::Kind::Property)
                group.properties.push_back(propertyAt(Model_, line));
    }
    return groups;
}

std::size_t FormFile::codeLine() const {
    const std::string_view bytes = *Model_.bytes;
    auto number = static_cast<std::size_t>(
        std::count(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(Model_.codeStart), '\n') + 1);
    for (std::string_view code = bytes.substr(Model_.codeStart); !code.empty(); ++number) {
        const std::string_view line = code.substr(0, code.find('\n'));
        const bool isBlank = line.find_first_not_of(" \t\r") == std::string_view::npos;
        if (!isBlank && !line.starts_with("Attribute ")) return number;
        code.remove_prefix(std::min(line.size() + 1, code.size()));
    }
    return 0;
}

Variant FormFile::valueAs(const FormProperty& property, TypeTag type) const {
    return readPropertyAs(Model_, property, type);
}

std::u16string FormFile::stringValue(const FormProperty& property) const {
    return std::get<std::u16string>(valueAs(property, TypeTag::String));
}

std::int32_t FormFile::integer(FormBlockId block, std::u16string_view name, std::int32_t byDefault) const {
    const auto property = find(block, name);
    return property ? std::get<std::int32_t>(valueAs(*property, TypeTag::Integer32)) : byDefault;
}

bool FormFile::boolean(FormBlockId block, std::u16string_view name, bool byDefault) const {
    const auto property = find(block, name);
    return property ? std::get<bool>(valueAs(*property, TypeTag::Boolean)) : byDefault;
}

std::u16string FormFile::text(FormBlockId block, std::u16string_view name, std::u16string_view byDefault) const {
    const auto property = find(block, name);
    return property ? stringValue(*property) : std::u16string(byDefault);
}

Rect FormFile::bounds(FormBlockId block) const {
    return withinReach(
        Rect{integer(block, u"Left"), integer(block, u"Top"), integer(block, u"Width"), integer(block, u"Height")});
}

Size FormFile::clientSize(FormBlockId block) const {
    return withinReach(Size{integer(block, u"ClientWidth"), integer(block, u"ClientHeight")});
}

void FormFile::set(FormBlockId block, std::u16string_view name, const Variant& value) {
    setProperty(Model_, block, name, value);
}

bool FormFile::remove(FormBlockId block, std::u16string_view name) { return removeProperty(Model_, block, name); }

FormOutput FormFile::output(const std::string& path) const { return composeForm(Model_, path); }

void FormFile::save(const std::string& path) const { saveForm(Model_, path); }

}  // namespace kel
