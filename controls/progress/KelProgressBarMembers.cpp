#include "controls/progress/KelProgressBar.h"

namespace kel {

namespace {

constexpr MemberRow KelProgressBarMembers[] = {
    method<&KelProgressBar::Clear>(u"Clear", 0x60030004, u"Wipes the bar and its text"),
    property<&KelProgressBar::get_Enabled, &KelProgressBar::put_Enabled>(u"Enabled", 0x68030003,
                                                                         u"The control is enabled"),
    property<&KelProgressBar::get_Max, &KelProgressBar::put_Max>(u"Max", 0x68030002, u"Last value of the job")
        .saved(100)
        .in(Category::Data),
    property<&KelProgressBar::get_Min, &KelProgressBar::put_Min>(u"Min", 0x68030001, u"First value of the job")
        .saved(1)
        .beforeReading(u"Max")
        .beforeWriting(u"Max")
        .in(Category::Data),
    method<&KelProgressBar::Refresh>(u"Refresh", 0x60030005, u"Repaints the bar"),
    property<&KelProgressBar::get_ShowTime, &KelProgressBar::put_ShowTime>(u"ShowTime", 0x68030000,
                                                                           u"The time left stands after the percentage")
        .saved(true)
        .in(Category::Appearance),
    method<&KelProgressBar::Start>(u"Start", 0x60030006, u"Begins a job: the time counts from here"),
    property<&KelProgressBar::get_Value, &KelProgressBar::put_Value>(
        u"Value", DefaultMemberId, u"How far the job is, within Min and Max; setting it moves the bar"),
};

constexpr MessageRow KelProgressBarMessages[] = {Percentage, SecondsRemaining, MinutesRemaining};

}  // namespace

constinit const ClassModel KelProgressBarModel{
    .name = u"KelProgressBar",
    .help = u"Progress bar with the percentage and an estimate of the time left",
    .members = KelProgressBarMembers,
    .messages = KelProgressBarMessages,
    .makeControl = &makeControl<KelProgressBar>,
    .takesFocus = false,
};

const ClassModel& KelProgressBar::model() const { return KelProgressBarModel; }

}  // namespace kel
