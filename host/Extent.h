#pragma once

#include <cstdint>

#include "host/Geometry.h"
#include "host/TwipScale.h"

namespace kel {

/// The size of a control whose host counts it in hundredths of a millimetre, shows it in pixels and saves it, while the
/// control itself counts in twips. What the host gave comes back to the last digit, and a rectangle on the screen that
/// is the size as near as pixels go changes nothing: else each showing would round the rounded size again.
class Extent {
public:
    explicit Extent(Size twips) : Width_(twips.width), Height_(twips.height) {}

    Size twips() const { return {Width_.Twips, Height_.Twips}; }
    void setTwips(Size twips);

    Size himetric() const { return {Width_.himetric(), Height_.himetric()}; }
    /// What it comes to in twips.
    static Size twipsOf(Size himetric);
    /// From now on this is what comes back as long as the twips are these.
    void given(Size himetric);

    /// What it would be in a rectangle of so many pixels.
    Size twipsIn(Size pixels, const TwipScale& scale) const;
    /// How many pixels it takes: those of `shown` where they fit.
    Size pixels(const TwipScale& scale, Size shown = {-1, -1}) const;

private:
    struct Side {
        explicit Side(std::int32_t twips) : Twips(twips) {}
        std::int32_t himetric() const;
        bool fits(std::int32_t pixels, const TwipScale& scale) const;
        std::int32_t twipsIn(std::int32_t pixels, const TwipScale& scale) const;
        std::int32_t pixels(const TwipScale& scale, std::int32_t shown) const;

        std::int32_t Twips;
        std::int32_t Given = 0;
    };

    Side Width_;
    Side Height_;
};

}  // namespace kel
