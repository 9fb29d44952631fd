#include "platform/win32/ole/runtime/RuntimeObject.h"

#include "platform/win32/ole/automation/DispatchPart.h"

namespace kel::win32::ole {

namespace {

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

constexpr MemberRow DatesMembers[] = {
    method<&RuntimeDatesObject::NumberFromValue>(u"NumberFromValue", 1, u"A value or a text as a rounded number")
        .arguments(u"Value", u"Decimals"),
    method<&RuntimeDatesObject::RoundNumber>(u"RoundNumber", 2, u"A number rounded to some decimals")
        .arguments(u"Number", u"Decimals"),
    method<&RuntimeDatesObject::ParseDate>(u"ParseDate", 3, u"A text as a date in a field's format, or Null")
        .arguments(u"Text", u"Format", u"DefaultDate", u"BirthDay"),
    method<&RuntimeDatesObject::LastDayOfMonth>(u"LastDayOfMonth", 4, u"The last day of a date's month")
        .arguments(u"Date"),
    method<&RuntimeDatesObject::ParseTime>(u"ParseTime", 5, u"A text as a time, or Null").arguments(u"Text"),
};

constinit const ClassModel DatesModel{
    .name = u"RuntimeDates", .help = u"Conversions of numbers, dates and times", .members = DatesMembers};

/// The conversions as hosts hold them.
class DatesComObject final : public ComObject {
public:
    DatesComObject(Module& module, std::shared_ptr<RuntimeDatesObject> dates)
        : ComObject(module, nullptr), Dates_(std::move(dates)), Dispatch_(*this, *Dates_) {}

protected:
    void* find(REFIID iid) override { return asOneOf<IDispatch>(iid, Dispatch_); }

private:
    std::shared_ptr<RuntimeDatesObject> Dates_;
    DispatchPart Dispatch_;
};

constinit const ClassModel RuntimeModel{
    .name = u"Runtime", .help = u"Regional settings, fonts and lists", .members = Members};

}  // namespace

const ClassModel& RuntimeObject::model() const { return RuntimeModel; }

const ClassModel& RuntimeDatesObject::model() const { return DatesModel; }

ComPtr<IDispatch> RuntimeDatesObject::dispatch() {
    auto* const made = new DatesComObject(Module_, shared_from_this());
    auto found = ComPtr<IDispatch>::of(&made->inner());
    made->inner().Release();
    return found;
}

}  // namespace kel::win32::ole
