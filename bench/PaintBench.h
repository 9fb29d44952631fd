#pragma once

#include <cstddef>

namespace kel::bench {

struct FormMemory {
    std::size_t ours = 0;
    std::size_t peers = 0;
};

/// What so many mixed fields take on the heap in a form that is shown, beside the same of plain Qt widgets.
FormMemory memoryOfForm(int fields, std::size_t (*heapBytes)());

}  // namespace kel::bench
