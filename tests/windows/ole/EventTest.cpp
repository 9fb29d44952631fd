// Events and change reports, also to hosts that let go of everything while they are told.

#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"

using namespace kel;
using namespace kel::tests;

namespace {

constexpr DISPID CaptionMember = 0x6803000E;

}  // namespace

TEST(events_reach_their_sinks) {
    const auto field = makeText();
    EventSink own;
    EventSink plain(true);
    const DWORD cookie = adviseEvents(field.get(), &own);
    adviseEvents(field.get(), &plain);
    EXPECT_CODE(field->put_Text(Str(L"a")), S_OK);
    EXPECT_CODE(field->put_Text(Str(L"a")), S_OK);
    EXPECT(own.Heard == std::vector<DISPID>{ChangeId});
    EXPECT(plain.Heard == own.Heard);
    const GUID events = systemGuid(findIdentity(u"KelText")->events);
    EXPECT_CODE(unadvise(field.get(), events, cookie), S_OK);
    EXPECT_CODE(unadvise(field.get(), events, cookie), CONNECT_E_NOCONNECTION);
    EXPECT_CODE(field->put_Text(Str(L"b")), S_OK);
    EXPECT_EQ(own.Heard.size(), std::size_t{1});
    EXPECT_EQ(plain.Heard.size(), std::size_t{2});
    EXPECT_EQ(own.References, 1L);
}

TEST(events_are_silent_while_frozen) {
    const auto field = makeText();
    EventSink sink;
    adviseEvents(field.get(), &sink);
    const auto control = field.as<IOleControl>();
    EXPECT_CODE(control->FreezeEvents(TRUE), S_OK);
    EXPECT_CODE(field->put_Text(Str(L"a")), S_OK);
    EXPECT(sink.Heard.empty());
    EXPECT_CODE(control->FreezeEvents(FALSE), S_OK);
    EXPECT_CODE(field->put_Text(Str(L"b")), S_OK);
    EXPECT_EQ(sink.Heard.size(), std::size_t{1});
}

TEST(events_connection_points_are_listed) {
    const auto field = makeText();
    EventSink sink;
    adviseEvents(field.get(), &sink);
    Ref<IEnumConnectionPoints> points;
    EXPECT_CODE(field.as<IConnectionPointContainer>()->EnumConnectionPoints(points.receive()), S_OK);
    IConnectionPoint* found[3] = {};
    ULONG count = 0;
    EXPECT_CODE(points->Next(3, found, &count), S_FALSE);
    EXPECT_EQ(count, 2UL);
    Ref<IEnumConnections> connections;
    EXPECT_CODE(found[0]->EnumConnections(connections.receive()), S_OK);
    CONNECTDATA connection{};
    EXPECT_CODE(connections->Next(1, &connection, &count), S_OK);
    connection.pUnk->Release();
    EXPECT_CODE(connections->Next(1, &connection, &count), S_FALSE);
    found[0]->Release();
    found[1]->Release();
    connections.reset();
    EXPECT_EQ(sink.References, 2L);
}

TEST(events_may_let_go_of_the_control) {
    auto field = makeText();
    EventSink sink;
    adviseEvents(field.get(), &sink);
    _KelText* const raw = field.get();
    sink.Handler = [&field] { field.reset(); };
    EXPECT_CODE(raw->put_Text(Str(L"gone")), S_OK);
    EXPECT_EQ(sink.Heard.size(), std::size_t{1});
    EXPECT_EQ(sink.References, 1L);
}

TEST(events_may_put_the_property_again) {
    const auto field = makeText();
    EventSink sink;
    adviseEvents(field.get(), &sink);
    sink.Handler = [&] {
        if (sink.Heard.size() < 50) field->put_Text(Str(std::to_wstring(sink.Heard.size()).c_str()));
    };
    EXPECT_CODE(field->put_Text(Str(L"start")), S_OK);
    EXPECT_EQ(sink.Heard.size(), std::size_t{50});
    EXPECT_EQ(text(field.get()), std::wstring(L"49"));
}

TEST(reports_follow_the_setters) {
    Host host;
    const auto field = host.place();
    // What data is bound to is told of, and nothing to save.
    EXPECT_CODE(field->put_Text(Str(L"bound")), S_OK);
    EXPECT(host.Changed == std::vector<DISPID>{DISPID_VALUE});
    EXPECT_CODE(field.as<IPersistStreamInit>()->IsDirty(), S_FALSE);
    EXPECT_CODE(field->put_Caption(Str(L"Name")), S_OK);
    EXPECT_CODE(field->put_Caption(Str(L"Name")), S_OK);
    EXPECT((host.Changed == std::vector<DISPID>{DISPID_VALUE, CaptionMember}));
    EXPECT_CODE(field.as<IPersistStreamInit>()->IsDirty(), S_OK);
}

TEST(reports_ask_first_and_a_refusal_leaves_the_property) {
    Host host;
    const auto field = host.place();
    host.MayEdit = S_FALSE;
    EXPECT_CODE(field->put_CaptionWidth(500), S_FALSE);
    Var width(500L);
    EXPECT_CODE(put(field.get(), L"CaptionWidth", width.Value), S_FALSE);
    EXPECT_EQ(late(field.get(), L"CaptionWidth"), L"short 0");
    EXPECT_CODE(field->put_TextSaved(Str(L"free").address()), S_OK);
}
