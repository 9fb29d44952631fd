#pragma once

#include <memory>

#include "library/Dispatch.h"
#include "library/Runtime.h"
#include "platform/win32/ole/automation/DispatchCaller.h"
#include "platform/win32/ole/com/ComObject.h"

namespace kel::win32::ole {

/// Its conversions, as an object of their own.
class RuntimeDatesObject final : public LibraryObject,
                                 public AutomationObject,
                                 public std::enable_shared_from_this<RuntimeDatesObject> {
public:
    RuntimeDatesObject(Module& module, std::shared_ptr<RuntimeDates> dates)
        : Module_(module), Dates_(std::move(dates)) {}

    const ClassModel& model() const override;
    ComPtr<IDispatch> dispatch() override;

    double NumberFromValue(const Variant& value, std::int16_t decimals) {
        return Dates_->NumberFromValue(value, decimals);
    }
    double RoundNumber(double number, std::int16_t decimals) { return Dates_->RoundNumber(number, decimals); }
    Variant ParseDate(const Variant& text, const std::u16string& format, Date defaultDate, bool birthDay) {
        return Dates_->ParseDate(text, format, defaultDate, birthDay);
    }
    Date LastDayOfMonth(Date date) { return Dates_->LastDayOfMonth(date); }
    Variant ParseTime(const Variant& text) { return Dates_->ParseTime(text); }

private:
    Module& Module_;
    std::shared_ptr<RuntimeDates> Dates_;
};

/// The default run-time object with its members as rows, for late-bound hosts.
class RuntimeObject final : public LibraryObject {
public:
    RuntimeObject(Module& module, std::shared_ptr<Runtime> runtime) : Module_(module), Runtime_(std::move(runtime)) {}

    const ClassModel& model() const override;

    std::int32_t ColorDepth() { return Runtime_->ColorDepth(); }
    std::u16string DecimalSeparator() { return Runtime_->DecimalSeparator(); }
    std::int16_t DecimalDigits() { return Runtime_->DecimalDigits(); }
    std::u16string CaptionFontName() { return Runtime_->CaptionFontName(); }
    double CaptionFontSize() { return Runtime_->CaptionFontSize(); }
    std::u16string FieldFontName() { return Runtime_->FieldFontName(); }
    double FieldFontSize() { return Runtime_->FieldFontSize(); }
    void SendKey(std::int16_t keyCode) { Runtime_->SendKey(keyCode); }
    ObjectPtr RuntimeDates() { return std::make_shared<RuntimeDatesObject>(Module_, Runtime_->RuntimeDates()); }
    std::u16string ListAppend(const std::u16string& list, const std::u16string& item) {
        return Runtime_->ListAppend(list, item);
    }
    std::u16string ReadField(const std::u16string& text, std::int32_t& position, std::int16_t separator) {
        return Runtime_->ReadField(text, position, separator);
    }

private:
    Module& Module_;
    std::shared_ptr<Runtime> Runtime_;
};

}  // namespace kel::win32::ole
