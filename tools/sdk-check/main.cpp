// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

/// Checks a library against the contract of the device SDK, each function and rule in a child
/// process of its own.

#include "CallbackRules.h"
#include "FunctionRules.h"
#include "Report.h"

#include <dlfcn.h>
#include <getopt.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>
#include <thread>

namespace {

const char usage[] =
    "Usage: diagnosis-sdk-check [OPTION]... LIBRARY\n"
    "Checks a library of the device SDK against the rules of its headers (VeltTypes.h): that it "
    "has\n"
    "the 37 functions, with C linkage, and of each function that it\n"
    "- returns within 50 ms, and neither crashes nor hangs\n"
    "- writes nothing outside its buffers, nor anything when it fails\n"
    "- fills its buffers when it succeeds, and ends each text that does not fill its buffer\n"
    "then that four threads may call it at once, and how it calls back. Each function is called in "
    "a\n"
    "process of its own, with guarded pages around every buffer.\n"
    "\n"
    "  --wait SECONDS    watch events for so long: unplug the modem and plug it in again, more "
    "than\n"
    "                    once. Without this, the rules about callbacks are not seen.\n"
    "  --settle SECONDS  wait so long after each loading, for a library that finds its modem late\n"
    "  --only TEXT       check only the functions and rules with this text in their name\n"
    "  --help\n"
    "\n"
    "Prints a line for each function and rule: its results, the longest call, and what is wrong.\n"
    "What the library prints goes to standard error. The exit code is\n"
    "  0  nothing is wrong\n"
    "  1  something is\n"
    "  2  wrong usage, or the library cannot be loaded\n";

enum ExitCode
{
    NoFinding = 0,
    Findings = 1,
    Unusable = 2
};

const double longestAllowed = 50; // milliseconds
const char loading[] = "loading";
const char fourThreads[] = "four threads may call at once, for 2 s";

struct Options
{
    const char *library = nullptr;
    double wait = 0;
    double settle = 0;
    const char *only = "";
};

/// One child process and its rows of the table.
struct Job
{
    bool isFunction;
    std::vector<const char *> rows;
    std::function<void(const Sdk &)> work;
};

// ---- In the child ----

/// Tells of a crash, in the row of the step that crashed.
void onCrash(int signal, siginfo_t *info, void *)
{
    Report &report = Report::instance();
    const Step *const step = Step::current();
    const int row = step ? step->row() : 0;
    bool behind = false;
    const bool hasAddress = signal == SIGSEGV || signal == SIGBUS;
    const auto *const buffer = hasAddress ? GuardedBuffer::find(info->si_addr, &behind) : nullptr;
    if (buffer)
        report.fail(row, "reaches %s %s (%d bytes)", behind ? "past the end of" : "before",
                    buffer->name(), static_cast<int>(buffer->size()));
    else
        report.fail(row, "%scrashes (%s)", step ? "" : "a thread of the library ",
                    strsignal(signal));
    report.finished = true;
    _exit(0);
}

void catchCrashes()
{
    struct sigaction action = {};
    action.sa_sigaction = onCrash;
    action.sa_flags = SA_SIGINFO;
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT})
        sigaction(signal, &action, nullptr);
}

[[noreturn]] void runChild(const Options &options, const Job &job)
{
    Report &report = Report::instance();
    dup2(STDERR_FILENO, STDOUT_FILENO);
    catchCrashes();
    static Sdk sdk;
    {
        const Step step(0, loading, 10);
        if (!sdk.load(options.library)) {
            report.fail(0, "%s", dlerror());
            report.finished = true;
            _exit(0);
        }
    }
    catchCrashes(); // the library may have replaced the handlers
    std::this_thread::sleep_for(std::chrono::duration<double>(options.settle));
    job.work(sdk);
    report.finished = true;
    _exit(0);
}

// ---- In the parent ----

/// Notes of a child that did not finish what it was doing, in the rows of that.
void failUnfinished(const char *what, bool onlyLate)
{
    Report &report = Report::instance();
    bool isNoted = false;
    for (const Report::Activity &activity : report.activities) {
        const char *const step = activity.what;
        if (!step || (onlyLate && now() < activity.deadline))
            continue;
        const int row = activity.row;
        const bool isOwn = std::strcmp(report.rows[row].name, step) == 0;
        report.fail(row, "%s%s%s", isOwn ? "" : step, isOwn ? "" : " ", what);
        isNoted = true;
    }
    if (!isNoted)
        report.fail(0, "%s", what);
}

bool isLate()
{
    for (const Report::Activity &activity : Report::instance().activities) {
        if (activity.what && now() > activity.deadline)
            return true;
    }
    return false;
}

