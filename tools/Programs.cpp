// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Programs.h"

#include <QDBusConnection>
#include <QFile>
#include <QTest>

void Program::start(const QString &program, const QStringList &arguments)
{
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_process.start("setpriv", QStringList{"--pdeathsig", "KILL", "--", program} + arguments);
    m_process.waitForStarted();
}

void Program::stop()
{
    m_process.kill();
    m_process.waitForFinished();
}

PrivateBus::PrivateBus() : m_socket(m_folder.filePath("bus"))
{
    for (const char *name : {"DBUS_SYSTEM_BUS_ADDRESS", "DBUS_SESSION_BUS_ADDRESS"})
        qputenv(name, "unix:path=" + QFile::encodeName(m_socket));
}

QString PrivateBus::start()
{
    QFile::remove(m_socket);
    m_daemon.start("dbus-daemon",
                   {"--nofork", "--nopidfile", "--config-file=" TOOLS_DIR "/bus.conf",
                    "--address=unix:path=" + m_socket});
    // The socket is there before the daemon listens to it.
    const bool answers = QTest::qWaitFor([] {
        QDBusConnection::disconnectFromBus("trial");
        return QDBusConnection::connectToBus(QDBusConnection::SystemBus, "trial").isConnected();
    });
    QDBusConnection::disconnectFromBus("trial");
    return answers ? "" : "dbus-daemon does not start (package dbus-daemon)";
}
