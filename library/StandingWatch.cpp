#include "library/StandingWatch.h"

namespace kel {

namespace {

template <class T>
bool replace(std::optional<T>& known, T now) {
    if (!known || *known == now) return false;
    known = std::move(now);
    return true;
}

}  // namespace

void StandingWatch::follow(Aspect aspect, Control& control) {
    if (follows(aspect)) return;
    switch (aspect) {
        case Aspect::Value: Value_ = control.heldValue(); return;
        case Aspect::Valid: Valid_ = control.standing().valid; return;
        case Aspect::Changed: Changed_ = control.standing().changed; return;
    }
}

bool StandingWatch::follows(Aspect aspect) const {
    switch (aspect) {
        case Aspect::Value: return Value_.has_value();
        case Aspect::Valid: return Valid_.has_value();
        default: return Changed_.has_value();
    }
}

bool StandingWatch::hasChanged(Aspect aspect, Control& control) {
    if (!follows(aspect)) return false;
    switch (aspect) {
        case Aspect::Value: return replace(Value_, control.heldValue());
        case Aspect::Valid: return replace(Valid_, control.standing().valid);
        default: return replace(Changed_, control.standing().changed);
    }
}

}  // namespace kel
