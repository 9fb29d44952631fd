#include <algorithm>
#include <array>

#include "platform/win32/home/Win32Region.h"
#include "platform/win32/ole/control/ControlParts.h"
#include "platform/win32/ole/control/OleControl.h"
#include "platform/win32/ole/pages/CategorizeProperties.h"

namespace kel::win32::ole {

namespace {

/// Hosts know those below zero by themselves.
constexpr std::array<PROPCAT, CategoryNames.size()> CategoryNumbers{-2, -5, -6, -7, -8, 1};

bool hasPage(const ClassModel& model, DesignPage page) {
    return std::any_of(model.members.begin(), model.members.end(),
                       [page](const MemberRow& row) { return row.isDesigned() && row.design.page == page; });
}

std::vector<GUID> pagesOf(const ClassModel& model) {
    std::vector<GUID> pages;
    for (const PageIdentity& identity : identities::Pages)
        if (hasPage(model, identity.page)) pages.push_back(toGuid(identity.coclass));
    return pages;
}

/// An array that the caller frees, and that is freed where it is not handed over.
template <class Counted, class Item>
class TaskArray {
public:
    explicit TaskArray(std::size_t count) : Items_(static_cast<Item*>(CoTaskMemAlloc(count * sizeof(Item)))) {
        if (Items_ == nullptr && count > 0) throw std::bad_alloc();
    }
    ~TaskArray() {
        if constexpr (std::is_pointer_v<Item>) std::for_each(Items_, Items_ + Count_, &CoTaskMemFree);
        CoTaskMemFree(Items_);
    }
    TaskArray(const TaskArray&) = delete;
    TaskArray& operator=(const TaskArray&) = delete;

    void add(Item item) { Items_[Count_++] = item; }
    Counted handOver() { return {static_cast<ULONG>(std::exchange(Count_, 0)), std::exchange(Items_, nullptr)}; }

private:
    Item* Items_;
    std::size_t Count_ = 0;
};

class DesignPart final : public ControlPart<ISpecifyPropertyPages, IPerPropertyBrowsing, ICategorizeProperties> {
public:
    using ControlPart::ControlPart;

    void* find(REFIID iid) override {
        return asOneOf<ISpecifyPropertyPages, IPerPropertyBrowsing, ICategorizeProperties>(iid, *this);
    }

    // ---- ISpecifyPropertyPages

    HRESULT STDMETHODCALLTYPE GetPages(CAUUID* pages) noexcept override {
        if (pages == nullptr) return E_POINTER;
        *pages = {};
        return guarded([&] {
            const std::vector<GUID> shown = pagesOf(Control_.model());
            TaskArray<CAUUID, GUID> found(shown.size());
            for (const GUID& page : shown) found.add(page);
            *pages = found.handOver();
        });
    }

    // ---- IPerPropertyBrowsing

    HRESULT STDMETHODCALLTYPE GetDisplayString(DISPID id, BSTR* text) noexcept override {
        if (text == nullptr) return E_POINTER;
        *text = nullptr;
        return guarded([&] {
            const MemberRow* const row = findMember(Control_.model(), id);
            if (row == nullptr) return DISP_E_MEMBERNOTFOUND;
            if (row->type != TypeTag::DaysFlag) return S_FALSE;
            Variant value;
            static_cast<void>(getMember(Control_.control(), *row, {}, value, systemRegion()));
            const auto index = static_cast<std::size_t>(std::get<std::int32_t>(value));
            if (index >= row->design.choices.size()) return S_FALSE;
            *text = makeBstr(row->design.choices[index]);
            return S_OK;
        });
    }
    /// A property whose value has a word or a line for it is edited where it stands.
    HRESULT STDMETHODCALLTYPE MapPropertyToPage(DISPID id, CLSID* page) noexcept override {
        if (page == nullptr) return E_POINTER;
        *page = GUID_NULL;
        const MemberRow* const row = findMember(Control_.model(), id);
        if (row == nullptr) return DISP_E_MEMBERNOTFOUND;
        const DesignFacts& facts = row->design;
        if (!row->isDesigned() || (facts.page == DesignPage::General && facts.linesWhere.empty()))
            return PERPROP_E_NOPAGEAVAILABLE;
        for (const PageIdentity& identity : identities::Pages)
            if (identity.page == facts.page) *page = toGuid(identity.coclass);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetPredefinedStrings(DISPID id, CALPOLESTR* texts, CADWORD* cookies) noexcept override {
        if (texts == nullptr || cookies == nullptr) return E_POINTER;
        *texts = {};
        *cookies = {};
        return guarded([&] {
            const MemberRow* const row = findMember(Control_.model(), id);
            if (row == nullptr) return DISP_E_MEMBERNOTFOUND;
            const auto& choices = row->design.choices;
            if (choices.empty()) return S_FALSE;
            TaskArray<CALPOLESTR, LPOLESTR> words(choices.size());
            TaskArray<CADWORD, DWORD> numbers(choices.size());
            for (std::size_t i = 0; i < choices.size(); ++i) {
                words.add(makeTaskText(choices[i]));
                numbers.add(static_cast<DWORD>(i));
            }
            *texts = words.handOver();
            *cookies = numbers.handOver();
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE GetPredefinedValue(DISPID id, DWORD cookie, VARIANT* value) noexcept override {
        if (value == nullptr) return E_POINTER;
        VariantInit(value);
        return guarded([&] {
            const MemberRow* const row = findMember(Control_.model(), id);
            if (row == nullptr) return DISP_E_MEMBERNOTFOUND;
            if (cookie >= row->design.choices.size()) return E_INVALIDARG;
            toAutomation(row->type == TypeTag::String ? Variant(std::u16string(row->design.choices[cookie]))
                                                      : Variant(static_cast<std::int32_t>(cookie)),
                         *value);
            return S_OK;
        });
    }

    // ---- ICategorizeProperties

    HRESULT STDMETHODCALLTYPE MapPropertyToCategory(DISPID id, PROPCAT* category) noexcept override {
        if (category == nullptr) return E_POINTER;
        const MemberRow* const row = findMember(Control_.model(), id);
        if (row == nullptr || row->isMethod) return DISP_E_MEMBERNOTFOUND;
        *category = CategoryNumbers[static_cast<std::size_t>(row->design.category)];
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetCategoryName(PROPCAT category, LCID /*locale*/, BSTR* name) noexcept override {
        if (name == nullptr) return E_POINTER;
        *name = nullptr;
        return guarded([&] {
            const auto* const found = std::find(CategoryNumbers.begin(), CategoryNumbers.end(), category);
            if (found == CategoryNumbers.end()) return E_INVALIDARG;
            *name = makeBstr(CategoryNames[static_cast<std::size_t>(found - CategoryNumbers.begin())]);
            return S_OK;
        });
    }
};

}  // namespace

HRESULT showProperties(OleControl& control, HWND parent) {
    const auto site = control.site().as<IOleControlSite>();
    if (site && site->ShowPropertyFrame() == S_OK) return S_OK;
    IUnknown* object = &control.outer();
    std::vector<GUID> pages = pagesOf(control.model());
    return OleCreatePropertyFrame(parent, 0, 0, wide(control.model().name).c_str(), 1, &object,
                                  static_cast<ULONG>(pages.size()), pages.data(), LOCALE_USER_DEFAULT, 0, nullptr);
}

std::unique_ptr<ControlInterfaces> makeDesignPart(OleControl& control) { return std::make_unique<DesignPart>(control); }

}  // namespace kel::win32::ole
