// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MEASUREMENT_H
#define MEASUREMENT_H

#include <benchmark/benchmark.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

/// A line of the table: what the product needs, against a yardstick.
struct Measurement
{
    const char *what;
    const char *unit; ///< "ns", "us" or "ms"; "MB" for the counter of this name
    double aim;       ///< the largest ratio of product to yardstick that is well
    int iterations;   ///< of those that say their time themselves; 0 lets the library choose
    std::function<void(benchmark::State &)> product;
    std::function<void(benchmark::State &)> yardstick;
};

/// Measures all, several times and in turns, and prints their lines of the table. The result is
/// that of main().
int printTable(int argc, char *argv[], const std::vector<Measurement> &measurements);

/// Times an action alone; what is around it in each iteration does not count.
template <typename Before, typename Action, typename After>
void timed(benchmark::State &state, Before before, Action action, After after, double parts = 1)
{
    for (auto _ : state) {
        before();
        const auto start = std::chrono::steady_clock::now();
        action();
        const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
        after();
        state.SetIterationTime(passed.count() / parts);
    }
}

#endif
