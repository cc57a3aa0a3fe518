// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef FUNCTIONRULES_H
#define FUNCTIONRULES_H

#include "GuardedBuffer.h"
#include "Shapes.h"

#include <memory>

/// Calls one function with buffers of its own and notes what breaks the rules.
class Caller
{
public:
    /// What it finds goes to a row of the report. Crashes, hangs and guarded pages are found
    /// always, what else happens to the buffers if \a checksBuffers.
    Caller(const Sdk &sdk, const Shape &shape, int row, bool checksBuffers);

    /// Makes all calls of the function once, with the buffers in this place.
    void run(GuardedBuffer::Place place);

private:
    void callOnce(size_t call, GuardedBuffer::Place place);
    void checkBuffer(const GuardedBuffer &buffer, const Argument &argument, size_t call,
                     VELT_ERROR result) const;

    const Sdk &m_sdk;
    const Shape &m_shape;
    const int m_row;
    const bool m_checksBuffers;
    std::vector<std::unique_ptr<GuardedBuffer>> m_buffers; ///< null for numbers
    std::vector<Value> m_values;
    int32_t m_firstResult = 0;
};

/// Calls all functions that the library has.
class AllCallers
{
public:
    AllCallers(const Sdk &sdk, int row, bool checksBuffers);

    /// Makes all calls of all functions once.
    void run();
    /// Makes all calls of the next function, all functions taking turns.
    void runNext();

private:
    std::vector<std::unique_ptr<Caller>> m_callers;
    size_t m_next = 0;
};

namespace FunctionRules {

/// Checks one function, for row 0 of the report.
void checkFunction(const Sdk &sdk, const Shape &shape);

/// Calls all functions on four threads at once, for row 0 of the report.
void checkThreads(const Sdk &sdk);

} // namespace FunctionRules

#endif
