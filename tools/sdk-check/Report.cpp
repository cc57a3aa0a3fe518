// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Report.h"

#include <sys/mman.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <thread>

namespace {

thread_local const Step *currentStep = nullptr;

/// How long this thread was ready to run and had no processor, in milliseconds; 0 where the system
/// does not tell.
double waited()
{
    long long nanoseconds = 0;
    if (FILE *const file = std::fopen("/proc/thread-self/schedstat", "re")) {
        if (std::fscanf(file, "%*s %lld", &nanoseconds) != 1)
            nanoseconds = 0;
        std::fclose(file);
    }
    return static_cast<double>(nanoseconds) / 1e6;
}

} // namespace

Report &Report::instance()
{
    static Report *const report = [] {
        void *const memory = mmap(nullptr, sizeof(Report), PROT_READ | PROT_WRITE,
                                  MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED) {
            std::perror("diagnosis-sdk-check: shared memory");
            std::abort();
        }
        return new (memory) Report;
    }();
    return *report;
}

void Report::start(const std::vector<const char *> &rowNames)
{
    for (size_t row = 0; row < MaxRows; ++row) {
        rows[row] = {};
        rows[row].name = row < rowNames.size() ? rowNames[row] : "";
    }
    for (Activity &activity : activities) {
        activity.deadline = INT64_MAX;
        activity.what = nullptr;
    }
    finished = false;
    m_locked.clear();
}

void Report::fail(int row, const char *format, ...)
{
    char text[300];
    int length = 0;
    const Step *const step = Step::current();
    if (step && !step->isOfOwnRow())
        length = std::snprintf(text, sizeof text, "%s ", step->what());
    va_list arguments;
    va_start(arguments, format);
    // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): it is
    std::vsnprintf(text + length, sizeof text - length, format, arguments);
    va_end(arguments);
    while (m_locked.test_and_set())
        std::this_thread::yield();
    char *const findings = rows[row].findings;
    const size_t end = std::strlen(findings);
    if (!std::strstr(findings, text))
        std::snprintf(findings + end, sizeof rows[row].findings - end, "%s%s", end ? "; " : "",
                      text);
    m_locked.clear();
}

void Report::setResult(int row, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): it is
    std::vsnprintf(rows[row].result, sizeof rows[row].result, format, arguments);
    va_end(arguments);
}

void Report::addCall(int row, long result, double milliseconds)
{
    char *const results = rows[row].result;
    // With blanks around it, so that 1 is not found in 10.
    char text[24];
    std::snprintf(text, sizeof text, " %ld ", result);
    char known[sizeof rows[row].result + 2];
    std::snprintf(known, sizeof known, " %s ", results);
    const size_t length = std::strlen(results);
    if (!std::strstr(known, text))
        std::snprintf(results + length, sizeof rows[row].result - length, "%s%ld",
                      length ? " " : "", result);
    rows[row].hasSucceeded |= result == 0;
    rows[row].longestCall = std::max(rows[row].longestCall, milliseconds);
}

Step::Step(int row, const char *what, int secondsAtMost)
    : m_row(row), m_what(what), m_outer(currentStep)
{
    currentStep = this;
    for (Report::Activity &activity : Report::instance().activities) {
        const char *none = nullptr;
        if (activity.what.compare_exchange_strong(none, what)) {
            activity.row = row;
            activity.deadline = now() + 1000 * secondsAtMost;
            m_activity = &activity;
            break;
        }
    }
    m_waitedBefore = isOfOwnRow() ? waited() : 0;
    m_start = std::chrono::steady_clock::now();
}

Step::~Step()
{
    if (m_activity) {
        m_activity->deadline = INT64_MAX;
        m_activity->what = nullptr;
    }
    currentStep = m_outer;
}

void Step::done(long result) const
{
    const std::chrono::duration<double, std::milli> time =
        std::chrono::steady_clock::now() - m_start;
    if (isOfOwnRow())
        Report::instance().addCall(m_row, result,
                                   std::max(0.0, time.count() - (waited() - m_waitedBefore)));
}

bool Step::isOfOwnRow() const
{
    return std::strcmp(m_what, Report::instance().rows[m_row].name) == 0;
}

const Step *Step::current()
{
    return currentStep;
}

int64_t now()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}
