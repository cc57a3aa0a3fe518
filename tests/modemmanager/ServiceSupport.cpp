// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ServiceSupport.h"

#include "SdkCalls.h"
#include "SdkControl.h"
#include "modem/Verdict.h"
#include "modemmanager/ModemService.h"

#include <QRegularExpression>
#include <QTest>

#include <mutex>

#include <sys/resource.h>

namespace ServiceSupport {

Pairs pairs(const QString &text)
{
    Pairs pairs;
    for (const QString &pair : text.split(QRegularExpression("\n|; "), Qt::SkipEmptyParts)) {
        if (!pair.startsWith('#'))
            pairs[pair.section(" =", 0, 0)] = pair.section(" =", 1).trimmed();
    }
    return pairs;
}

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

static Pairs readSdk()
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
    values["verdict"] = Verdict(ModemState::read(0)).text;
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

/// Returns what differs from the expected pairs; empty if nothing does.
static QString differences(const QString &expectation)
{
    const Pairs expected = pairs(expectation);
    const Pairs values = readSdk();
    QStringList found;
    for (auto i = expected.begin(); i != expected.end(); ++i) {
        if (values.value(i.key(), "?") != *i)
            found << i.key() + ": \"" + values.value(i.key()) + "\", not \"" + *i + '"';
    }
    return found.join(", ");
}

void expect(const QString &expected)
{
    static int limit = 10000;
    QString found;
    if (!QTest::qWaitFor([&] { return (found = differences(expected)).isEmpty(); }, limit))
        limit = 1000;
    QCOMPARE(found, QString());
}

static void startEvents()
{
    VELT_DevSrv_UnRegisterDevMgrCallback(takeEvent);
    VELT_DevSrv_UnRegisterDevInitEventCallback(takeEvent);
    eventTexts.clear();
    VELT_DevSrv_RegisterDevMgrCallback(takeEvent);
    VELT_DevSrv_RegisterDevInitEventCallback(takeEvent);
}

/// How often this thread has waited.
static long waits()
{
    rusage usage = {};
    getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_nvcsw;
}

void perform(const QStringList &steps, Commands commands)
{
    commands["attach"] = [](const QString &index) { ModemService::attach(index.toInt()); };
    commands["detach"] = [](const QString &hangs) {
        QCOMPARE(ModemService::detach(), hangs.isEmpty());
    };
    commands["absent"] = [](const QString &) {
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!ModemService::isPresent(5000) && timer.elapsed() < 2000);
    };
    commands["signal-read"] = [](const QString &) { QVERIFY(ModemService::waitForSignal(3000)); };
    commands["events"] = [](const QString &) { startEvents(); };
    commands["expect"] = expect;
    commands["still"] = [](const QString &pairs) { QCOMPARE(differences(pairs), QString()); };
    commands["at-once"] = [](const QString &) {
        // Now and then another thread holds a lock; a question to the service is a wait each time.
        const long before = waits();
        for (int round = 0; round < 200 && waits() - before < 100; ++round)
            readSdk();
        QVERIFY2(waits() - before < 100, qPrintable(QString::number(waits() - before)));
    };
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
