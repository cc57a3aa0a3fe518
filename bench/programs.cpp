// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// Start and memory of the whole program. This one has no toolkit, so that the measured programs
// share none of its memory.

#include "Measurement.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <fstream>

namespace {

typedef std::vector<const char *> Command;

/// A program from its start until its dialog has been painted; it is killed at the end.
class Program
{
public:
    explicit Program(const Command &command)
    {
        int ends[2];
        if (pipe(ends) != 0)
            std::abort();
        std::vector<char *> arguments;
        for (const char *argument : command)
            arguments.push_back(const_cast<char *>(argument));
        arguments.push_back(nullptr);
        m_id = fork();
        if (m_id == 0) {
            setenv("LD_PRELOAD", BENCH_SHOWN, 1);
            setenv("DIAG_SHOWN", std::to_string(ends[1]).c_str(), 1);
            close(ends[0]);
            execv(arguments[0], arguments.data());
            _exit(1);
        }
        close(ends[1]);
        m_shown = ends[0];
    }
    ~Program()
    {
        kill(m_id, SIGKILL);
        waitpid(m_id, nullptr, 0);
        close(m_shown);
    }
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// False where the program has ended without a dialog.
    bool waitUntilShown() const
    {
        char byte;
        return read(m_shown, &byte, 1) == 1;
    }

    /// Proportional set size: shared pages count by their share.
    double megabytes() const
    {
        std::ifstream memory("/proc/" + std::to_string(m_id) + "/smaps_rollup");
        std::string word;
        while (memory >> word && word != "Pss:")
            ;
        double kilobytes = 0;
        memory >> kilobytes;
        return kilobytes / 1024;
    }

private:
    pid_t m_id;
    int m_shown;
};

std::function<void(benchmark::State &)> start(const Command &command)
{
    return [=](benchmark::State &state) {
        for (auto _ : state) {
            const auto begin = std::chrono::steady_clock::now();
            const Program program(command);
            if (!program.waitUntilShown())
                state.SkipWithError("the program shows no dialog");
            const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begin;
            state.SetIterationTime(passed.count());
        }
    };
}

std::function<void(benchmark::State &)> memory(const Command &command)
{
    return [=](benchmark::State &state) {
        for (auto _ : state) {
            const Program program(command);
            if (!program.waitUntilShown())
                state.SkipWithError("the program shows no dialog");
            state.SetIterationTime(1);
            state.counters["MB"] = program.megabytes();
        }
    };
}

} // namespace

int main(int argc, char *argv[])
{
    const Command host = {BENCH_HOST, "--modem", "wcdma", "--open"};
    const Command bare = {BENCH_BARE};
    return printTable(
        argc, argv,
        {{"start of diagnosis-host to a filled window", "ms", 1.25, 3, start(host), start(bare)},
         {"memory (PSS) of that", "MB", 1.15, 1, memory(host), memory(bare)}});
}
