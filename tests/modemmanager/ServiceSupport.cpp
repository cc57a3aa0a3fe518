// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ServiceSupport.h"

#include "SdkCalls.h"
#include "SdkControl.h"
#include "TestSupport.h"
#include "modemmanager/ModemService.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <mutex>

namespace ServiceSupport {

QString content(const char *fileName)
{
    return TestSupport::contentOf(QString(TEST_SOURCE_DIR "/") + fileName);
}

Pairs pairs(const QString &text)
{
    Pairs pairs;
    for (const QString &pair : text.split(QRegularExpression("\n|; "), Qt::SkipEmptyParts)) {
        if (!pair.startsWith('#'))
            pairs[pair.section(" =", 0, 0)] = pair.section(" =", 1).trimmed();
    }
    return pairs;
}

// ---- Programs ----

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
                   {"--nofork", "--nopidfile", "--config-file=" TEST_SOURCE_DIR "/bus.conf",
                    "--address=unix:path=" + m_socket});
    return QTest::qWaitFor([&] { return QFile::exists(m_socket); })
               ? ""
               : "dbus-daemon does not start (package dbus-daemon)";
}

// ---- The SDK ----

static std::mutex eventMutex;
static QStringList eventTexts;

static int takeEvent(int event, void *)
{
    SdkCalls::Outs outs;
    const VELT_ERROR result = VELT_DevSrv_GetDevStatus(outs.n);
    std::lock_guard<std::mutex> lock(eventMutex);
    eventTexts << QString("%1:%2").arg(event).arg(
        result == VELT_SUCCESS ? show(outs) : QString("error %1").arg(result));
    return 1;
}

Pairs readSdk()
{
    Pairs values = SdkCalls::answers();
    QStringList all = values.values();
    all.removeDuplicates();
    values["all"] = all.join(", ");
    static const char *const statusNames[] = {"Detached",     "Starting", "NoBus",  "NoService",
                                              "NotAnswering", "NoModem",  "Present"};
    values["status"] = statusNames[static_cast<int>(ModemService::status())];
    const ModemService::Condition condition = ModemService::condition();
    values["condition"] = QString("%1 %2 %3")
                              .arg(condition.state)
                              .arg(condition.failedReason)
                              .arg(condition.powerState);
    for (const ModemService::Detail &detail : ModemService::details())
        values[QString::fromStdString(detail.group + ' ' + detail.name)] =
            QString::fromStdString(detail.value);
    for (const TextValue value : {TextValue::ServiceName, TextValue::NetworkType,
                                  TextValue::Profile, TextValue::Apn, TextValue::Description})
        values[textKeys()[static_cast<size_t>(value)]] =
            QString::fromStdString(SdkControl::text(value));
    std::lock_guard<std::mutex> lock(eventMutex);
    values["events"] = eventTexts.join(' ');
    return values;
}

QString differences(const Pairs &expected)
{
    const Pairs values = readSdk();
    QStringList found;
    for (auto i = expected.begin(); i != expected.end(); ++i) {
        if (values.value(i.key(), "?") != *i)
            found << i.key() + ": \"" + values.value(i.key()) + "\", not \"" + *i + '"';
    }
    return found.join(", ");
}

void startEvents()
{
    VELT_DevSrv_UnRegisterDevMgrCallback(takeEvent);
    VELT_DevSrv_UnRegisterDevInitEventCallback(takeEvent);
    eventTexts.clear();
    VELT_DevSrv_RegisterDevMgrCallback(takeEvent);
    VELT_DevSrv_RegisterDevInitEventCallback(takeEvent);
}

void perform(const QStringList &steps, Commands commands)
{
    commands["attach"] = [](const QString &index) { ModemService::attach(index.toInt()); };
    commands["detach"] = [](const QString &) { ModemService::detach(); };
    commands["absent"] = [](const QString &) {
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!ModemService::isPresent(5000) && timer.elapsed() < 2000);
    };
    commands["signal-read"] = [](const QString &) { QVERIFY(ModemService::waitForSignal(3000)); };
    commands["events"] = [](const QString &) { startEvents(); };
    commands["expect"] = [](const QString &pairs) { EXPECT(pairs); };
    commands["pause"] = [](const QString &time) { QTest::qWait(time.toInt()); };
    for (const QString &step : steps) {
        const auto command = commands.find(step.section(' ', 0, 0));
        QVERIFY2(command != commands.end(), qPrintable(step));
        command->second(step.section(' ', 1));
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(step));
    }
}

} // namespace ServiceSupport
