#include "platform/win32/ole/runtime/RuntimeObject.h"

#include "platform/win32/ole/automation/DispatchCaller.h"
#include "platform/win32/ole/automation/DispatchPart.h"

namespace kel::win32::ole {

namespace {

constexpr MemberRow DatesMembers[] = {
    method<&RuntimeDates::NumberFromValue>(u"NumberFromValue", 1, u"A value or a text as a rounded number")
        .arguments(u"Value", u"Decimals"),
    method<&RuntimeDates::RoundNumber>(u"RoundNumber", 2, u"A number rounded to some decimals")
        .arguments(u"Number", u"Decimals"),
    method<&RuntimeDates::ParseDate>(u"ParseDate", 3, u"A text as a date in a field's format, or Null")
        .arguments(u"Text", u"Format", u"DefaultDate", u"BirthDay"),
    method<&RuntimeDates::LastDayOfMonth>(u"LastDayOfMonth", 4, u"The last day of a date's month").arguments(u"Date"),
    method<&RuntimeDates::ParseTime>(u"ParseTime", 5, u"A text as a time, or Null").arguments(u"Text"),
};

constinit const ClassModel DatesModel{
    .name = u"RuntimeDates", .help = u"Conversions of numbers, dates and times", .members = DatesMembers};

/// The conversions, as an object of their own.
class DatesObject final : public Object, public AutomationObject {
public:
    DatesObject(Module& module, std::shared_ptr<RuntimeDates> dates) : Module_(module), Dates_(std::move(dates)) {}

    ComPtr<IDispatch> dispatch() override {
        ComPtr<IDispatch> made;
        giveNew(new DispatchObject(Module_, Dates_, DatesModel, nullptr), IID_IDispatch, made.receiveVoid());
        return made;
    }

private:
    Module& Module_;
    std::shared_ptr<RuntimeDates> Dates_;
};

class RuntimeObject final : public Object {
public:
    RuntimeObject(Module& module, std::shared_ptr<Runtime> runtime) : Module_(module), Runtime_(std::move(runtime)) {}

    std::int32_t ColorDepth() { return Runtime_->ColorDepth(); }
    std::u16string DecimalSeparator() { return Runtime_->DecimalSeparator(); }
    std::int16_t DecimalDigits() { return Runtime_->DecimalDigits(); }
    std::u16string CaptionFontName() { return Runtime_->CaptionFontName(); }
    double CaptionFontSize() { return Runtime_->CaptionFontSize(); }
    std::u16string FieldFontName() { return Runtime_->FieldFontName(); }
    double FieldFontSize() { return Runtime_->FieldFontSize(); }
    void SendKey(std::int16_t keyCode) { Runtime_->SendKey(keyCode); }
    ObjectPtr RuntimeDates() { return std::make_shared<DatesObject>(Module_, Runtime_->RuntimeDates()); }
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

constexpr MemberRow Members[] = {
    property<&RuntimeObject::ColorDepth>(u"ColorDepth", 1, u"Bits per pixel of the display"),
    property<&RuntimeObject::DecimalSeparator>(u"DecimalSeparator", 2, u"The region's decimal separator"),
    property<&RuntimeObject::DecimalDigits>(u"DecimalDigits", 3, u"The region's number of decimals"),
    property<&RuntimeObject::CaptionFontName>(u"CaptionFontName", 4, u"Font of captions"),
    property<&RuntimeObject::CaptionFontSize>(u"CaptionFontSize", 5, u"Its size in points"),
    property<&RuntimeObject::FieldFontName>(u"FieldFontName", 6, u"Font of fields"),
    property<&RuntimeObject::FieldFontSize>(u"FieldFontSize", 7, u"Its size in points"),
    method<&RuntimeObject::SendKey>(u"SendKey", 8, u"Presses a key as the user would").arguments(u"KeyCode"),
    method<&RuntimeObject::ListAppend>(u"ListAppend", 9, u"A list with one more item").arguments(u"List", u"Item"),
    method<&RuntimeObject::ReadField>(u"ReadField", 10, u"The next field of a list; Position moves on")
        .arguments(u"Text", u"Position", u"Separator"),
    property<&RuntimeObject::RuntimeDates>(u"RuntimeDates", 11, u"Conversions of numbers, dates and times"),
};

constinit const ClassModel RuntimeModel{
    .name = u"Runtime", .help = u"Regional settings, fonts and lists", .members = Members};

}  // namespace

ComObject* makeRuntimeObject(Module& module, std::shared_ptr<Runtime> runtime, IUnknown* outer) {
    return new DispatchObject(module, std::make_shared<RuntimeObject>(module, std::move(runtime)), RuntimeModel, outer);
}

}  // namespace kel::win32::ole
