#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace kel {

/// An error that an object of the host raises while the library calls it (a run-time object without a
/// service, say). It passes through the controls unchanged and stops at a platform's edge.
class AutomationError : public std::runtime_error {
public:
    AutomationError(std::int32_t code, const std::string& description) : std::runtime_error(description), Code_(code) {}

    /// The host's own error number; on Windows an HRESULT.
    std::int32_t code() const { return Code_; }

private:
    std::int32_t Code_;
};

/// Code of "the object has no member of this name", as automation knows it.
inline constexpr std::int32_t UnknownNameCode = static_cast<std::int32_t>(0x80020006);

}  // namespace kel
