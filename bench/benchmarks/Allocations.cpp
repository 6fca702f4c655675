#include "bench/benchmarks/Allocations.h"

#include <utility>

// The C library's own, behind the names that this program takes over.
extern "C" {
void* __libc_malloc(size_t size);                 // NOLINT
void* __libc_calloc(size_t count, size_t size);   // NOLINT
void* __libc_realloc(void* memory, size_t size);  // NOLINT
}

namespace {

// All that is measured runs on one thread.
thread_local bool counting = true;
thread_local size_t allocations = 0;

void Count() {
    if (counting) ++allocations;
}

}  // namespace

size_t Allocations() { return allocations; }

Uncounted::Uncounted() : before_(std::exchange(counting, false)) {}
Uncounted::~Uncounted() { counting = before_; }

extern "C" {
void* malloc(size_t size) noexcept {
    Count();
    return __libc_malloc(size);
}
void* calloc(size_t count, size_t size) noexcept {
    Count();
    return __libc_calloc(count, size);
}
void* realloc(void* memory, size_t size) noexcept {
    Count();
    return __libc_realloc(memory, size);
}
}
