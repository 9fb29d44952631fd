#pragma once

#include <memory>

namespace kel::qt {

class ControlSite;

/// While a control runs code that it knows nothing of: a handler of its host, the loop of a message box. Such code
/// may destroy the control's widget, and then comes back to the control.
class ForeignCode {
public:
    ForeignCode();
    ~ForeignCode();
    ForeignCode(const ForeignCode&) = delete;
    ForeignCode& operator=(const ForeignCode&) = delete;
};

/// Destroys a control whose widget goes: at once, or as soon as all that foreign code may come back to has
/// returned. Until then it lives unseen, and its host hears nothing of it.
void retire(std::unique_ptr<ControlSite> site);

}  // namespace kel::qt
