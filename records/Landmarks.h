#pragma once

#include <chrono>
#include <cstddef>
#include <utility>
#include <vector>

namespace kel::records {

/// How long one looks on at what is looked through a little at a time, while a person goes on keying in.
constexpr auto Slice = std::chrono::milliseconds(5);

/// Lets every second of the landmarks go where there have come to be many, so that they never take more memory than
/// 4,096 do. They then stand twice as far apart. `first`, 0 or 1, is the first that stays; the others keep their order.
/// True where some went.
template <typename Landmark>
bool thinned(std::vector<Landmark>& landmarks, std::size_t first) {
    constexpr std::size_t Most = 4096;
    if (landmarks.size() < Most) return false;
    for (std::size_t i = first; i < landmarks.size(); i += 2) landmarks[i / 2] = std::move(landmarks[i]);
    landmarks.erase(landmarks.begin() + static_cast<std::ptrdiff_t>((landmarks.size() + 1 - first) / 2),
                    landmarks.end());
    return true;
}

}  // namespace kel::records
