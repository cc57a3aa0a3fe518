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

#include <QtTest>
#include <QtWidgets>

#include <algorithm>
#include <atomic>
#include <dlfcn.h>
#include <malloc.h>
#include <memory>
#include <mutex>
#include <thread>
#include <unistd.h>

using namespace TestSupport;

namespace {

class Soak : public PluginTest
{
public:
    Soak() { SdkControl::stopRecording(); }

    /// The bytes in use, with nothing under way and no log. The sanitizers bring an allocator of
    /// their own, of which nothing is counted.
    long heap()
    {
        SdkControl::waitForEvents(10000);
        settle();
        m_log.takeLog();
        const auto info = mallinfo2();
        return long(info.uordblks + info.hblkhd);
    }

    /// With an event that arrives in time: of one that comes while the plug-in goes, the query
    /// layer that stays keeps what Qt wrote down about their connection.
    static void start(IUIPlugin *plugin)
    {
        QCOMPARE(plugin->Init(), 1);
        SdkControl::raiseEvent(VELT_EVENT_DEV_ARRIVAL);
        SdkControl::waitForEvents(10000);
        settle();
    }

    void useWindow(const char *productType, bool cancel)
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

    using PluginTest::m_plugin;
};

/// Now and then a cache of Qt grows; what is left each time is in most of the steps. It would be
/// more than a block of the smallest size, 32 bytes.
void checkUsual(QVector<long> growth)
{
    std::sort(growth.begin(), growth.end());
    const long usual = growth.at(growth.size() / 2);
    QVERIFY2(usual < 32, qPrintable(QString("usually %1 bytes are left").arg(usual)));
}

void loadAndUnload(bool explicitly)
{
    // Qt's own loader would keep the module, with some versions whatever the hints.
    void *const module = dlopen(MODULE_FILE, RTLD_LAZY);
    QVERIFY2(module, dlerror());
    const auto instance = reinterpret_cast<QObject *(*)()>(dlsym(module, "qt_plugin_instance"));
    std::unique_ptr<QObject> object(instance());
    auto *plugin = qobject_cast<IUIPlugin *>(object.get());
    QVERIFY(plugin);
    Soak::start(plugin);
    if (explicitly)
        plugin->OnDestroy();
    object.reset();
    QCOMPARE(dlclose(module), 0);
    QVERIFY(!dlopen(MODULE_FILE, RTLD_LAZY | RTLD_NOLOAD));
}

} // namespace

class SoakTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Qt keeps pixmaps for a time that depends on their use.
    void initTestCase() { QPixmapCache::setCacheLimit(0); }
    void windows_data();
    void windows();
    void modules();
};

void SoakTest::windows_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("some") << 50;
    QTest::newRow("many") << 2000;
}

void SoakTest::windows()
{
    QFETCH(int, count);
    Soak soak;
    attachModem("cdma-pesn");
    Soak::start(soak.m_plugin);
    // The queue keeps the room for as many events as it once had to hold.
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
    QVector<long> growth{0}; // since the last time
    growth.reserve(count);
    long size = 0;
    for (int round = 1; round <= warmUp + count && !QTest::currentTestFailed(); ++round) {
        soak.useWindow(round % 2 ? "1" : "0", round % 3);
        if (round < warmUp || round % 5 != 0)
            continue;
        // In the same state each time: a window of the same kind was the last, nothing is under
        // way.
        const std::lock_guard<std::mutex> lock(plugging);
        SdkControl::waitForEvents(10000);
        soak.useWindow("0", true);
        DiagnosticsCdmaUI::DestroyInstance();
        growth.append(soak.heap() - size);
        size += growth.last();
    }
    ending = true;
    other.join();
    QCOMPARE(soak.end(), QStringList());
    checkUsual(growth);
}

/// Each round leaves the two singletons. In the test's own copy of the plug-in they can be given
/// back, and then nothing is left, of a window neither.
void SoakTest::modules()
{
    Soak soak;
    long singletons = 0;
    QVector<long> growth;
    long size = 0;
    for (int round = 0; round < 60; ++round) {
        growth.append(soak.heap() - size);
        size += growth.last();
        Soak::start(soak.m_plugin);
        soak.m_plugin->OnDestroy();
        singletons = soak.heap() - size;
        Soak::start(soak.m_plugin);
        soak.useWindow("0", true);
        delete soak.m_plugin;
        Soak::release();
        soak.m_plugin = new DiagnosticsUIPlugin;
    }
    checkUsual(growth);
    const int rounds = 200;
    const long before = soak.heap();
    for (int round = 0; round < rounds && !QTest::currentTestFailed(); ++round)
        loadAndUnload(round % 2);
    // Blocks are rounded up in other ways here, with Qt 6 by a twentieth of all.
    const long each = (soak.heap() - before) / rounds;
    QVERIFY2(each <= singletons + singletons / 12,
             qPrintable(QString("%1, not %2 bytes each").arg(each).arg(singletons)));
    QCOMPARE(soak.end(), QStringList());
}

/// Anew without the caches of the C library and of GLib, which would keep what was freed.
int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("GLIBC_TUNABLES")) {
        qputenv("GLIBC_TUNABLES", "glibc.malloc.tcache_count=0");
        qputenv("G_SLICE", "always-malloc");
        execv("/proc/self/exe", argv);
    }
    QApplication application(argc, argv);
    SoakTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "soak.moc"