void run(const Options &options, const Job &job)
{
    Report &report = Report::instance();
    report.start(job.rows);
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == -1) {
        std::perror("diagnosis-sdk-check: fork");
        std::exit(Unusable);
    }
    if (child == 0)
        runChild(options, job);
    int status = 0;
    while (waitpid(child, &status, WNOHANG) == 0) {
        if (isLate()) {
            failUnfinished("does not return", true);
            kill(child, SIGKILL);
            waitpid(child, &status, 0);
            return;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    if (report.finished)
        return;
    failUnfinished(WIFSIGNALED(status) ? "crashes" : "ends the process", false);
}

std::vector<Job> jobs(const Options &options)
{
    std::vector<Job> result;
    const auto addFunction = [&](const char *function) {
        result.push_back({true, {function}, [function](const Sdk &sdk) {
                              if (!sdk.has(function)) {
                                  Report::instance().fail(0, "is missing: no such C symbol");
                                  return;
                              }
                              CallbackRules::checkFunction(sdk, function);
                              for (const Shape &shape : shapes()) {
                                  if (std::strcmp(shape.function, function) == 0)
                                      FunctionRules::checkFunction(sdk, shape);
                              }
                          }});
    };
#define ADD(function) addFunction(#function);
    SDK_FUNCTIONS(ADD)
    result.push_back({false, {fourThreads}, FunctionRules::checkThreads});
    const double wait = options.wait;
    result.push_back({false, CallbackRules::names(), [wait](const Sdk &sdk) {
                          if (wait > 0)
                              CallbackRules::watch(sdk, wait);
                      }});
    return result;
}

/// The table, line by line, and what it sums up to.
class Table
{
public:
    Table()
    {
        std::printf("%-52s %-12s %10s  %s\n", "function or rule", "results", "longest", "finding");
    }

    void add(const Report::Row &row, bool isFunction)
    {
        std::string findings = row.findings;
        std::string time;
        if (row.longestCall > 0) {
            char text[32];
            std::snprintf(text, sizeof text, "%.2f ms", row.longestCall);
            time = text;
        }
        if (row.longestCall > longestAllowed)
            findings += (findings.empty() ? "" : "; ") + std::string("takes longer than 50 ms");
        const char *const result =
            row.result[0] || isFunction || !findings.empty() ? row.result : "not seen";
        std::printf("%-52s %-12s %10s  %s\n", row.name, result, time.c_str(), findings.c_str());

        m_findings += findings.empty() ? 0 : 1;
        if (isFunction && !row.hasSucceeded)
            ++m_failing;
        if (!isFunction && findings.empty() && !row.result[0])
            ++m_unseen;
        if (row.longestCall > m_longest) {
            m_longest = row.longestCall;
            m_slowest = row.name;
        }
    }

    ExitCode end() const
    {
        if (!m_slowest.empty())
            std::printf("The longest call: %s, %.2f ms.\n", m_slowest.c_str(), m_longest);
        if (m_failing > 0)
            std::printf("%d functions never gave 0: what they write then was not seen.\n",
                        m_failing);
        if (m_unseen > 0)
            std::printf("%d rules were not seen: they need events (--wait SECONDS).\n", m_unseen);
        std::printf("%s\n", m_findings == 0 ? "Nothing is wrong." : "Something is wrong.");
        return m_findings == 0 ? NoFinding : Findings;
    }

private:
    int m_findings = 0;
    int m_failing = 0;
    int m_unseen = 0;
    double m_longest = 0;
    std::string m_slowest;
};

ExitCode check(const Options &options)
{
    const Report &report = Report::instance();
    run(options, {false, {loading}, [](const Sdk &) {}});
    if (report.rows[0].findings[0]) {
        std::fprintf(stderr, "diagnosis-sdk-check: %s: %s\n", options.library,
                     report.rows[0].findings);
        return Unusable;
    }
    Table table;
    for (const Job &job : jobs(options)) {
        const auto isWanted = [&](const char *name) { return std::strstr(name, options.only); };
        if (std::none_of(job.rows.begin(), job.rows.end(), isWanted))
            continue;
        run(options, job);
        for (size_t row = 0; row < job.rows.size(); ++row) {
            if (isWanted(job.rows[row]))
                table.add(report.rows[row], job.isFunction);
        }
    }
    return table.end();
}

/// The number of an option, or a negative one.
double seconds(const char *text)
{
    char *end = nullptr;
    const double seconds = std::strtod(text, &end);
    return *text && !*end ? seconds : -1;
}

} // namespace

int main(int argc, char **argv)
{
    const option known[] = {{"wait", required_argument, nullptr, 'w'},
                            {"settle", required_argument, nullptr, 's'},
                            {"only", required_argument, nullptr, 'o'},
                            {"help", no_argument, nullptr, 'h'},
                            {}};
    Options options;
    for (int option; (option = getopt_long(argc, argv, "", known, nullptr)) != -1;) {
        switch (option) {
        case 'w':
            options.wait = seconds(optarg);
            break;
        case 's':
            options.settle = seconds(optarg);
            break;
        case 'o':
            options.only = optarg;
            break;
        case 'h':
            std::fputs(usage, stdout);
            return NoFinding;
        default:
            return Unusable;
        }
    }
    if (argc - optind != 1 || !(options.wait >= 0) || !(options.settle >= 0)) {
        std::fputs(usage, stderr);
        return Unusable;
    }
    options.library = argv[optind];
    return check(options);
}
