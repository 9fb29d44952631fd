// The check field and the progress bar in a host.

#include <windows.h>

#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"

using namespace kel;
using namespace kel::tests;

namespace {

Ref<_KelProgressBar> makeBar() { return create(L"KelControls8.KelProgressBar").as<_KelProgressBar>(); }

}  // namespace

TEST(check_mnemonic_focuses_and_toggles) {
    Host host;
    const auto field = host.place(create(L"KelControls8.KelCheck").as<_KelCheck>());
    EXPECT_CODE(field.as<IPersistStreamInit>()->InitNew(), S_OK);
    EXPECT_CODE(field->put_Caption(Str(L"I &agree")), S_OK);
    EXPECT_CODE(host.verb(OLEIVERB_INPLACEACTIVATE), S_OK);
    const auto control = field.as<IOleControl>();
    CONTROLINFO info{};
    info.cb = sizeof info;
    EXPECT_CODE(control->GetControlInfo(&info), S_OK);
    EXPECT(info.cAccel > 0);
    MSG message{};
    message.message = WM_SYSCHAR;
    message.wParam = L'a';
    EXPECT_CODE(control->OnMnemonic(&message), S_OK);
    EXPECT(GetFocus() == widgetIn(host.window()));
    EXPECT_EQ(late(field.get(), L"Value"), L"bool True");
    EXPECT_CODE(field->put_Caption(Str(L"Agreed")), S_OK);
    EXPECT_CODE(control->GetControlInfo(&info), S_OK);
    EXPECT_EQ(info.cAccel, 0);
}

TEST(progress_is_left_out_of_the_tab_order) {
    DWORD bar = 0, box = 0;
    EXPECT_CODE(makeBar().as<IOleObject>()->GetMiscStatus(DVASPECT_CONTENT, &bar), S_OK);
    EXPECT_CODE(create(L"KelControls8.KelCheck").as<IOleObject>()->GetMiscStatus(DVASPECT_CONTENT, &box), S_OK);
    EXPECT_EQ(bar & OLEMISC_NOUIACTIVATE, static_cast<DWORD>(OLEMISC_NOUIACTIVATE));
    EXPECT_EQ(box & OLEMISC_NOUIACTIVATE, 0UL);
}

TEST(progress_has_an_event_interface_without_events) {
    const auto bar = makeBar();
    EventSink sink(false, u"KelProgressBar");
    EXPECT(adviseEvents(bar.get(), &sink, u"KelProgressBar") != 0);
    EXPECT_CODE(bar->put_Value(50), S_OK);
    EXPECT(sink.Heard.empty());
}
