// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef PROGRAMS_H
#define PROGRAMS_H

#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

/// A program that ends with this one, however this one ends.
class Program
{
public:
    ~Program() { stop(); }
    void start(const QString &program, const QStringList &arguments);
    void signal(int number) { ::kill(static_cast<pid_t>(m_process.processId()), number); }
    void stop();

private:
    QProcess m_process;
};

/// A message bus that takes the place of the system's for this program and those that it starts.
/// The bus can start a ModemManager, which fails at once; so a client that asks for it is noticed.
class PrivateBus
{
public:
    PrivateBus();

    /// Returns why there is no bus; empty if there is one.
    QString start();
    /// The bus takes connections, but does not answer, until stop().
    void hang() { m_daemon.signal(SIGSTOP); }
    void stop() { m_daemon.stop(); }

private:
    const QTemporaryDir m_folder;
    const QString m_socket;
    Program m_daemon;
};

#endif
