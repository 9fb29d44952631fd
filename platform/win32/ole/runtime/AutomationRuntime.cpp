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

class AutomationDates final : public RuntimeDates {
public:
    explicit AutomationDates(ComPtr<IDispatch> object) : Members_(std::move(object)) {}

    double NumberFromValue(const Variant& value, std::int16_t decimals) override {
        std::array<Variant, 2> arguments{value, decimals};
        return as<double>(Members_.call(u"NumberFromValue", arguments));
    }
    double RoundNumber(double number, std::int16_t decimals) override {
        std::array<Variant, 2> arguments{number, decimals};
        return as<double>(Members_.call(u"RoundNumber", arguments));
    }
    Variant ParseDate(const Variant& text, const std::u16string& format, Date defaultDate, bool birthDay) override {
        std::array<Variant, 4> arguments{text, format, defaultDate, birthDay};
        return Members_.call(u"ParseDate", arguments);
    }
    Date LastDayOfMonth(Date date) override {
        std::array<Variant, 1> arguments{date};
        return as<Date>(Members_.call(u"LastDayOfMonth", arguments));
    }
    Variant ParseTime(const Variant& text) override {
        std::array<Variant, 1> arguments{text};
        return Members_.call(u"ParseTime", arguments);
    }

private:
    DispatchCaller Members_;
};

}  // namespace

std::int32_t AutomationRuntime::ColorDepth() { return as<std::int32_t>(Members_.get(u"ColorDepth")); }

std::u16string AutomationRuntime::DecimalSeparator() { return as<std::u16string>(Members_.get(u"DecimalSeparator")); }

std::int16_t AutomationRuntime::DecimalDigits() { return as<std::int16_t>(Members_.get(u"DecimalDigits")); }

std::u16string AutomationRuntime::CaptionFontName() { return as<std::u16string>(Members_.get(u"CaptionFontName")); }

double AutomationRuntime::CaptionFontSize() { return as<double>(Members_.get(u"CaptionFontSize")); }

std::u16string AutomationRuntime::FieldFontName() { return as<std::u16string>(Members_.get(u"FieldFontName")); }

double AutomationRuntime::FieldFontSize() { return as<double>(Members_.get(u"FieldFontSize")); }

void AutomationRuntime::SendKey(std::int16_t keyCode) {
    std::array<Variant, 1> arguments{keyCode};
    Members_.call(u"SendKey", arguments);
}

std::shared_ptr<kel::RuntimeDates> AutomationRuntime::RuntimeDates() {
    const auto object = std::dynamic_pointer_cast<AutomationObject>(as<ObjectPtr>(Members_.get(u"RuntimeDates")));
    if (!object) throw AutomationError(DISP_E_TYPEMISMATCH, "the run-time object's RuntimeDates is no object");
    return std::make_shared<AutomationDates>(object->dispatch());
}

std::u16string AutomationRuntime::ListAppend(std::u16string list, std::u16string_view item) {
    std::array<Variant, 2> arguments{std::move(list), std::u16string(item)};
    return as<std::u16string>(Members_.call(u"ListAppend", arguments));
}

std::u16string AutomationRuntime::ReadField(const std::u16string& text, std::int32_t& position,
                                            std::int16_t separator) {
    std::array<Variant, 3> arguments{text, position, separator};
    std::u16string field = as<std::u16string>(Members_.call(u"ReadField", arguments, 1));
    position = as<std::int32_t>(arguments[1]);
    return field;
}

}  // namespace kel::win32::ole
