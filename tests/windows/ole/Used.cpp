#include "tests/windows/ole/Used.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <span>

#include "controls/Classes.h"
#include "tests/windows/ole/Client.h"
#include "values/Text.h"

namespace kel::tests {

namespace {

std::set<std::string>& lines() {
    static std::set<std::string> Used;
    return Used;
}

void use(std::u16string_view className, const char* how, std::u16string_view name) {
    lines().insert(toUtf8(className) + " " + how + " " + toUtf8(name));
}

/// The row whose `key` is `name`, whatever its case.
template <class Rows, class Row>
void useRow(std::u16string_view className, Rows ClassModel::*rows, std::u16string_view Row::*key, const char* how,
            const std::wstring& name) {
    const ClassModel* const model = libraryClasses().find(className);
    if (model == nullptr) return;
    for (const Row& row : model->*rows)
        if (equalsIgnoringCase(row.*key, std::u16string(name.begin(), name.end()))) use(className, how, row.name);
}

}  // namespace

std::u16string classOf(IDispatch* object) {
    Ref<ITypeInfo> info;
    BSTR name = nullptr;
    if (FAILED(object->GetTypeInfo(0, LOCALE_NEUTRAL, info.receive())) || !info) return {};
    if (FAILED(info->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr))) return {};
    const std::wstring interfaceName = taken(name);
    return {interfaceName.begin() + (interfaceName.starts_with(L"_") ? 1 : 0), interfaceName.end()};
}

void useMember(std::u16string_view className, const wchar_t* name, WORD flags) {
    const char* const how = (flags & DISPATCH_METHOD) != 0        ? "call"
                            : (flags & DISPATCH_PROPERTYGET) != 0 ? "get"
                                                                  : "put";
    useRow(className, &ClassModel::members, &MemberRow::name, how, name);
}

void useEvent(std::u16string_view className, DISPID id) {
    const ClassModel* const model = libraryClasses().find(className);
    if (model == nullptr) return;
    for (const EventRow& row : model->events)
        if (row.id == id) use(className, "event", row.name);
}

void useLoaded(std::u16string_view className, const std::wstring& name) {
    useRow(className, &ClassModel::loaded, &PersistedRow::readName, "load", name);
}

void useSaved(std::u16string_view className, const std::wstring& name) {
    useRow(className, &ClassModel::saved, &PersistedRow::name, "save", name);
}

void writeUsed() {
    const wchar_t* const path = _wgetenv(L"KEL_USED");
    if (path == nullptr || *path == L'\0') return;
    std::ofstream file(std::filesystem::path(path), std::ios::binary);
    for (const std::string& line : lines()) file << line << '\n';
}

}  // namespace kel::tests
