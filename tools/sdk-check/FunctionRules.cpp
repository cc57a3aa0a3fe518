// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "FunctionRules.h"

#include "Report.h"

#include <algorithm>
#include <cstring>
#include <thread>

namespace {

/// What buffers are filled with before a call: neither letters, digits nor likely numbers.
unsigned char patternFor(GuardedBuffer::Place place)
{
    return place == GuardedBuffer::AtEnd ? 0x81 : 0x93;
}

bool hasZero(const unsigned char *text, size_t size, size_t unit)
{
    const auto isZero = [](unsigned char byte) { return byte == 0; };
    for (const unsigned char *end = text + size; text + unit <= end; text += unit) {
        if (std::all_of(text, text + unit, isZero))
            return true;
    }
    return false;
}

} // namespace

Caller::Caller(const Sdk &sdk, const Shape &shape, int row, bool checksBuffers)
    : m_sdk(sdk), m_shape(shape), m_row(row), m_checksBuffers(checksBuffers)
{
    for (const Argument &argument : shape.arguments) {
        const bool isPointer =
            argument.kind == Argument::Out || argument.kind == Argument::EmptyText;
        m_buffers.push_back(isPointer ? std::make_unique<GuardedBuffer>(argument.name) : nullptr);
    }
    m_values.resize(m_buffers.size());
}

void Caller::run(GuardedBuffer::Place place)
{
    for (size_t call = 0; call < m_shape.calls(); ++call)
        callOnce(call, place);
}

void Caller::callOnce(size_t call, GuardedBuffer::Place place)
{
    for (size_t i = 0; i < m_values.size(); ++i) {
        const Argument &argument = m_shape.arguments[i];
        switch (argument.kind) {
        case Argument::Number:
            m_values[i].number = argument.valueAt(call);
            break;
        case Argument::Result:
            m_values[i].number = call > 0 ? m_firstResult : 0;
            break;
        case Argument::EmptyText:
            m_buffers[i]->place(1, place, 0);
            break;
        case Argument::Out:
            m_buffers[i]->place(argument.sizeAt(call), place, patternFor(place));
            break;
        }
        if (m_buffers[i])
            m_values[i].address = m_buffers[i]->data();
    }

    Step step(m_row, m_shape.function);
    const VELT_ERROR result = m_shape.call(m_sdk, m_values);
    step.done(result);
    if (m_shape.arguments[0].kind == Argument::Out)
        std::memcpy(&m_firstResult, m_buffers[0]->data(),
                    std::min(m_buffers[0]->size(), sizeof m_firstResult));

    for (size_t i = 0; i < m_values.size(); ++i) {
        if (m_buffers[i] && m_checksBuffers)
            checkBuffer(*m_buffers[i], m_shape.arguments[i], call, result);
    }
}

void Caller::checkBuffer(const GuardedBuffer &buffer, const Argument &argument, size_t call,
                         VELT_ERROR result) const
{
    Report &report = Report::instance();
    const auto size = static_cast<int>(buffer.size());
    if (!buffer.isUntouchedBefore())
        report.fail(m_row, "writes before %s (%d bytes)", buffer.name(), size);
    if (!buffer.isUntouchedBehind())
        report.fail(m_row, "writes past the end of %s (%d bytes)", buffer.name(), size);
    if (argument.kind == Argument::EmptyText || result != VELT_SUCCESS) {
        if (!buffer.isUntouched(0, buffer.size()))
            report.fail(m_row, "gives %ld and changes %s all the same", result, buffer.name());
        return;
    }
    for (const Field &field : argument.fieldsAt(call)) {
        const size_t last = field.offset + field.size - field.unit;
        if (buffer.isUntouched(field.offset, field.size)) {
            // UTF-16 is asked for in two calls, of which the first gives the length alone.
            if (field.unit != sizeof(uint16_t))
                report.fail(m_row, "gives 0 and leaves %s as it was", field.name);
        } else if (field.unit != 0 && buffer.isUntouched(last, field.unit) &&
                   !hasZero(buffer.data() + field.offset, field.size, field.unit)) {
            report.fail(m_row, "puts no zero behind the text of %s", field.name);
        }
    }
}

AllCallers::AllCallers(const Sdk &sdk, int row, bool checksBuffers)
{
    for (const Shape &shape : shapes()) {
        if (sdk.has(shape.function))
            m_callers.push_back(std::make_unique<Caller>(sdk, shape, row, checksBuffers));
    }
}

void AllCallers::run()
{
    for (size_t i = 0; i < m_callers.size(); ++i)
        runNext();
}

void AllCallers::runNext()
{
    if (m_callers.empty())
        return;
    Caller &caller = *m_callers[m_next++ % m_callers.size()];
    caller.run(GuardedBuffer::AtEnd);
    caller.run(GuardedBuffer::AtBeginning);
}

namespace FunctionRules {

void checkFunction(const Sdk &sdk, const Shape &shape)
{
    Caller caller(sdk, shape, 0, true);
    for (const auto place : {GuardedBuffer::AtEnd, GuardedBuffer::AtBeginning})
        caller.run(place);
}

void checkThreads(const Sdk &sdk)
{
    const int64_t end = now() + 2000;
    std::atomic<int> count{0};
    std::thread threads[4];
    for (std::thread &thread : threads)
        thread = std::thread([&] {
            AllCallers callers(sdk, 0, true);
            for (; now() < end; ++count)
                callers.runNext();
        });
    for (std::thread &thread : threads)
        thread.join();
    Report::instance().setResult(0, "%d calls", count.load());
}

} // namespace FunctionRules
