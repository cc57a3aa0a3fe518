// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// In front of the C library's allocator, for the toolkit too.

#include "Heap.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstring>

namespace {

std::atomic<long> inUse{0};

} // namespace

long Heap::size()
{
    return inUse;
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)

#define REPLACEMENT extern "C" __attribute__((visibility("default")))

extern "C" void *__libc_memalign(size_t alignment, size_t size);
extern "C" void __libc_free(void *block);

namespace {

/// In front of each block.
struct alignas(std::max_align_t) Header
{
    void *allocated;
    size_t size;
};

Header *headerOf(void *block)
{
    return static_cast<Header *>(block) - 1;
}

} // namespace

REPLACEMENT void *memalign(size_t alignment, size_t size)
{
    const size_t offset = std::max(alignment, sizeof(Header));
    void *allocated = __libc_memalign(offset, offset + size);
    if (!allocated)
        return nullptr;
    void *block = static_cast<char *>(allocated) + offset;
    *headerOf(block) = {allocated, size};
    inUse += static_cast<long>(size);
    return block;
}

REPLACEMENT void *aligned_alloc(size_t alignment, size_t size)
{
    return memalign(alignment, size);
}

REPLACEMENT int posix_memalign(void **block, size_t alignment, size_t size)
{
    *block = memalign(alignment, size);
    return *block ? 0 : ENOMEM;
}

REPLACEMENT void *malloc(size_t size)
{
    return memalign(1, size);
}

REPLACEMENT void *calloc(size_t count, size_t size)
{
    size_t total;
    if (__builtin_mul_overflow(count, size, &total))
        return nullptr;
    void *block = malloc(total);
    return block ? std::memset(block, 0, total) : nullptr;
}

REPLACEMENT void free(void *block)
{
    if (!block)
        return;
    inUse -= static_cast<long>(headerOf(block)->size);
    __libc_free(headerOf(block)->allocated);
}

REPLACEMENT void *realloc(void *block, size_t size)
{
    void *moved = malloc(size);
    if (moved && block) {
        std::memcpy(moved, block, std::min(size, headerOf(block)->size));
        free(block);
    }
    return moved;
}

#endif
