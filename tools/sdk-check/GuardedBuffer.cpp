// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "GuardedBuffer.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace {

const size_t pageSize = static_cast<size_t>(sysconf(_SC_PAGESIZE));

/// All buffers; a signal handler reads the list.
std::atomic<const GuardedBuffer *> first{nullptr};

} // namespace

GuardedBuffer::GuardedBuffer(const char *name) : m_name(name)
{
    void *const pages = mmap(nullptr, 3 * pageSize, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (pages == MAP_FAILED ||
        mprotect(static_cast<char *>(pages) + pageSize, pageSize, PROT_READ | PROT_WRITE) != 0) {
        std::perror("diagnosis-sdk-check: guarded pages");
        std::abort();
    }
    m_page = static_cast<unsigned char *>(pages) + pageSize;
    m_next = first;
    while (!first.compare_exchange_weak(m_next, this)) {
    }
}

void GuardedBuffer::place(size_t size, Place place, unsigned char pattern)
{
    m_size = size;
    m_pattern = pattern;
    m_data = place == AtEnd ? m_page + pageSize - size : m_page;
    std::fill_n(m_page, pageSize, pattern);
}

bool GuardedBuffer::isUntouched(const unsigned char *begin, const unsigned char *end) const
{
    return std::all_of(begin, end, [this](unsigned char byte) { return byte == m_pattern; });
}

bool GuardedBuffer::isUntouched(size_t offset, size_t size) const
{
    return isUntouched(m_data + offset, m_data + offset + size);
}

bool GuardedBuffer::isUntouchedBefore() const
{
    return isUntouched(m_page, m_data);
}

bool GuardedBuffer::isUntouchedBehind() const
{
    return isUntouched(m_data + m_size, m_page + pageSize);
}

const GuardedBuffer *GuardedBuffer::find(const void *address, bool *behind)
{
    const auto *const byte = static_cast<const unsigned char *>(address);
    for (const GuardedBuffer *buffer = first; buffer; buffer = buffer->m_next) {
        *behind = byte >= buffer->m_page;
        if (byte >= buffer->m_page - pageSize && byte < buffer->m_page + 2 * pageSize)
            return buffer;
    }
    return nullptr;
}
