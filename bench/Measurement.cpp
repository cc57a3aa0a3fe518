// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Measurement.h"

#include <algorithm>
#include <cstdio>
#include <map>

namespace {

const int repetitions = 9;

/// Keeps what each repetition gave, by the name of its benchmark.
class Collector : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type != Run::RT_Iteration)
                continue;
            const auto megabytes = run.counters.find("MB");
            m_results[run.run_name.function_name].push_back(megabytes != run.counters.end()
                                                                ? megabytes->second.value
                                                                : run.GetAdjustedRealTime());
        }
    }

    /// The least one, since whatever else the machine does only ever adds; 0 where nothing was
    /// measured.
    double least(const std::string &name) const
    {
        const auto found = m_results.find(name);
        return found == m_results.end()
                   ? 0
                   : *std::min_element(found->second.begin(), found->second.end());
    }

private:
    std::map<std::string, std::vector<double>> m_results;
};

std::string name(const Measurement &measurement, const char *side)
{
    return measurement.what + std::string(": ") + side;
}

benchmark::TimeUnit unit(const std::string &name)
{
    return name == "ns"   ? benchmark::kNanosecond
           : name == "us" ? benchmark::kMicrosecond
                          : benchmark::kMillisecond;
}

} // namespace

int printTable(int argc, char *argv[], const std::vector<Measurement> &measurements)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    for (const Measurement &measurement : measurements) {
        for (const bool product : {true, false}) {
            auto *registered = benchmark::RegisterBenchmark(
                name(measurement, product ? "product" : "yardstick").c_str(),
                product ? measurement.product : measurement.yardstick);
            registered->Unit(unit(measurement.unit))->Repetitions(repetitions);
            if (measurement.iterations)
                registered->UseManualTime()->Iterations(measurement.iterations);
        }
    }
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    for (const Measurement &measurement : measurements) {
        const double product = collector.least(name(measurement, "product"));
        const double yardstick = collector.least(name(measurement, "yardstick"));
        if (yardstick <= 0)
            continue;
        const double ratio = product / yardstick;
        std::printf("%-48s %9.1f %9.1f %-2s %6.2f %6.2f  %s\n", measurement.what, product,
                    yardstick, measurement.unit, ratio, measurement.aim,
                    ratio <= measurement.aim ? "ok" : "missed");
    }
    return 0;
}
