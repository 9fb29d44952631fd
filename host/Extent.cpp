#include "host/Extent.h"

#include <cmath>

namespace kel {

namespace {

constexpr std::int32_t HimetricPerInch = 2540;  ///< hundredths of a millimetre

/// Twips, and hundredths of a millimetre for their pixels.
constexpr TwipScale Himetric(TwipsPerInch, HimetricPerInch);

/// As hosts count it out, past the twips.
std::int32_t pixelsOf(std::int32_t himetric, const TwipScale& scale) {
    const double twips = static_cast<double>(himetric) * TwipsPerInch / HimetricPerInch;
    return static_cast<std::int32_t>(std::floor(scale.exactPixels(twips) + 0.5));
}

}  // namespace

std::int32_t Extent::Side::himetric() const { return Himetric.twips(Given) == Twips ? Given : Himetric.pixel(Twips); }

bool Extent::Side::fits(std::int32_t pixels, const TwipScale& scale) const {
    return pixels == scale.pixel(Twips) || pixels == pixelsOf(himetric(), scale);
}

std::int32_t Extent::Side::twipsIn(std::int32_t pixels, const TwipScale& scale) const {
    return fits(pixels, scale) ? Twips : scale.twips(pixels);
}

std::int32_t Extent::Side::pixels(const TwipScale& scale, std::int32_t shown) const {
    return fits(shown, scale) ? shown : scale.pixel(Twips);
}

void Extent::setTwips(Size twips) {
    Width_.Twips = twips.width;
    Height_.Twips = twips.height;
}

Size Extent::twipsOf(Size himetric) { return {Himetric.twips(himetric.width), Himetric.twips(himetric.height)}; }

void Extent::given(Size himetric) {
    Width_.Given = himetric.width;
    Height_.Given = himetric.height;
}

Size Extent::twipsIn(Size pixels, const TwipScale& scale) const {
    return {Width_.twipsIn(pixels.width, scale), Height_.twipsIn(pixels.height, scale)};
}

Size Extent::pixels(const TwipScale& scale, Size shown) const {
    return {Width_.pixels(scale, shown.width), Height_.pixels(scale, shown.height)};
}

}  // namespace kel
