// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// What stays on the heap: after one window like the other, while another thread unplugs the modem
// and plugs it in again; and after the module was loaded and unloaded.

#include "DiagnosticsCdmaUI.h"
#include "DiagnosticsConfigParse.h"
#include "DiagnosticsUILogic.h"
#include "PluginTest.h"

#include "SdkControl.h"
#include "sdk/VeltDevice.h"

#include <QApplication>
#include <QDialog>
#include <QPixmapCache>
#include <QPluginLoader>
#include <QPushButton>
#include <QTabWidget>
#include <QThread>
#include <QtTest>

#include <algorithm>
#include <atomic>
#include <dlfcn.h>
#include <malloc.h>
#include <mutex>
#include <thread>
#include <unistd.h>

using namespace TestSupport;

class SoakTest : public QObject, PluginTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { QCOMPARE(tearDown(), QStringList()); }
    void windows_data();
    void windows();
    void modules();

private:
    long heap();
    void useWindow(const char *productType, bool cancel);
    void start(IUIPlugin *plugin);
    void loadAndUnload(bool explicitly);
};

void SoakTest::init()
{
    setUp();
    SdkControl::stopRecording();
}

/// The bytes in use, with nothing under way and no log. The sanitizers bring an allocator of their
/// own, of which nothing is counted.
long SoakTest::heap()
{
    SdkControl::waitForEvents(10000);
    settle();
    m_log->takeLog();
    const auto info = mallinfo2();
    return long(info.uordblks + info.hblkhd);
}

void SoakTest::useWindow(const char *productType, bool cancel)
{
    modem().setValue("device/productType", productType);
    QCOMPARE(show(), 1);
    const QPointer<QDialog> window = m_parent->findChild<QDialog *>();
    auto *tabs = window->findChild<QTabWidget *>();
    for (int index = 0; tabs && index < tabs->count(); ++index)
        tabs->setCurrentIndex(index);
    button("Refresh")->click();
    QCOMPARE(save(button("Save"), path("report")).size(), 1);
    if (cancel)
        button("Cancel")->click();
    else
        m_plugin->Notify(NOTIFY_CLOSE_WINDOWS, 0, 0);
    settle();
    QVERIFY(!window);
}

void SoakTest::windows_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("some") << 50;
    QTest::newRow("many") << 2000;
}

void SoakTest::windows()
{
    QFETCH(int, count);
    attachModem("cdma-pesn");
    QCOMPARE(m_plugin->Init(), 1);
    // What Qt keeps depends on time: how long pixmaps were not used, how many events the queue once
    // had to hold.
    QPixmapCache::setCacheLimit(0);
    for (int event = 0; event < 10000; ++event)
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    settle();

    std::mutex plugging;
    std::atomic<bool> ending{false};
    std::thread other([&] {
        while (!ending) {
            QThread::msleep(3);
            const std::lock_guard<std::mutex> lock(plugging);
            SdkControl::unplug();
            QThread::msleep(1);
            SdkControl::plug();
        }
    });
    const int warmUp = 50;
    QVector<long> growth; // since the last time
    growth.reserve(count);
    long size = 0;
    for (int round = 1; round <= warmUp + count && !QTest::currentTestFailed(); ++round) {
        useWindow(round % 2 ? "1" : "0", round % 3);
        if (round < warmUp || round % 5 != 0)
            continue;
        // In the same state each time: a window of the same kind was the last, nothing is under
        // way.
        const std::lock_guard<std::mutex> lock(plugging);
        SdkControl::waitForEvents(10000);
        useWindow("0", true);
        DiagnosticsCdmaUI::DestroyInstance();
        growth.append(heap() - size);
        size += growth.last();
    }
    ending = true;
    other.join();
    // Now and then a cache of Qt grows; what each window leaves is in most of the steps. It would
    // be more than a block of the smallest size, 32 bytes.
    std::sort(growth.begin(), growth.end());
    const long usual = growth.at(growth.size() / 2);
    QVERIFY2(usual < 32, qPrintable(QString("5 windows left %1 bytes").arg(usual)));
}

/// With an event that arrives in time: of one that comes while the plug-in goes, the query layer
/// that stays keeps what Qt wrote down about their connection.
void SoakTest::start(IUIPlugin *plugin)
{
    QCOMPARE(plugin->Init(), 1);
    SdkControl::raiseEvent(VELT_EVENT_DEV_ARRIVAL);
    SdkControl::waitForEvents(10000);
    settle();
}

void SoakTest::loadAndUnload(bool explicitly)
{
    QPluginLoader loader{MODULE_FILE};
    loader.setLoadHints(QLibrary::LoadHints()); // without them Qt 5 keeps the module
    auto *plugin = qobject_cast<IUIPlugin *>(loader.instance());
    QVERIFY(plugin);
    start(plugin);
    if (explicitly)
        plugin->OnDestroy();
    QVERIFY(loader.unload()); // deletes the object
    QVERIFY(!dlopen(MODULE_FILE, RTLD_LAZY | RTLD_NOLOAD));
}

/// Each round leaves the two singletons. In the test's own copy of the plug-in they can be given
/// back, and then nothing is left.
void SoakTest::modules()
{
    long singletons = 0;
    for (int round = 0; round < 3; ++round) {
        const long before = heap();
        auto *plugin = new DiagnosticsUIPlugin;
        start(plugin);
        plugin->OnDestroy();
        delete plugin;
        singletons = heap() - before;
        DiagnosticsUILogic::Destroy();
        DiagnosticsConfigParse::DestroyInstance();
        if (round == 2)
            QCOMPARE(heap(), before);
    }
    const int rounds = 200;
    QVector<long> sizes{heap()};
    for (int round = 0; round < rounds && !QTest::currentTestFailed(); ++round) {
        loadAndUnload(round % 2);
        sizes.append(heap());
    }
    // Blocks are rounded up in different ways.
    const long each = (sizes.last() - sizes.first()) / rounds;
    QVERIFY2(qAbs(each - singletons) < 256,
             qPrintable(QString("%1, not %2 bytes each").arg(each).arg(singletons)));
}

/// Anew without the caches of the C library and of GLib, which would keep what was freed.
int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("GLIBC_TUNABLES")) {
        qputenv("GLIBC_TUNABLES", "glibc.malloc.tcache_count=0");
        qputenv("G_SLICE", "always-malloc");
        qputenv("QT_QPA_PLATFORM", "offscreen");
        execv("/proc/self/exe", argv);
    }
    QApplication application(argc, argv);
    SoakTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "soak.moc"
