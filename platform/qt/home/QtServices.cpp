#include "platform/qt/home/QtServices.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLocale>
#include <QScreen>

#include "common/FieldLayout.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/base/TwipGrid.h"
#include "platform/qt/home/KeySender.h"
#include "platform/qt/home/QtRegion.h"

namespace kel::qt {

namespace {

constexpr std::int32_t TwipsPerPoint = 20;
constexpr std::int32_t TwipsPerPixel = 15;
constexpr double SmallSize = 8;    ///< points
constexpr int FieldFrame = 2 * 2;  ///< pixels above and below a field's text

/// The application's own font where a line of it fits a field and a caption, else its family in a small size.
FontChoice fittingFont() {
    const QFont font = QApplication::font();
    const QFontMetrics metrics(font);
    const TwipGrid grid(TwipsPerPixel);
    const bool fits =
        metrics.height() <= grid.pixel(FieldHeight) - FieldFrame && metrics.height() <= grid.pixel(CaptionHeight);
    const double points =
        font.pointSizeF() > 0 ? font.pointSizeF() : static_cast<double>(grid.twips(font.pixelSize())) / TwipsPerPoint;
    return {std::u16string(viewOf(font.family())), fits ? points : SmallSize};
}

}  // namespace

QtServices::QtServices(const HomeOptions& options)
    : Region_(options.region != nullptr ? *options.region : regionFromLocale(QLocale())),
      ColorDepth_(options.colorDepth),
      Font_(fittingFont()) {}

std::int32_t QtServices::colorDepth() const {
    return ColorDepth_ > 0 ? ColorDepth_ : QGuiApplication::primaryScreen()->depth();
}

void QtServices::sendKey(std::int16_t keyCode) { sendKeyLater({keyCode, 0, NoModifier}); }

}  // namespace kel::qt
