#include "forms/Describe.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "forms/ScriptValue.h"
#include "host/PropertyBag.h"
#include "values/Calendar.h"
#include "values/Text.h"

namespace kel {

namespace {

/// "-514" for the identifiers that the component model fixes, "0x6803000E" for the library's own.
std::string idText(std::int32_t id) {
    if (id > -1000 && id < 0x10000) return std::to_string(id);
    std::array<char, 11> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "0x%08X", static_cast<unsigned>(id));
    return buffer.data();
}

std::string access(const MemberRow& row) {
    if (row.isMethod) return "method";
    if (row.put == nullptr) return "read-only";
    return row.putByReference ? "read/write (put by reference)" : "read/write";
}

std::string typeText(const MemberRow& row) { return row.type == TypeTag::None ? "-" : toUtf8(nameOf(row.type)); }

std::string parameterText(std::span<const ParameterRow> parameters) {
    std::string text;
    for (const ParameterRow& parameter : parameters) {
        text += (text.empty() ? "" : ", ") + toUtf8(parameter.name) + ": " + toUtf8(nameOf(parameter.type));
        if (parameter.isPointer()) text += " (by reference)";
        if (parameter.optional) text += " (optional)";
    }
    return text;
}

/// As a script writes it; a date on day 0 is a time of day.
std::u16string scriptText(const PropertyDefault& value) {
    const auto* date = std::get_if<Date>(&value);
    return writeScriptValue(toVariant(value), date != nullptr && dayOf(*date) == Date{});
}

std::string defaultText(const PersistedRow& row) { return toUtf8(scriptText(row.readDefault)); }

std::string padded(std::string text, std::size_t width) {
    text.resize(std::max(width, text.size() + 1), ' ');
    return text;
}

std::string jsonText(std::u16string_view text) {
    std::string quoted = "\"";
    for (const char unit : toUtf8(text)) {
        if (unit == '"' || unit == '\\') quoted += '\\';
        quoted += unit;
    }
    return quoted + '"';
}

std::string jsonValue(const PropertyDefault& value) {
    if (const auto* text = std::get_if<std::u16string_view>(&value)) return jsonText(*text);
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "true" : "false";
    const std::u16string text = scriptText(value);
    if (std::holds_alternative<Date>(value)) return jsonText(std::u16string_view(text).substr(1, text.size() - 2));
    return toUtf8(text);
}

/// `[a, b]` of whatever `write` gives for each row.
template <class Rows, class Write>
std::string jsonArray(const Rows& rows, Write write) {
    std::string text = "[";
    for (const auto& row : rows) text += (text.size() == 1 ? "" : ", ") + write(row);
    return text + "]";
}

std::string jsonParameters(std::span<const ParameterRow> parameters) {
    return jsonArray(parameters, [](const ParameterRow& row) {
        return "{\"name\": " + jsonText(row.name) + ", \"type\": " + jsonText(nameOf(row.type)) +
               ", \"byReference\": " + (row.isPointer() ? "true" : "false") +
               ", \"optional\": " + (row.optional ? "true" : "false") + "}";
    });
}

std::string jsonMember(const MemberRow& row) {
    const char* kind = row.isMethod ? "method" : row.put == nullptr ? "get" : "get/put";
    return "\n    {\"name\": " + jsonText(row.name) + ", \"id\": " + std::to_string(row.id) + ", \"kind\": \"" + kind +
           "\", \"type\": " + jsonText(nameOf(row.type)) + ", \"hidden\": " + (row.hidden ? "true" : "false") +
           ", \"putByReference\": " + (row.putByReference ? "true" : "false") +
           ", \"parameters\": " + jsonParameters(row.parameters()) + ", \"help\": " + jsonText(row.help) + "}";
}

std::string jsonEvent(const EventRow& row) {
    return "\n    {\"name\": " + jsonText(row.name) + ", \"id\": " + std::to_string(row.id) +
           ", \"parameters\": " + jsonParameters(row.parameters) + ", \"help\": " + jsonText(row.help) + "}";
}

std::string jsonMessage(const MessageRow& row) {
    return "\n    {\"title\": " + jsonText(row.title) + ", \"text\": " + jsonText(row.text) +
           ", \"when\": " + jsonText(row.when) + "}";
}

std::string jsonPersisted(const PersistedRow& row) {
    return "\n    {\"name\": " + jsonText(row.name) + ", \"type\": " + jsonText(nameOf(row.type)) +
           ", \"default\": " + jsonValue(row.readDefault) + "}";
}

std::string jsonClass(const ClassModel& model) {
    return "\n{\"name\": " + jsonText(model.name) + ", \"help\": " + jsonText(model.help) +
           ", \"control\": " + (model.isControl() ? "true" : "false") +
           ",\n  \"members\": " + jsonArray(model.members, jsonMember) +
           ",\n  \"events\": " + jsonArray(model.events, jsonEvent) +
           ",\n  \"messages\": " + jsonArray(model.messages, jsonMessage) +
           ",\n  \"properties\": " + jsonArray(model.loaded, jsonPersisted) + "}";
}

std::string markdownMember(const MemberRow& row) {
    const std::string parameters = parameterText(row.parameters());
    return "| `" + toUtf8(row.name) + "` | " + access(row) + (row.hidden ? ", hidden" : "") + " | " + typeText(row) +
           " | " + (parameters.empty() ? "-" : parameters) + " | " + idText(row.id) + " | " +
           (row.isPersisted() ? "`" + defaultText(row.persisted) + "`" : "-") + " | " + toUtf8(row.help) + " |\n";
}

std::string markdownClass(const ClassModel& model) {
    std::string text = "\n## " + toUtf8(model.name) + "\n\n" + toUtf8(model.help) + ".\n\n";
    text += "| Member | Access | Type | Arguments | Identifier | Saved, default | What it is |\n";
    text += "|---|---|---|---|---|---|---|\n";
    for (const MemberRow& row : model.members) text += markdownMember(row);
    if (!model.messages.empty()) text += "\n| Message | Title | Told when |\n|---|---|---|\n";
    for (const MessageRow& row : model.messages)
        text += "| `" + toUtf8(row.text) + "` | " + (row.title.empty() ? "-" : toUtf8(row.title)) + " | " +
                toUtf8(row.when) + " |\n";
    if (model.events.empty()) return text;
    text += "\n| Event | Identifier | Arguments | Raised when |\n|---|---|---|---|\n";
    for (const EventRow& row : model.events) {
        const std::string parameters = parameterText(row.parameters);
        text += "| `" + toUtf8(row.name) + "` | " + std::to_string(row.id) + " | " +
                (parameters.empty() ? "-" : parameters) + " | " + toUtf8(row.help) + " |\n";
    }
    return text;
}

}  // namespace

