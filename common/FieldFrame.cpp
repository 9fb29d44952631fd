#include "common/FieldFrame.h"

#include <utility>

namespace kel {

namespace {

void setFont(const ControlHost& host, TextualWidget& widget, std::u16string name, double size) {
    FontFace face{.name = std::move(name), .size = usableFontSize(size)};
    host.container.completeFont(face);
    widget.setFont(face.name, face.size);
}

}  // namespace

void setCaptionFont(const ControlHost& host, TextualWidget& widget) {
    const auto runtime = runtimeFor(host);
    setFont(host, widget, runtime->CaptionFontName(), runtime->CaptionFontSize());
}

void setFieldFont(const ControlHost& host, TextualWidget& widget) {
    const auto runtime = runtimeFor(host);
    setFont(host, widget, runtime->FieldFontName(), runtime->FieldFontSize());
}

std::shared_ptr<Runtime> runtimeFor(const ControlHost& host) {
    const SharedSettings& settings = host.settings;
    if (auto regional = settings.runtimeOf(host.region)) return regional;
    return settings.Runtime ? settings.Runtime : settings.makeDefaultRuntime();
}

std::shared_ptr<RuntimeDates> runtimeDates(const ControlHost& host) { return runtimeFor(host)->RuntimeDates(); }

void moveFocusOn(const ControlHost& host) {
    runtimeFor(host)->SendKey(keys::Tab);
    host.container.finished();
}

}  // namespace kel
