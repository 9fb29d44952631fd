#include "forms/file/FormReading.h"

#include "forms/file/FormError.h"
#include "values/Text.h"

namespace kel {

namespace {

constexpr std::size_t LongestShown = 40;

bool isTextReference(const FormValue& value) {
    const auto* reference = std::get_if<FormReference>(&value);
    return reference != nullptr && reference->isText;
}

std::string shownValue(const FormValue& value) {
    const std::u16string written = writeFormValue(value);
    if (written.empty()) return "nothing";
    return toUtf8(headOf(written, LongestShown)) + (written.size() > LongestShown ? "..." : "");
}

}  // namespace

std::optional<FormEntries> findEntry(const FormModel& model, FormBlockId block, std::u16string_view name) {
    for (FormEntries entries(model, block); entries.next();) {
        if (model.isNamed(entries.first(), name)) return entries;
    }
    return std::nullopt;
}

FormProperty propertyAt(const FormModel& model, FormModel::LineId line) {
    const std::size_t number = model.lines[line].number;
    if (const FormModel::Edit* edit = model.editOf(line))
        return {edit->name, toFormValue(edit->value).value_or(FormRaw{}), number};
    const FormLine scanned = scanFormLine(model.contentOf(line));
    return {model.nameOf(line), readFormValue(scanned.detail, model.encoding), number};
}

std::optional<FormReference> referenceAt(const FormModel& model, FormModel::LineId line) {
    if (model.editOf(line) != nullptr || model.lines[line].kind != FormLine::Kind::Property) return std::nullopt;
    const FormLine scanned = scanFormLine(model.contentOf(line));
    if (!std::holds_alternative<ReferenceBytes>(scanFormValue(scanned.detail))) return std::nullopt;
    return std::get<FormReference>(readFormValue(scanned.detail, model.encoding));
}

std::string readReferencedText(const FormModel& model, const FormReference& reference) {
    const std::string name = toUtf8(reference.file);
    const auto file = model.resources->find(name);
    if (!file) throw FormFault{name + " is not there"};
    try {
        return readTextRecord(*file, reference.offset);
    } catch (const FormFault& fault) {
        throw FormFault{name + " " + fault.message};
    }
}

Variant readPropertyAs(const FormModel& model, const FormProperty& property, TypeTag type) {
    const auto fail = [&](const std::string& message) -> FormError {
        return {model.path, property.line, toUtf8(property.name) + message};
    };
    const bool wantsText = type == TypeTag::String || type == TypeTag::Any;
    if (wantsText && isTextReference(property.value)) {
        try {
            const std::string bytes = readReferencedText(model, std::get<FormReference>(property.value));
            return decodeRecord(bytes, model.encoding);
        } catch (const FormFault& fault) {
            throw fail(": " + fault.message);
        }
    }
    if (auto value = convertFormValue(property.value, type)) return *std::move(value);
    throw fail(" wants a value of type " + toUtf8(nameOf(type)) + ", not " + shownValue(property.value));
}

}  // namespace kel
