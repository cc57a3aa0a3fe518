// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef SERVICESUPPORT_H
#define SERVICESUPPORT_H

#include <QDBusConnection>
#include <QDBusMessage>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>
#include <functional>
#include <map>

namespace ServiceSupport {

const QString service = "org.freedesktop.ModemManager1";
const QString servicePath = "/org/freedesktop/ModemManager1";

/// A data file beside the tests.
QString content(const char *fileName);

/// Names and values, "name = value", a pair a line or separated by "; ". A line that begins with
/// '#' is a comment.
using Pairs = QMap<QString, QString>;
Pairs pairs(const QString &text);

/// A program that ends with the test, whatever becomes of that.
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

/// A message bus of the test's own, which takes the system's place.
class PrivateBus
{
public:
    PrivateBus();

    /// Why there is none; empty when there is.
    QString start();
    void stop() { m_daemon.stop(); }

private:
    const QTemporaryDir m_folder;
    const QString m_socket;
    Program m_daemon;
};

/// All that the SDK says: SdkCalls::answers(); the different ones of them as "all"; "status",
/// "condition", the details by group and name, and the keys of what the host alone reads; "events",
/// what was taken.
Pairs readSdk();

/// What differs from the expected pairs; empty when nothing does.
QString differences(const Pairs &expected);

/// Takes device events from now on, in place of those taken so far: the code, and the device status
/// inside the callback.
void startEvents();

/// Waits until the SDK says what is expected, pairs.
#define EXPECT(expected)                                                                           \
    QTRY_COMPARE_WITH_TIMEOUT(ServiceSupport::differences(ServiceSupport::pairs(expected)),        \
                              QString(), 15000)

using Commands = std::map<QString, std::function<void(const QString &)>>;

/// Takes the steps of a script, each a command of these or the following, and its argument.
///     attach INDEX | detach | absent | signal-read | events        starts to take them
///     expect PAIRS | pause MILLISECONDS
void perform(const QStringList &steps, Commands commands);

} // namespace ServiceSupport

#endif
