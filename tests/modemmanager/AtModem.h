// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef ATMODEM_H
#define ATMODEM_H

#include <QByteArray>
#include <QMap>

#include <mutex>
#include <thread>

/// A modem that answers AT commands at an abstract unix socket, from a table. At first it is a
/// UMTS modem that is registered at home.
class AtModem
{
public:
    /// No answer at all.
    static const char silence[];

    AtModem();
    ~AtModem();

    /// The name of its port, for the service.
    QByteArray port() const { return m_port; }

    /// Sets the answer to a command, without the final OK. A command that ends in '=' stands for
    /// all its arguments.
    void set(const QByteArray &command, const QByteArray &answer);
    /// Lets the answer to a command come late (ms), and those to later commands too.
    void delay(const QByteArray &command, int milliseconds);
    void registerAs(int state, const char *operatorCode = "00101");
    /// Sends a line unasked.
    void send(const QByteArray &line);
    /// Commands that the service has sent, separated by newlines.
    QByteArray commands() const;

private:
    struct Answer
    {
        QByteArray text;
        int delay = 0;
    };
    void run();
    void answer(const QByteArray &command);

    const QByteArray m_port;
    mutable std::mutex m_mutex;
    QMap<QByteArray, Answer> m_answers;
    QByteArray m_commands;
    int m_listener = -1;
    int m_connection = -1;
    int m_end[2] = {-1, -1};
    std::thread m_thread;
};

#endif
