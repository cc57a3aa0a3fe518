// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef CONVERSATION_H
#define CONVERSATION_H

#include <QByteArray>
#include <QList>

#include <functional>
#include <vector>

/// The SDK calls and log lines of an action of the plug-in, to be made again by hand in the same
/// order: what no plug-in could save.
class Conversation
{
public:
    /// Performs the action on the simulated modem and notes what it does.
    static Conversation record(const std::function<void()> &action);

    void repeat() const;

private:
    /// A log line, or an SDK call where \a call is set.
    struct Step
    {
        void (*call)();
        QByteArray format;
        QList<QByteArray> arguments; ///< the time first, which is written anew
    };

    std::vector<Step> m_steps;
};

#endif
