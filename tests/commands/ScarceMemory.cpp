#include "commands/ScarceMemory.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

constexpr long Plenty = -1;
constexpr long HasFailed = -2;

long allocationsLeft = Plenty;

void* Allocate(std::size_t size) {
    if (allocationsLeft == 0) {
        allocationsLeft = HasFailed;
        throw std::bad_alloc();
    }
    allocationsLeft -= allocationsLeft > 0 ? 1 : 0;
    void* const memory = std::malloc(size > 0 ? size : 1);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

} // namespace

ScarceMemory::ScarceMemory(long before) {
    allocationsLeft = before;
}

ScarceMemory::~ScarceMemory() {
    allocationsLeft = Plenty;
}

bool ScarceMemory::End() {
    const bool hasFailed = allocationsLeft == HasFailed;
    allocationsLeft = Plenty;
    return hasFailed;
}

// Those of the whole program. The sanitizer has forms of its own for what is not here.
void* operator new(std::size_t size) {
    return Allocate(size);
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    try {
        return Allocate(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}
