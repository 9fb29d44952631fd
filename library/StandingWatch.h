#pragma once

#include <optional>

#include "library/Control.h"

namespace kel {

/// What somebody who follows a control knows of it, so that he is told of what differs and nothing else. What nobody
/// follows is not even looked at: whether a text is valid may be some work with every key.
class StandingWatch {
public:
    enum class Aspect : std::uint8_t { Value, Valid, Changed };

    /// From now on: as it is at this moment is known.
    void follow(Aspect aspect, Control& control);
    bool follows(Aspect aspect) const;
    /// Whether what is followed differs from what is known; it is known from then on.
    bool hasChanged(Aspect aspect, Control& control);

private:
    std::optional<Variant> Value_;
    std::optional<bool> Valid_;
    std::optional<bool> Changed_;
};

}  // namespace kel
