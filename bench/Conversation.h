// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef CONVERSATION_H
#define CONVERSATION_H

#include <QByteArray>
#include <QList>

#include <functional>
#include <type_traits>
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
    struct Step;
    static void split(const QString &line, Step *step);
    template <typename... Arguments>
    static void log(std::integral_constant<int, 0> room, const Step &step, Arguments... arguments);
    template <int size, typename... Arguments>
    static void log(std::integral_constant<int, size> room, const Step &step,
                    Arguments... arguments);

    /// One behind the first three of a log line.
    struct Argument
    {
        char kind; ///< 's', 'd', 'u' or 'l', as its conversion begins
        QByteArray text;
        long number;
    };

    /// A log line, or an SDK call where \a call is set.
    struct Step
    {
        void (*call)();
        QByteArray format;
        QList<QByteArray> texts; ///< time, source and function; the time is written anew
        QList<Argument> arguments;
    };

    std::vector<Step> m_steps;
};

#endif
