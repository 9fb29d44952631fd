#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>

#include "platform/win32/control/ControlWindow.h"
#include "tests/windows/widgets/Stage.h"

namespace kel::tests {

/// A control of a single widget on a host's window. It writes down what it is told, as a `Stage` does, and so do the
/// listeners of what derives from it.
class Scene : private win32::ControlWindowOwner {
public:
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    win32::ControlWindow& control() { return *Window_; }
    HostWindow& host() { return *Host_; }

    void placeOn(HWND host);
    /// The host's window goes, with all that is in it, and another one comes.
    void changeHost();

    /// What was told since the last call, separated by blanks.
    std::wstring takeLog();

    std::function<void()> onEnter;  ///< runs while the control is entered

protected:
    /// Pixels.
    Scene(int width, int height);
    ~Scene() = default;

    /// All of the control, twips.
    Rect whole() const;
    void tell(const std::wstring& what);

private:
    void holdOpen() override {}
    void letGo() override {}
    void focusEntered() override;
    void focusLeft() override { tell(L"exit"); }
    void passFocusOn() override {}
    void viewChanged() override {}
    void mnemonicChanged() override { tell(L"mnemonic"); }

    SIZE Size_;
    std::unique_ptr<HostWindow> Host_ = std::make_unique<HostWindow>();
    std::wstring Log_;
    std::unique_ptr<win32::ControlWindow> Window_;
};

}  // namespace kel::tests
