// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef SERVICESUPPORT_H
#define SERVICESUPPORT_H

#include <QDBusConnection>
#include <QDBusMessage>
#include <QMap>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <vector>

namespace ServiceSupport {

const QString service = QStringLiteral("org.freedesktop.ModemManager1");
const QString servicePath = QStringLiteral("/org/freedesktop/ModemManager1");

/// A program that ends with the test, whatever becomes of that.
class Program
{
public:
    ~Program() { stop(); }

    void start(const QString &program, const QStringList &arguments);
    void stop();
    void signal(int number);
    bool isRunning() const { return m_process.state() == QProcess::Running; }

private:
    QProcess m_process;
};

/// A message bus of the test's own, which takes the system's place.
class PrivateBus
{
public:
    PrivateBus();

    /// Why there is none; empty when there is.
    QString start();
    void stop() { m_daemon.stop(); }
    QString folder() const { return m_folder.path(); }
    /// A new connection for the test.
    QDBusConnection connect(const QString &name) const;

private:
    QString socket() const { return m_folder.path() + QStringLiteral("/bus"); }
    QTemporaryDir m_folder;
    Program m_daemon;
};

/// All that the SDK says: by a short name the value, or "error N". The texts of records are
/// separated by '|'.
QMap<QString, QString> readSdk();

/// The address of the connection with this profile, or "error N".
QString addressOf(const char *profile);

/// The different answers of all functions.
QStringList distinctAnswers();

/// The longest time that a function took in readSdk(), in milliseconds.
double longestCall();

/// What differs from the expected values; empty when nothing does.
QString differences(const QMap<QString, QString> &expected);

/// Takes the device events while it lives: the code and the device status inside the callback.
class EventLog
{
public:
    EventLog();
    ~EventLog();
    QString text() const;
    void clear();
};

} // namespace ServiceSupport

#endif
