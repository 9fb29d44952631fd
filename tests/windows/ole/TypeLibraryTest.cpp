// The type library, read back by the system, says the same as the members' rows.

#include <algorithm>

#include "controls/Classes.h"
#include "platform/win32/base/WideText.h"
#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Client.h"

using namespace kel;
using namespace kel::tests;

namespace {

using win32::wide;

/// The type library that the registry names for a class's library.
Ref<ITypeLib> loadRegistered() {
    Ref<ITypeLib> types;
    EXPECT_CODE(LoadRegTypeLib(systemGuid(identities::TypeLibrary), 1, 4, LOCALE_NEUTRAL, types.receive()), S_OK);
    return types;
}

VARTYPE wantedType(TypeTag type) {
    switch (type) {
        case TypeTag::None: return VT_VOID;
        case TypeTag::String: return VT_BSTR;
        case TypeTag::Boolean: return VT_BOOL;
        case TypeTag::Integer16: return VT_I2;
        case TypeTag::Integer32: return VT_I4;
        case TypeTag::Double: return VT_R8;
        case TypeTag::Date: return VT_DATE;
        case TypeTag::Any: return VT_VARIANT;
        case TypeTag::DaysFlag: return VT_USERDEFINED;
        case TypeTag::Object: return VT_DISPATCH;
        case TypeTag::Strings: return VT_SAFEARRAY;
    }
    return VT_EMPTY;
}

/// A function of an interface, by its place in the function table.
class Function {
public:
    Function(ITypeInfo* info, UINT index) : Info_(info) { EXPECT_CODE(Info_->GetFuncDesc(index, &Desc_), S_OK); }
    ~Function() { Info_->ReleaseFuncDesc(Desc_); }
    Function(const Function&) = delete;
    Function& operator=(const Function&) = delete;

    const FUNCDESC* operator->() const { return Desc_; }

    std::vector<std::wstring> names() const {
        BSTR raw[8] = {};
        UINT count = 0;
        EXPECT_CODE(Info_->GetNames(Desc_->memid, raw, 8, &count), S_OK);
        std::vector<std::wstring> found;
        for (UINT i = 0; i < count; ++i) found.push_back(taken(raw[i]));
        return found;
    }
    std::wstring help() const {
        BSTR help = nullptr;
        EXPECT_CODE(Info_->GetDocumentation(Desc_->memid, nullptr, &help, nullptr, nullptr), S_OK);
        return taken(help);
    }

private:
    ITypeInfo* Info_;
    FUNCDESC* Desc_ = nullptr;
};

const TYPEDESC& pointedTo(const TYPEDESC& type) {
    EXPECT_EQ(type.vt, VT_PTR);
    return *type.lptdesc;
}

void expectArgument(const ELEMDESC& element, const ParameterRow& row, bool byReference) {
    const bool pointer = byReference || row.byReference || row.type == TypeTag::Strings;
    EXPECT_EQ((pointer ? pointedTo(element.tdesc) : element.tdesc).vt, wantedType(row.type));
    EXPECT_EQ((element.paramdesc.wParamFlags & PARAMFLAG_FIN) != 0, true);
    EXPECT_EQ((element.paramdesc.wParamFlags & PARAMFLAG_FOUT) != 0, pointer);
    EXPECT_EQ((element.paramdesc.wParamFlags & PARAMFLAG_FOPT) != 0, row.optional);
    EXPECT_EQ((element.paramdesc.wParamFlags & PARAMFLAG_FHASDEFAULT) != 0, row.optional);
}

void expectFunction(ITypeInfo* table, UINT index, const MemberRow& row, INVOKEKIND kind) {
    const Function function(table, index);
    const bool isPut = kind == INVOKE_PROPERTYPUT;
    EXPECT_EQ(function.names().at(0), wide(row.name));
    EXPECT_EQ(static_cast<long>(function->memid), static_cast<long>(row.id));
    EXPECT_EQ(function->invkind, kind);
    EXPECT_EQ(static_cast<std::size_t>(function->oVft), (7 + index) * sizeof(void*));
    EXPECT_EQ((function->wFuncFlags & FUNCFLAG_FHIDDEN) != 0, row.hidden);
    constexpr int Bindable = FUNCFLAG_FBINDABLE | FUNCFLAG_FREQUESTEDIT | FUNCFLAG_FDISPLAYBIND;
    EXPECT_EQ(function->wFuncFlags & Bindable, row.design.isBound ? Bindable : 0);
    EXPECT_EQ((function->wFuncFlags & FUNCFLAG_FDEFAULTBIND) != 0, row.design.isBound && row.id == DefaultMemberId);
    EXPECT_EQ(function.help(), wide(row.help));
    const auto parameters = row.parameters();
    const bool returns = !isPut && row.type != TypeTag::None;
    EXPECT_EQ(static_cast<std::size_t>(function->cParams), (isPut ? 1 : parameters.size()) + (returns ? 1 : 0));
    const ELEMDESC* elements = function->lprgelemdescParam;
    if (isPut) {
        expectArgument(elements[0], {.name = u"", .type = row.type}, row.putByReference);
        return;
    }
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        expectArgument(elements[i], parameters[i], false);
        EXPECT_EQ(function.names().at(i + 1), wide(parameters[i].name));
    }
    if (!returns) return;
    EXPECT_EQ(pointedTo(elements[parameters.size()].tdesc).vt, wantedType(row.type));
    EXPECT((elements[parameters.size()].paramdesc.wParamFlags & PARAMFLAG_FRETVAL) != 0);
}

