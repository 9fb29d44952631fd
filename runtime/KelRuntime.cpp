#include "runtime/KelRuntime.h"

#include "runtime/Dates.h"
#include "runtime/ListString.h"
#include "runtime/Numbers.h"
#include "values/Calendar.h"

namespace kel {

namespace {

class DefaultDates final : public RuntimeDates {
public:
    explicit DefaultDates(RuntimeServices& services) : Services_(services) {}

    double NumberFromValue(const Variant& value, std::int16_t decimals) override {
        return numberFromValue(value, decimals, Services_.region());
    }
    double RoundNumber(double number, std::int16_t decimals) override { return roundNumber(number, decimals); }

    Variant ParseDate(const Variant& text, const std::u16string& format, Date defaultDate, bool birthDay) override {
        const TwoDigitYears years = birthDay ? TwoDigitYears::NotAfterDefault : TwoDigitYears::AnyTime;
        if (format != Format_.given()) Format_ = DateFormat(format);
        return dateFromValue(text, Format_, defaultDate, years, Services_.region());
    }
    Date LastDayOfMonth(Date date) override { return lastDayOfMonth(date); }
    Variant ParseTime(const Variant& text) override { return timeFromValue(text, Services_.region()); }

private:
    RuntimeServices& Services_;
    DateFormat Format_;  ///< the last one asked for
};

class DefaultRuntime final : public Runtime {
public:
    explicit DefaultRuntime(RuntimeServices& services)
        : Services_(services), Dates_(std::make_shared<DefaultDates>(services)) {}

    std::int32_t ColorDepth() override { return Services_.colorDepth(); }
    std::u16string DecimalSeparator() override { return Services_.region().DecimalSeparator; }
    std::int16_t DecimalDigits() override { return Services_.region().DecimalDigits; }
    std::u16string CaptionFontName() override { return Services_.captionFont().name; }
    double CaptionFontSize() override { return Services_.captionFont().size; }
    std::u16string FieldFontName() override { return Services_.fieldFont().name; }
    double FieldFontSize() override { return Services_.fieldFont().size; }
    void SendKey(std::int16_t keyCode) override { Services_.sendKey(keyCode); }

    std::shared_ptr<kel::RuntimeDates> RuntimeDates() override { return Dates_; }

    std::u16string ListAppend(std::u16string list, std::u16string_view item) override {
        appendListItem(list, item);
        return list;
    }
    std::u16string ReadField(const std::u16string& text, std::int32_t& position, std::int16_t separator) override {
        return readListField(text, position, static_cast<char16_t>(separator));
    }

private:
    RuntimeServices& Services_;
    std::shared_ptr<kel::RuntimeDates> Dates_;
};

}  // namespace

std::shared_ptr<Runtime> makeRuntime(RuntimeServices& services) { return std::make_shared<DefaultRuntime>(services); }

}  // namespace kel
