#include "values/RegionalSettings.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <iterator>
#include <memory>

#include "values/Text.h"

namespace kel {

namespace {

/// A region as plain constants; its settings are built when somebody first asks for them.
struct RegionData {
    std::u16string_view name;
    std::u16string_view decimalSeparator;
    std::u16string_view groupSeparator;
    std::u16string_view negativeSign;
    char32_t zeroDigit;
    std::uint8_t primaryGroup;
    std::uint8_t secondaryGroup;
    std::uint8_t minimumGroupingDigits;
    std::uint8_t firstDayOfWeek;
    std::u16string_view shortDateFormat;
    std::u16string_view longDateFormat;
    std::u16string_view timeFormat;
    std::u16string_view dateSeparator;
    std::u16string_view timeSeparator;
    std::u16string_view amMarker;
    std::u16string_view pmMarker;
    std::u16string_view monthNames;  ///< here and below, names are separated by ';'
    std::u16string_view abbreviatedMonthNames;
    std::u16string_view standaloneMonthNames;
    std::u16string_view weekdayNames;
    std::u16string_view abbreviatedWeekdayNames;
};

#include "values/RegionData.inc"

constexpr std::size_t RegionCount = std::size(Regions);

template <std::size_t Count>
void splitNames(std::u16string_view names, std::array<std::u16string, Count>& out) {
    for (std::u16string& name : out) {
        const std::size_t end = std::min(names.find(u';'), names.size());
        name = names.substr(0, end);
        names.remove_prefix(std::min(end + 1, names.size()));
    }
}

RegionalSettings settingsOf(const RegionData& data) {
    RegionalSettings region;
    region.Name = data.name;
    region.DecimalSeparator = data.decimalSeparator;
    region.GroupSeparator = data.groupSeparator;
    region.NegativeSign = data.negativeSign;
    region.ZeroDigit = data.zeroDigit;
    region.PrimaryGroup = data.primaryGroup;
    region.SecondaryGroup = data.secondaryGroup;
    region.MinimumGroupingDigits = data.minimumGroupingDigits;
    region.ShortDateFormat = data.shortDateFormat;
    region.LongDateFormat = data.longDateFormat;
    region.TimeFormat = data.timeFormat;
    region.DateSeparator = data.dateSeparator;
    region.TimeSeparator = data.timeSeparator;
    region.AmMarker = data.amMarker;
    region.PmMarker = data.pmMarker;
    splitNames(data.monthNames, region.MonthNames);
    splitNames(data.abbreviatedMonthNames, region.AbbreviatedMonthNames);
    splitNames(data.standaloneMonthNames, region.StandaloneMonthNames);
    splitNames(data.weekdayNames, region.WeekdayNames);
    splitNames(data.abbreviatedWeekdayNames, region.AbbreviatedWeekdayNames);
    region.FirstDayOfWeek = data.firstDayOfWeek;
    return region;
}

/// Each is built once, when somebody first asks for it, by whichever thread comes first.
class BuiltRegions {
public:
    BuiltRegions() = default;
    BuiltRegions(const BuiltRegions&) = delete;
    BuiltRegions& operator=(const BuiltRegions&) = delete;
    ~BuiltRegions() {
        for (const Slot& slot : Slots_) delete slot.load();
    }

    const RegionalSettings& at(std::size_t index) {
        Slot& slot = Slots_[index];
        if (const RegionalSettings* const there = slot.load(std::memory_order_acquire)) return *there;
        auto built = std::make_unique<const RegionalSettings>(settingsOf(Regions[index]));
        const RegionalSettings* there = nullptr;
        return slot.compare_exchange_strong(there, built.get(), std::memory_order_acq_rel) ? *built.release() : *there;
    }

private:
    using Slot = std::atomic<const RegionalSettings*>;

    std::array<Slot, RegionCount> Slots_{};
};

const RegionalSettings& builtRegion(std::size_t index) {
    static BuiltRegions Built;
    return Built.at(index);
}

constexpr char16_t toNameUnit(char16_t unit) { return unit == u'_' ? u'-' : toLowerAscii(unit); }

bool isSameName(std::u16string_view left, std::u16string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char16_t a, char16_t b) { return toNameUnit(a) == toNameUnit(b); });
}

constexpr std::size_t indexOf(std::u16string_view name) {
    std::size_t index = 0;
    while (index < RegionCount && Regions[index].name != name) ++index;
    return index;
}

}  // namespace

const RegionalSettings* findRegion(std::u16string_view name) {
    const auto found = std::find_if(std::begin(Regions), std::end(Regions),
                                    [name](const RegionData& region) { return isSameName(region.name, name); });
    if (found == std::end(Regions)) return nullptr;
    return &builtRegion(static_cast<std::size_t>(found - std::begin(Regions)));
}

std::vector<std::u16string_view> regionNames() {
    std::vector<std::u16string_view> names;
    names.reserve(RegionCount);
    for (const RegionData& region : Regions) names.push_back(region.name);
    return names;
}

const RegionalSettings& defaultRegion() {
    constexpr std::size_t Index = indexOf(u"en-GB");
    static_assert(Index < RegionCount);
    return builtRegion(Index);
}

}  // namespace kel
