#include "common/FieldFrame.h"

namespace kel {

void setCaptionFont(const ControlHost& host, TextualWidget& widget) {
    const auto runtime = runtimeFor(host);
    widget.setFont(runtime->CaptionFontName(), usableFontSize(runtime->CaptionFontSize()));
}

void setFieldFont(const ControlHost& host, TextualWidget& widget) {
    const auto runtime = runtimeFor(host);
    widget.setFont(runtime->FieldFontName(), usableFontSize(runtime->FieldFontSize()));
}

std::shared_ptr<Runtime> runtimeFor(const ControlHost& host) {
    const SharedSettings& settings = host.settings;
    return settings.Runtime ? settings.Runtime : settings.makeDefaultRuntime();
}

std::shared_ptr<RuntimeDates> runtimeDates(const ControlHost& host) { return runtimeFor(host)->RuntimeDates(); }

void moveFocusOn(const ControlHost& host) { runtimeFor(host)->SendKey(keys::Tab); }

}  // namespace kel
