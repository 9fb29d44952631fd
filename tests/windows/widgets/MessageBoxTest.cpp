#include "platform/win32/base/MessageBox.h"

#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/MessageBoxHand.h"
#include "tests/windows/widgets/Stage.h"

/// Message boxes in front of a host's window.
namespace kel::tests {

TEST(message_box_stands_in_front_of_its_owner_and_is_no_change_of_focus) {
    HostWindow host;
    Stage stage;
    stage.placeOn(host.window());
    SetFocus(stage.edit());
    stage.takeLog();
    std::wstring title;
    HWND owner = nullptr;
    bool hostWaits = false;
    {
        const MessageBoxHand hand([&](HWND box) {
            title = textOf(box);
            owner = GetWindow(box, GW_OWNER);
            hostWaits = IsWindowEnabled(host.window()) == FALSE;
        });
        win32::showMessageBox(host.window(), u"Please enter a value.", 64, u"Invalid Value");
        EXPECT_EQ(hand.seen(), 1);
    }
    settle();
    EXPECT_EQ(title, L"Invalid Value");
    EXPECT(owner == host.window());
    EXPECT(hostWaits);
    EXPECT(IsWindowEnabled(host.window()));
    EXPECT(GetFocus() == stage.edit());
    EXPECT_EQ(stage.takeLog(), L"");
    SetFocus(host.button());
    EXPECT_EQ(stage.takeLog(), L"lost exit");
}

TEST(message_box_ends_with_its_owner) {
    Stage stage;
    HostWindow host;
    stage.placeOn(host.window());
    SetFocus(stage.edit());
    const MessageBoxHand hand([&](HWND /*box*/) { DestroyWindow(host.window()); });
    win32::showMessageBox(host.window(), u"prompt", 64, u"title");
    EXPECT_EQ(hand.seen(), 1);
    settle();
    stage.takeLog();
    stage.box().setText(u"still there");
    EXPECT_EQ(stage.takeLog(), L"change");
}

}  // namespace kel::tests
