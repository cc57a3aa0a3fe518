// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// Gives a test that is started by hand the environment that ctest gives it.

#include <cstdlib>
#include <cstring>

#include <unistd.h>

// From the start on, since the runtimes of the sanitizers read it before any code of the test.
__attribute__((constructor)) static void start(int, char **arguments)
{
    if (std::getenv("DIAG_TEST"))
        return;
    static char variables[] = TEST_ENVIRONMENT;
    for (char *variable = std::strtok(variables, "|"); variable;
         variable = std::strtok(nullptr, "|"))
        putenv(variable);
    execv("/proc/self/exe", arguments);
}
