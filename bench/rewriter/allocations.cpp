#include "allocations.h"

#include <cstdlib>
#include <new>

namespace {

thread_local std::size_t count = 0;

}  // namespace

std::size_t allocations() {
    return count;
}

// The linker sends the calls of malloc and realloc here (--wrap).
extern "C" {
void* __real_malloc(std::size_t size);                // NOLINT: the linker's names
void* __real_realloc(void* block, std::size_t size);  // NOLINT
void* __wrap_malloc(std::size_t size) {               // NOLINT
    ++count;
    return __real_malloc(size);
}
void* __wrap_realloc(void* block, std::size_t size) {  // NOLINT
    ++count;
    return __real_realloc(block, size);
}
}

void* operator new(std::size_t size) {
    ++count;
    if (void* block = __real_malloc(size)) {
        return block;
    }
    throw std::bad_alloc();
}
void operator delete(void* block) noexcept {
    free(block);
}
void operator delete(void* block, std::size_t /*size*/) noexcept {
    free(block);
}
