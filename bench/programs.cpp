// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// What the whole program costs. No Qt is in here, of which the measured programs would share
// memory.

#include "Line.h"

#include <csignal>
#include <err.h>
#include <fcntl.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// What awk prints of a file of the kernel.
double number(const char *script, const std::string &file)
{
    double number = 0;
    FILE *const output = popen(("awk '" + std::string(script) + "' " + file).c_str(), "r");
    if (!output || std::fscanf(output, "%lf", &number) != 1)
        errx(1, "%s tells no number", file.c_str());
    pclose(output);
    return number;
}

double megabytes(const std::string &process)
{
    return number("/^Pss:/ { print $2 / 1024 }", process + "/smaps_rollup");
}

double wakeUps(const std::string &process)
{
    const auto sleeps = [&] {
        return number("/^voluntary/ { sum += $2 } END { print sum }", process + "/task/*/status");
    };
    sleep(2); // what the start has left to do
    const double before = sleeps();
    sleep(10);
    return sleeps() - before;
}

/// Runs a program until it has painted a dialog or ends. The seconds, or \a figure of it then.
double run(const char *const *command, double (*figure)(const std::string &) = nullptr)
{
    int output[2];
    pid_t id;
    if (pipe2(output, O_CLOEXEC) != 0)
        err(1, "pipe2");
    const double passed = seconds(1, [&] {
        id = fork();
        if (id == 0) {
            setenv("LD_PRELOAD", BENCH_SHOWN, 1);
            dup2(output[1], STDOUT_FILENO);
            execv(command[0], const_cast<char *const *>(command));
            _exit(1);
        }
        close(output[1]);
        char text[4096];
        while (read(output[0], text, sizeof text) > 0)
            ;
    });
    const double result = figure ? figure("/proc/" + std::to_string(id)) : passed;
    int status;
    kill(id, SIGKILL);
    if (waitpid(id, &status, 0) != id || (status != 0 && status != SIGKILL))
        errx(1, "%s fails", command[0]);
    close(output[0]);
    return result;
}

} // namespace

int main()
{
    const char *const host[] = {BENCH_HOST, "--modem", "wcdma", "--open", nullptr};
    const char *const report[] = {BENCH_HOST, "--modem", "wcdma", "--report", nullptr};
    const char *const bare[] = {BENCH_BARE, nullptr};
    const char *const bareToEnd[] = {BENCH_BARE, "--end", nullptr};
    printLine("start of diagnosis-host to a filled window", "ms", 1e3, 1.25, 100,
              [&](bool product) { return run(product ? host : bare); });
    printLine("--report, from start to end", "ms", 1e3, 0, 100,
              [&](bool product) { return run(product ? report : bareToEnd); });
    printLine("memory (PSS) of the filled window", "MB", 1, 1.12, 10,
              [&](bool product) { return run(product ? host : bare, megabytes); });
    printLine("wake-ups in 10 s of the idle window", "", 1, 0, 2,
              [&](bool product) { return run(product ? host : bare, wakeUps); });
}
