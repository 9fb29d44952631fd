#pragma once

#include <cstdint>

namespace kel {

/// Raises a counter while it lives, so that somebody's own doings do not answer themselves.
class DepthGuard {
public:
    explicit DepthGuard(std::int16_t& depth) : Depth_(depth) { ++Depth_; }
    ~DepthGuard() { --Depth_; }
    DepthGuard(const DepthGuard&) = delete;
    DepthGuard& operator=(const DepthGuard&) = delete;

private:
    std::int16_t& Depth_;
};

}  // namespace kel
