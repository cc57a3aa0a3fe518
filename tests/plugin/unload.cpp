// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// What a host loses that loads and unloads the module again and again: one query layer and one
// store, which the counting rule of the two singletons leaves behind.

#include "DiagnosticsConfigParse.h"
#include "DiagnosticsUILogic.h"
#include "DiagnosticsUIPlugin.h"
#include "PluginTest.h"

#include "Heap.h"
#include "SdkControl.h"
#include "interfaces/IUIPlugin.h"

#include <QPluginLoader>
#include <QtTest>

#include <dlfcn.h>

using namespace TestSupport;

class UnloadTest : public PluginTest
{
    Q_OBJECT

private Q_SLOTS:
    void eachRoundLeavesTheTwoSingletons();

private:
    long heap();
    void start(IUIPlugin *plugin);
    void moduleRound(bool explicitly);
};

/// With nothing under way and no log.
long UnloadTest::heap()
{
    SdkControl::waitForEvents(10000);
    settle();
    m_log->takeLog();
    return Heap::size();
}

/// With an event that arrives in time: of one that comes while the plug-in goes, the query layer
/// that stays keeps what the toolkit wrote down about their connection.
void UnloadTest::start(IUIPlugin *plugin)
{
    QCOMPARE(plugin->Init(), 1);
    SdkControl::raiseEvent(6000);
    SdkControl::waitForEvents(10000);
    settle();
}

void UnloadTest::moduleRound(bool explicitly)
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

void UnloadTest::eachRoundLeavesTheTwoSingletons()
{
    setUp();
    SdkControl::stopRecording();
    const int warmUp = 2;
    // In the test's own copy of the plug-in they can be given back, and then nothing is left.
    long singletons = 0;
    for (int round = 0; round <= warmUp; ++round) {
        const long before = heap();
        auto *plugin = new DiagnosticsUIPlugin;
        start(plugin);
        plugin->OnDestroy();
        delete plugin;
        singletons = heap() - before;
        DiagnosticsUILogic::GetInstance(); // still the same one
        QCOMPARE(m_log->takeLog(), QStringList());
        DiagnosticsUILogic::Destroy();
        DiagnosticsUILogic::Destroy();
        DiagnosticsConfigParse::DestroyInstance();
        if (round == warmUp)
            QCOMPARE(heap(), before);
    }
    const int rounds = 200;
    for (int round = 0; round < warmUp + rounds; ++round) {
        const long before = heap();
        moduleRound(round % 2);
        if (QTest::currentTestFailed())
            return;
        if (round >= warmUp)
            QCOMPARE(heap() - before, singletons);
    }
    tearDown();
    qInfo("each of %d rounds left %ld bytes", rounds, singletons);
}

QTEST_MAIN(UnloadTest)
#include "unload.moc"
