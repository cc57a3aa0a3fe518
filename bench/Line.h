// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef LINE_H
#define LINE_H

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>

/// The seconds that an action takes, on average of \a calls.
template <typename Action>
double seconds(int calls, Action action)
{
    const auto start = std::chrono::steady_clock::now();
    for (int call = 0; call < calls; ++call)
        action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count() / calls;
}

/// Prints a line of the table: \a sample is called for product (true) and yardstick in turns, and
/// the least of each counts, in \a unit after multiplication by \a scale. \a aim is the largest
/// good ratio, 0 for none.
inline void printLine(const char *what, const char *unit, double scale, double aim, int samples,
                      const std::function<double(bool)> &sample)
{
    double product = sample(true);
    double yardstick = sample(false);
    while (--samples > 0) {
        product = std::min(product, sample(true));
        yardstick = std::min(yardstick, sample(false));
    }
    std::printf("%-48s %9.1f %9.1f %-2s ", what, product * scale, yardstick * scale, unit);
    std::printf(yardstick > 0 ? "%6.2f" : "     -", product / yardstick);
    std::printf(aim > 0 ? " %6.2f  %s\n" : "      -\n", aim,
                product <= aim * yardstick ? "ok" : "missed");
}

#endif
