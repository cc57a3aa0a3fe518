// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef ATMODEM_H
#define ATMODEM_H

#include <QByteArray>
#include <QMap>

#include <mutex>
#include <thread>

/// A modem that answers AT commands at an abstract unix socket, at first as at_modem.txt says. It
/// can only end when nobody is connected to it any more.
class AtModem
{
public:
    AtModem();
    ~AtModem();

    /// The name of its port, for the service.
    QByteArray port() const { return m_port; }

    /// Sets answers, a line each or separated by "; ": commands, separated by spaces, " = " and
    /// their answer, as at_modem.txt has them. A command that ends in '=' stands for all its
    /// arguments.
    void set(const QByteArray &answers);
    /// Sends a line unasked.
    void send(const QByteArray &line);

private:
    void run();
    void answer(const QByteArray &command);

    QByteArray m_port;
    std::mutex m_mutex; ///< guards all below
    QMap<QByteArray, QByteArray> m_answers;
    int m_connection = -1;
    int m_listener = -1;
    std::thread m_thread;
};

#endif
