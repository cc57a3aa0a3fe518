// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ExitCode.h"

#include <cstdio>

int fail(ExitCode code, const QString &reason)
{
    std::fprintf(stderr, "diagnosis-host: %s\n", qUtf8Printable(reason));
    return code;
}

int failUnknown(const char *what, const QString &given, const QStringList &known)
{
    return fail(WrongUsage, QStringLiteral("unknown %1 \"%2\", known are: %3")
                                .arg(QLatin1String(what), given,
                                     known.isEmpty() ? QStringLiteral("none")
                                                     : known.join(QLatin1String(", "))));
}