/// The function-table half of a dual interface.
Ref<ITypeInfo> functionTable(ITypeInfo* dispatch) {
    HREFTYPE half = 0;
    Ref<ITypeInfo> table;
    EXPECT_CODE(dispatch->GetRefTypeOfImplType(static_cast<UINT>(-1), &half), S_OK);
    EXPECT_CODE(dispatch->GetRefTypeInfo(half, table.receive()), S_OK);
    return table;
}

WORD flagsOf(ITypeInfo* info) {
    TYPEATTR* attributes = nullptr;
    EXPECT_CODE(info->GetTypeAttr(&attributes), S_OK);
    const WORD flags = attributes->wTypeFlags;
    info->ReleaseTypeAttr(attributes);
    return flags;
}

}  // namespace

TEST(typelib_members_follow_the_rows) {
    const auto types = loadRegistered();
    for (const ClassModel* model : libraryClasses().all()) {
        Ref<ITypeInfo> dispatch;
        EXPECT_CODE(types->GetTypeInfoOfGuid(systemGuid(findIdentity(model->name)->dispatch), dispatch.receive()),
                    S_OK);
        const auto table = functionTable(dispatch.get());
        constexpr int Wanted = TYPEFLAG_FDUAL | TYPEFLAG_FHIDDEN | TYPEFLAG_FOLEAUTOMATION | TYPEFLAG_FNONEXTENSIBLE;
        EXPECT_EQ(flagsOf(table.get()) & Wanted, Wanted);
        UINT index = 0;
        for (const MemberRow& row : model->members) {
            if (row.get != nullptr) expectFunction(table.get(), index++, row, INVOKE_PROPERTYGET);
            if (row.put != nullptr) expectFunction(table.get(), index++, row, INVOKE_PROPERTYPUT);
            if (row.call != nullptr) expectFunction(table.get(), index++, row, INVOKE_FUNC);
        }
        TYPEATTR* attributes = nullptr;
        EXPECT_CODE(table->GetTypeAttr(&attributes), S_OK);
        const UINT count = attributes->cFuncs;
        table->ReleaseTypeAttr(attributes);
        EXPECT_EQ(count, index);
    }
}

