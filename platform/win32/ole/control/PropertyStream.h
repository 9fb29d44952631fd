#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "platform/win32/ole/automation/ValueBag.h"

/// The form in which streams and storages keep a control: a head with a mark, a version and the length of
/// what follows, then entries of name, type and value. Numbers are little-endian.
namespace kel::win32::ole {

using Bytes = std::vector<std::byte>;

inline constexpr std::size_t StreamHeadSize = 12;

Bytes encode(const std::vector<StoredValue>& values);

/// Length of the body after this head. Throws AutomationError when it is no head of ours.
std::size_t bodySize(std::span<const std::byte> head);

/// The entries of a body; those of an unknown type are passed over. Throws AutomationError when the body
/// is damaged.
std::vector<StoredValue> decode(std::span<const std::byte> body);

}  // namespace kel::win32::ole
