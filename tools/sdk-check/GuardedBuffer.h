// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef GUARDEDBUFFER_H
#define GUARDEDBUFFER_H

#include <cstddef>

/// A buffer in a page of its own, between two pages that cannot be touched. It stays for the life
/// of the process.
class GuardedBuffer
{
public:
    enum Place
    {
        AtEnd,      ///< ends where the page behind it begins
        AtBeginning ///< begins where the page before it ends
    };

    explicit GuardedBuffer(const char *name);
    GuardedBuffer(const GuardedBuffer &) = delete;
    GuardedBuffer &operator=(const GuardedBuffer &) = delete;

    /// Fills the page with \a pattern and puts the buffer into it.
    void place(size_t size, Place place, unsigned char pattern);

    const char *name() const { return m_name; }
    size_t size() const { return m_size; }
    unsigned char *data() const { return m_data; }

    /// Whether all bytes of a part of the buffer are as place() left them.
    bool isUntouched(size_t offset, size_t size) const;
    /// Whether the bytes of the page before the buffer, and those behind it, are as they were.
    bool isUntouchedBefore() const;
    bool isUntouchedBehind() const;

    /// The buffer beside whose page the address lies, or null. *\a behind is whether it is behind.
    static const GuardedBuffer *find(const void *address, bool *behind);

private:
    bool isUntouched(const unsigned char *begin, const unsigned char *end) const;

    const char *m_name;
    unsigned char *m_page = nullptr;
    unsigned char *m_data = nullptr;
    size_t m_size = 0;
    unsigned char m_pattern = 0;
    const GuardedBuffer *m_next = nullptr;
};

#endif
