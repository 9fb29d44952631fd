#include "tests/windows/widgets/Scene.h"

#include <utility>

namespace kel::tests {

Scene::Scene(int width, int height) : Size_{width, height} {
    win32::ControlWindowOwner& owner = *this;
    Window_ = win32::makeControlWindow(owner, machine());
}

void Scene::placeOn(HWND host) {
    const RECT place{10, 10, 10 + Size_.cx, 10 + Size_.cy};
    Window_->setParent(host);
    Window_->place(place, place);
    Window_->setVisible(true);
    settle();
}

void Scene::changeHost() {
    Host_.reset();
    Host_ = std::make_unique<HostWindow>();
    placeOn(Host_->window());
}

std::wstring Scene::takeLog() { return std::exchange(Log_, {}); }

Rect Scene::whole() const {
    const std::int32_t twips = machine().twipsPerPixel();
    return {0, 0, static_cast<std::int32_t>(Size_.cx) * twips, static_cast<std::int32_t>(Size_.cy) * twips};
}

void Scene::tell(const std::wstring& what) { Log_ += (Log_.empty() ? L"" : L" ") + what; }

void Scene::focusEntered() {
    tell(L"enter");
    if (onEnter) onEnter();
}

}  // namespace kel::tests
