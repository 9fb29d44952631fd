#pragma once

#include <utility>

namespace kel {

/// Whether the Tab key moves the focus at this moment. There is one for all windows of a home.
class TabKey {
public:
    bool isHeld() const { return Held_; }

    /// Says so while it lives.
    class Scope {
    public:
        Scope(TabKey& key, bool held) : Key_(key), Before_(std::exchange(key.Held_, held)) {}
        ~Scope() { Key_.Held_ = Before_; }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        TabKey& Key_;
        bool Before_;
    };

private:
    bool Held_ = false;
};

}  // namespace kel
