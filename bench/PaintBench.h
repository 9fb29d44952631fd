#pragma once

#include <cstddef>

namespace kel::bench {

struct FormMemory {
    std::size_t ours = 0;
    std::size_t peers = 0;
};

/// What a shown form of so many mixed fields takes on the heap, beside the same form of plain Qt widgets.
FormMemory memoryOfForm(int fields, std::size_t (*heapBytes)());

}  // namespace kel::bench
