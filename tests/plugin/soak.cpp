// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// One window after the other, while another thread unplugs the modem and plugs it in again: 50
// windows, or as many as SOAK_ROUNDS says. Needs G_SLICE=always-malloc: GLib's own allocator keeps
// what was freed.

#include "DiagnosticsCdmaUI.h"
#include "DiagnosticsUIPlugin.h"
#include "PluginTest.h"

#include "Heap.h"
#include "SdkControl.h"

#include <QDialog>
#include <QPixmapCache>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <thread>

using namespace TestSupport;

class SoakTest : public PluginTest
{
    Q_OBJECT

private Q_SLOTS:
    void soak();

private:
    void useWindow(const char *productType, bool cancel);

    int m_cdmaWindows = 0;
};

void SoakTest::useWindow(const char *productType, bool cancel)
{
    modem().setValue("device/productType", productType);
    QCOMPARE(show(), 1);
    const QPointer<QDialog> window = m_parent->findChild<QDialog *>();
    auto *tabs = window->findChild<QTabWidget *>();
    m_cdmaWindows += tabs ? 0 : 1;
    for (int index = 0; tabs && index < tabs->count(); ++index)
        tabs->setCurrentIndex(index);
    button("Refresh")->click();
    QCOMPARE(save(button("Save"), path("report")),
             list("Information: The diagnostics were saved."));
    if (cancel)
        button("Cancel")->click();
    else
        m_plugin->Notify(NOTIFY_CLOSE_WINDOWS, 0, 0);
    settle();
    QVERIFY(!window);
}

void SoakTest::soak()
{
    setUp();
    SdkControl::stopRecording();
    attachModem("cdma-pesn");
    QCOMPARE(m_plugin->Init(), 1);

    // What the toolkit keeps depends on time: how long pixmaps were not used, how many events the
    // queue once had to hold.
    QPixmapCache::setCacheLimit(0);
    for (int count = 0; count < 10000; ++count)
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    settle();

    int unplugged = 0;
    std::mutex plugging;
    std::atomic<bool> ending{false};
    std::thread other([&] {
        const auto sleep = [](int milliseconds) {
            std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
        };
        while (!ending) {
            sleep(3);
            std::lock_guard<std::mutex> lock(plugging);
            SdkControl::unplug();
            ++unplugged;
            sleep(1);
            SdkControl::plug();
        }
    });

    const int given = qEnvironmentVariableIntValue("SOAK_ROUNDS");
    const int rounds = given > 0 ? given : 50;
    const int warmUp = 50;
    QVector<long> sizes; // after the warm-up and each fifth round that follows
    sizes.reserve(1 + rounds / 5);
    for (int round = 1; round <= warmUp + rounds && !QTest::currentTestFailed(); ++round) {
        useWindow(round % 2 ? "1" : "0", round % 3);
        if (round >= warmUp && round % 5 == 0) {
            // In the same state each time: a window of the same kind was the last, nothing is under
            // way.
            const std::lock_guard<std::mutex> lock(plugging);
            SdkControl::waitForEvents(10000);
            useWindow("0", true);
            DiagnosticsCdmaUI::DestroyInstance();
            m_log->takeLog();
            sizes.append(Heap::size());
        }
    }
    ending = true;
    other.join();
    tearDown();
    if (QTest::currentTestFailed())
        return;

    const int quarter = sizes.size() / 4;
    qInfo("%d windows (%d for CDMA in all), %d times unplugged; heap after the warm-up %ld, after "
          "each quarter %ld, %ld, %ld, %ld bytes",
          rounds, m_cdmaWindows, unplugged, sizes.first(), sizes.at(quarter), sizes.at(2 * quarter),
          sizes.at(3 * quarter), sizes.last());
    sizes.remove(0, sizes.size() / 2);
    const auto extremes = std::minmax_element(sizes.cbegin(), sizes.cend());
    QVERIFY(*extremes.second - *extremes.first <= 1024);
    // A few bytes of each window don't come to much in a short run: they are seen in most of its
    // steps.
    int grown = 0;
    for (int index = 1; index < sizes.size(); ++index)
        grown += sizes.at(index) > sizes.at(index - 1) ? 1 : 0;
    QVERIFY(grown <= sizes.size() / 2);
}

QTEST_MAIN(SoakTest)
#include "soak.moc"
