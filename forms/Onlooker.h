#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "forms/Home.h"

namespace kel {

/// What is to be seen of a window that a home keeps in memory. Where something stands is counted from the corner of
/// the rectangle beside it.
struct Scene {
    FormWindow& window;
    WindowSpec description;
    std::vector<std::pair<PlacedControl*, Rect>> controls{};
    std::vector<std::pair<ForeignBlock, Rect>> blocks{};
};

/// Somebody in front of such windows, who works them by their hands. This one does not look.
class Onlooker {
public:
    virtual ~Onlooker() = default;

    /// A hand has done what it was to do, or a long job has come further: anything may look different. The scene lasts
    /// as long as its window.
    virtual void see(const Scene& /*scene*/) {}
    /// Hands over what the person does to the window that was seen last, until there is no more.
    virtual void runUntilClosed() {}
    virtual void messageBox(std::u16string_view /*prompt*/, std::u16string_view /*title*/) {}
    virtual void beep() {}
};

}  // namespace kel
