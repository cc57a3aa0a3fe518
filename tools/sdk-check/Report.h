// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef REPORT_H
#define REPORT_H

#include <atomic>
#include <chrono>
#include <cstdint>
#include <vector>

/// What a child process found out, in memory that it shares with its parent.
class Report
{
public:
    /// A row of the table.
    struct Row
    {
        const char *name; ///< a literal
        char result[48];
        char findings[600];
        bool hasSucceeded;  ///< whether a call gave 0
        double longestCall; ///< in milliseconds, 0 for none
    };

    /// A step that is under way, on any thread. The text is a literal.
    struct Activity
    {
        std::atomic<const char *> what;
        std::atomic<int> row;
        std::atomic<int64_t> deadline;
    };

    enum
    {
        MaxRows = 8,
        MaxActivities = 16
    };

    Row rows[MaxRows];
    Activity activities[MaxActivities];
    std::atomic<bool> finished;

    /// The one report of the process and its children.
    static Report &instance();

    void start(const std::vector<const char *> &rowNames);
    /// Notes a finding once, behind the name of this thread's step where that is not the row's own.
    void fail(int row, const char *format, ...) __attribute__((format(printf, 3, 4)));
    void setResult(int row, const char *format, ...) __attribute__((format(printf, 3, 4)));
    /// Adds a result and the time of a call to those of the row.
    void addCall(int row, long result, double milliseconds);

private:
    Report() { start({}); }

    std::atomic_flag m_locked;
};

/// A call into the library under check, or another step that may crash or never end; while it lives
/// the parent watches it.
class Step
{
public:
    explicit Step(int row, const char *what, int secondsAtMost = 2);
    ~Step();
    Step(const Step &) = delete;
    Step &operator=(const Step &) = delete;

    /// The step was a call and has returned. Where the row is that of the called function, it takes
    /// the result and the time, without that in which the thread waited for a processor.
    void done(long result) const;

    bool isOfOwnRow() const;
    int row() const { return m_row; }
    const char *what() const { return m_what; }

    /// The innermost step of this thread, or null.
    static const Step *current();

private:
    int m_row;
    const char *m_what;
    const Step *m_outer;
    Report::Activity *m_activity = nullptr;
    std::chrono::steady_clock::time_point m_start;
    double m_waitedBefore;
};

/// In milliseconds, for deadlines.
int64_t now();

#endif
