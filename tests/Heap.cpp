#include "tests/Heap.h"

#include <malloc.h>

#include <cstdlib>
#include <new>

namespace {
std::size_t Bytes = 0;
std::size_t Allocations = 0;
}  // namespace

void* operator new(std::size_t size) {
    void* const taken = std::malloc(size);
    if (taken == nullptr) throw std::bad_alloc();
    Bytes += malloc_usable_size(taken);
    ++Allocations;
    return taken;
}

void operator delete(void* given) noexcept {
    Bytes -= malloc_usable_size(given);
    std::free(given);
}

void operator delete(void* given, std::size_t) noexcept { operator delete(given); }

namespace kel::test {

HeapUse::HeapUse() : Bytes_(Bytes), Allocations_(Allocations) {}

std::size_t HeapUse::bytes() const { return Bytes - Bytes_; }

std::size_t HeapUse::allocations() const { return Allocations - Allocations_; }

}  // namespace kel::test
