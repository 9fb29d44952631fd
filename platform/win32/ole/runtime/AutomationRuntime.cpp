#include "platform/win32/ole/runtime/AutomationRuntime.h"

#include <array>

#include "library/AutomationError.h"
#include "platform/win32/home/Win32Region.h"
#include "values/Coercion.h"

namespace kel::win32::ole {

namespace {

template <class T>
T as(const Variant& value) {
    T out{};
    switch (coerce(value, systemRegion(), out)) {
        case CoercionFault::None: return out;
        case CoercionFault::Overflow:
            throw AutomationError(DISP_E_OVERFLOW, "the run-time object gave too large a value");
        case CoercionFault::TypeMismatch: break;
    }
    throw AutomationError(DISP_E_TYPEMISMATCH, "the run-time object gave a value of another type");
}

template <class T, class... Arguments>
T call(const DispatchCaller& members, std::u16string_view name, Arguments... arguments) {
    std::array<Variant, sizeof...(Arguments)> values{std::move(arguments)...};
    return as<T>(members.call(name, values));
}

class AutomationDates final : public RuntimeDates {
public:
    explicit AutomationDates(ComPtr<IDispatch> object) : Members_(std::move(object)) {}

    double NumberFromValue(const Variant& value, std::int16_t decimals) override {
        return call<double>(Members_, u"NumberFromValue", value, decimals);
    }
    double RoundNumber(double number, std::int16_t decimals) override {
        return call<double>(Members_, u"RoundNumber", number, decimals);
    }
    Variant ParseDate(const Variant& text, const std::u16string& format, Date defaultDate, bool birthDay) override {
        return call<Variant>(Members_, u"ParseDate", text, format, defaultDate, birthDay);
    }
    Date LastDayOfMonth(Date date) override { return call<Date>(Members_, u"LastDayOfMonth", date); }
    Variant ParseTime(const Variant& text) override { return call<Variant>(Members_, u"ParseTime", text); }

    IDispatch* object() const { return Members_.object(); }

private:
    DispatchCaller Members_;
};

class AutomationRuntime final : public Runtime, public AutomationObject {
public:
    explicit AutomationRuntime(ComPtr<IDispatch> object) : Members_(std::move(object)) {}

    ComPtr<IDispatch> dispatch() override { return Members_.object(); }

    std::int32_t ColorDepth() override { return call<std::int32_t>(Members_, u"ColorDepth"); }
    std::u16string DecimalSeparator() override { return call<std::u16string>(Members_, u"DecimalSeparator"); }
    std::int16_t DecimalDigits() override { return call<std::int16_t>(Members_, u"DecimalDigits"); }
    std::u16string CaptionFontName() override { return call<std::u16string>(Members_, u"CaptionFontName"); }
    double CaptionFontSize() override { return usableFontSize(call<double>(Members_, u"CaptionFontSize")); }
    std::u16string FieldFontName() override { return call<std::u16string>(Members_, u"FieldFontName"); }
    double FieldFontSize() override { return usableFontSize(call<double>(Members_, u"FieldFontSize")); }
    void SendKey(std::int16_t keyCode) override { call<Variant>(Members_, u"SendKey", keyCode); }
    std::shared_ptr<kel::RuntimeDates> RuntimeDates() override {
        const auto object = std::dynamic_pointer_cast<AutomationObject>(call<ObjectPtr>(Members_, u"RuntimeDates"));
        if (!object) throw AutomationError(DISP_E_TYPEMISMATCH, "the run-time object's RuntimeDates is no object");
        ComPtr<IDispatch> dates = object->dispatch();
        if (!Dates_ || Dates_->object() != dates.get()) Dates_ = std::make_shared<AutomationDates>(std::move(dates));
        return Dates_;
    }
    std::u16string ListAppend(std::u16string list, std::u16string_view item) override {
        return call<std::u16string>(Members_, u"ListAppend", std::move(list), std::u16string(item));
    }
    std::u16string ReadField(const std::u16string& text, std::int32_t& position, std::int16_t separator) override {
        std::array<Variant, 3> arguments{text, position, separator};
        std::u16string field = as<std::u16string>(Members_.call(u"ReadField", arguments, 1));
        position = as<std::int32_t>(arguments[1]);
        return field;
    }

private:
    DispatchCaller Members_;
    std::shared_ptr<AutomationDates> Dates_;  ///< those that were asked for last
};

}  // namespace

std::shared_ptr<Runtime> automationRuntime(ComPtr<IDispatch> object) {
    return std::make_shared<AutomationRuntime>(std::move(object));
}

}  // namespace kel::win32::ole
