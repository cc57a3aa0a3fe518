// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef HEAP_H
#define HEAP_H

/// The heap of a test that links diag_test_heap, counted exactly: caches and rounding of the
/// allocator are not in it. The sanitizers bring an allocator of their own, and then nothing is
/// counted.
namespace Heap {

/// The bytes asked for and not yet freed, by all libraries and threads.
long size();

} // namespace Heap

#endif
