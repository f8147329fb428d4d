#include "sweep/allocations.h"

#include <cstdlib>
#include <new>
#include <utility>

namespace sweep_test {
namespace {

std::size_t count = 0;
std::size_t failing = 0;

}  // namespace

std::size_t CountAllocations() {
    return std::exchange(count, 0);
}

void FailAllocation(std::size_t n) {
    count = 0;
    failing = n;
}

void* Allocate(std::size_t size) {
    if (++count == failing) throw std::bad_alloc();
    if (void* block = std::malloc(size == 0 ? 1 : size)) return block;
    throw std::bad_alloc();
}

}  // namespace sweep_test

// The sanitizer has forms of its own, so each is replaced.
void* operator new(std::size_t size) {
    return sweep_test::Allocate(size);
}
void* operator new[](std::size_t size) {
    return sweep_test::Allocate(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    try {
        return sweep_test::Allocate(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
void operator delete(void* block) noexcept {
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}
void operator delete(void* block, const std::nothrow_t&) noexcept {
    std::free(block);
}
void operator delete[](void* block) noexcept {
    std::free(block);
}
void operator delete[](void* block, std::size_t) noexcept {
    std::free(block);
}
