// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef ENDINGSIGNALS_H
#define ENDINGSIGNALS_H

#include <QSocketNotifier>

/// While it lives, SIGHUP, SIGINT and SIGTERM end the event loop, as if the last window was closed.
/// So the modem is detached. There is one at a time, in the main thread.
class EndingSignals
{
public:
    EndingSignals();
    ~EndingSignals();

private:
    Q_DISABLE_COPY(EndingSignals)

    QSocketNotifier m_notifier;
};

#endif
