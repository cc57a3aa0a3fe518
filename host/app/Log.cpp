// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Log.h"

#include <QFile>
#include <QLoggingCategory>
#include <QMutex>

#include <cstdio>

namespace {

QFile s_file;
bool s_incomplete = false;
/// Threads of libsdk write messages, too.
QMutex s_mutex;

void write(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    // The offscreen platform writes this for each window of a fixed size.
    if (message == QLatin1String("This plugin does not support propagateSizeHints()"))
        return;
    const QByteArray line = message.toLocal8Bit() + '\n';
    const QMutexLocker lock(&s_mutex);
    if (s_file.isOpen() && s_file.write(line) != line.size() && !s_incomplete) {
        s_incomplete = true;
        std::fprintf(stderr, "diagnosis-host: the log is incomplete: %s\n",
                     qUtf8Printable(s_file.errorString()));
    }
    const bool harmless = type == QtDebugMsg || type == QtInfoMsg;
    if (!harmless && s_file.handle() != fileno(stderr))
        std::fputs(line.constData(), stderr);
}

} // namespace

void Log::install()
{
    qInstallMessageHandler(write);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
}

bool Log::open(const QString &fileName)
{
    // Unbuffered, so that the last line before a crash is not lost.
    if (fileName == QLatin1String("-")) {
        if (!s_file.open(stderr, QIODevice::WriteOnly | QIODevice::Unbuffered))
            return false;
    } else {
        s_file.setFileName(fileName);
        if (!s_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            return false;
    }
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=true"));
    return true;
}
