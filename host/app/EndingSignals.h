// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef ENDINGSIGNALS_H
#define ENDINGSIGNALS_H

#include <QSocketNotifier>

/// While it lives, SIGHUP, SIGINT and SIGTERM end the event loop, as if the last window was closed,
/// so that the modem is detached. A signal that the program was started to ignore, as by nohup,
/// stays ignored. There is one at a time, in the main thread.
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
