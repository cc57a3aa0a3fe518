// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "EndingSignals.h"

#include <QCoreApplication>

#include <csignal>
#include <sys/eventfd.h>
#include <unistd.h>

namespace {

const int Handled[] = {SIGHUP, SIGINT, SIGTERM};

/// A handler may not call Qt. It adds one to this counter, which the event loop waits for. Nothing
/// takes it away, so a signal that comes before the event loop runs counts, too.
int s_counter = -1;

extern "C" void note(int)
{
    const eventfd_t one = 1;
    const ssize_t written = write(s_counter, &one, sizeof one);
    (void)written;
}

} // namespace

EndingSignals::EndingSignals()
    : m_notifier(s_counter = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK), QSocketNotifier::Read)
{
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &QCoreApplication::quit);
    for (const int signal : Handled) {
        if (std::signal(signal, note) == SIG_IGN)
            std::signal(signal, SIG_IGN);
    }
}

EndingSignals::~EndingSignals()
{
    for (const int signal : Handled) {
        if (std::signal(signal, SIG_DFL) == SIG_IGN)
            std::signal(signal, SIG_IGN);
    }
    close(s_counter);
}
