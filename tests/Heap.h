#pragma once

#include <cstddef>

/// What a test program takes from the heap. Only the program that links Heap.cpp counts.
namespace kel::test {

class HeapUse {
public:
    HeapUse();
    /// Taken since and not given back.
    std::size_t bytes() const;
    /// Times that something was taken since.
    std::size_t allocations() const;

private:
    std::size_t Bytes_;
    std::size_t Allocations_;
};

}  // namespace kel::test