std::string describeClass(const ClassModel& model) {
    std::string text = toUtf8(model.name) + ": " + toUtf8(model.help) + "\n\nMembers\n";
    for (const MemberRow& row : model.members) {
        const std::string parameters = parameterText(row.parameters());
        text += "  " + padded(toUtf8(row.name), 16) + padded(idText(row.id), 12) + padded(typeText(row), 16) +
                access(row) + (row.hidden ? ", hidden" : "") + (parameters.empty() ? "" : " (" + parameters + ")") +
                "\n" + std::string(18, ' ') + toUtf8(row.help) + "\n";
    }
    if (!model.events.empty()) text += "\nEvents\n";
    for (const EventRow& row : model.events) {
        const std::string parameters = parameterText(row.parameters);
        text += "  " + padded(toUtf8(row.name), 16) + padded(std::to_string(row.id), 12) + toUtf8(row.help) +
                (parameters.empty() ? "" : " (" + parameters + ")") + "\n";
    }
    if (!model.messages.empty()) text += "\nMessages\n";
    for (const MessageRow& row : model.messages)
        text += "  " + padded(toUtf8(row.title), 16) + "\"" + toUtf8(row.text) + "\"\n" + std::string(18, ' ') +
                toUtf8(row.when) + "\n";
    if (!model.loaded.empty()) text += "\nSaved properties and their defaults\n";
    for (const PersistedRow& row : model.loaded)
        text += "  " + padded(toUtf8(row.name), 16) + padded(toUtf8(nameOf(row.type)), 16) + defaultText(row) + "\n";
    return text;
}

std::string describeAsJson(const std::vector<const ClassModel*>& models) {
    return jsonArray(models, [](const ClassModel* model) { return jsonClass(*model); }) + "\n";
}

std::string describeAsMarkdown(const std::vector<const ClassModel*>& models) {
    std::string text = "# Reference\n\nMade from the library's own tables by `kelforms describe --markdown`.\n";
    for (const ClassModel* model : models) text += markdownClass(*model);
    return text;
}

}  // namespace kel