TEST(typelib_events_follow_the_rows) {
    const auto types = loadRegistered();
    for (const ClassModel* model : libraryClasses().all()) {
        const ClassIdentity* identity = findIdentity(model->name);
        if (!identity->hasEvents()) continue;
        Ref<ITypeInfo> events;
        EXPECT_CODE(types->GetTypeInfoOfGuid(systemGuid(identity->events), events.receive()), S_OK);
        for (UINT i = 0; i < model->events.size(); ++i) {
            const Function function(events.get(), i);
            const EventRow& row = model->events[i];
            EXPECT_EQ(function.names().at(0), wide(row.name));
            EXPECT_EQ(static_cast<long>(function->memid), static_cast<long>(row.id));
            EXPECT_EQ(static_cast<std::size_t>(function->cParams), row.parameters.size());
            for (std::size_t p = 0; p < row.parameters.size(); ++p)
                expectArgument(function->lprgelemdescParam[p], row.parameters[p], false);
        }
    }
}

TEST(typelib_classes_and_enumeration) {
    const auto types = loadRegistered();
    TLIBATTR* library = nullptr;
    EXPECT_CODE(types->GetLibAttr(&library), S_OK);
    EXPECT_EQ(library->wMajorVerNum * 100 + library->wMinorVerNum, 104);
    EXPECT_EQ(library->syskind, sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32);
    EXPECT_EQ(library->wLibFlags & LIBFLAG_FCONTROL, LIBFLAG_FCONTROL);
    types->ReleaseTLibAttr(library);
    BSTR name = nullptr;
    EXPECT_CODE(types->GetDocumentation(-1, &name, nullptr, nullptr, nullptr), S_OK);
    EXPECT_EQ(taken(name), std::wstring(L"KelControls8"));
    for (const ClassModel* model : libraryClasses().all()) {
        const ClassIdentity* identity = findIdentity(model->name);
        Ref<ITypeInfo> coclass;
        EXPECT_CODE(types->GetTypeInfoOfGuid(systemGuid(identity->coclass), coclass.receive()), S_OK);
        EXPECT_EQ((flagsOf(coclass.get()) & TYPEFLAG_FCONTROL) != 0, model->isControl());
        INT flags = 0;
        EXPECT_CODE(coclass->GetImplTypeFlags(0, &flags), S_OK);
        EXPECT_EQ(flags, IMPLTYPEFLAG_FDEFAULT);
        if (!identity->hasEvents()) continue;
        EXPECT_CODE(coclass->GetImplTypeFlags(1, &flags), S_OK);
        EXPECT_EQ(flags, IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE);
    }
    Ref<ITypeInfo> days;
    EXPECT_CODE(types->GetTypeInfoOfGuid(systemGuid(identities::DaysFlag), days.receive()), S_OK);
    const wchar_t* const names[] = {L"Allow", L"FirstDay", L"LastDay", L"BirthDay"};
    for (UINT i = 0; i < 4; ++i) {
        VARDESC* constant = nullptr;
        EXPECT_CODE(days->GetVarDesc(i, &constant), S_OK);
        const long value = constant->lpvarValue->lVal;
        BSTR found = nullptr;
        EXPECT_CODE(days->GetDocumentation(constant->memid, &found, nullptr, nullptr, nullptr), S_OK);
        days->ReleaseVarDesc(constant);
        EXPECT_EQ(taken(found), std::wstring(names[i]));
        EXPECT_EQ(value, static_cast<long>(i));
    }
}

TEST(class_info_names_the_class_and_its_events) {
    const auto text = makeText();
    const auto provider = text.as<IProvideClassInfo2>();
    EXPECT(provider);
    Ref<ITypeInfo> info;
    EXPECT_CODE(provider->GetClassInfo(info.receive()), S_OK);
    BSTR name = nullptr;
    EXPECT_CODE(info->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr), S_OK);
    EXPECT_EQ(taken(name), std::wstring(L"KelText"));
    GUID events{};
    EXPECT_CODE(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
    EXPECT(IsEqualGUID(events, systemGuid(findIdentity(u"KelText")->events)));
    EXPECT_CODE(provider->GetGUID(99, &events), E_INVALIDARG);
    const auto handler = create(L"KelControls8.KelControlHandler").as<IProvideClassInfo2>();
    EXPECT_CODE(handler->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), E_INVALIDARG);
}
