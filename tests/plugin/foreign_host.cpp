// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The plug-in in a host that has no texts, and where memory runs out.

#include "DiagnosticsConfigParse.h"
#include "DiagnosticsUILogic.h"
#include "DiagnosticsUIPlugin.h"
#include "TestSupport.h"

#include "ModemControl.h"
#include "core/Change.h"

#include <QRect>
#include <QTabWidget>
#include <QWidget>
#include <QtTest>

#include <cstdlib>
#include <new>

using namespace TestSupport;

namespace {

bool hasTexts = true;
int allocationsLeft = -1; ///< of those that may fail; negative for no limit

bool mayAllocate()
{
    if (allocationsLeft > 0)
        --allocationsLeft;
    else if (allocationsLeft == 0)
        return false;
    return true;
}

} // namespace

// In front of libcore's.
QString Change::tr(const QString &key, const QString &)
{
    return hasTexts ? key : QString();
}

// Only the plug-in allocates in this way.
void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return mayAllocate() ? ::operator new(size) : nullptr;
}

void *operator new[](std::size_t size, const std::nothrow_t &) noexcept
{
    return mayAllocate() ? ::operator new[](size) : nullptr;
}

class ForeignHostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void noTexts();
    void captionInOtherLetters();
    void memoryForTheWindow_data();
    void memoryForTheWindow();
    void memoryForTheSingletons_data();
    void memoryForTheSingletons();

private:
    LogCapture *m_log = nullptr;
    ConfiguredHost *m_host = nullptr;
    DiagnosticsUIPlugin *m_plugin = nullptr;
};

void ForeignHostTest::init()
{
    hasTexts = true;
    m_log = new LogCapture;
    m_host = new ConfiguredHost(
        "<veltdoc><function><item name='SaveButton' value='true'/></function>"
        "<tab name='Device' resourceID='IDS_D'><item name='IMEI' resourceID='IDS_I'/></tab>"
        "<tab name='hidden' show='false'><item name='RSCP'/></tab>"
        "<tab name='Other' resourceID='IDS_O'><item name='RSCP' resourceID='IDS_R'/></tab>"
        "<common><simmsgprompt>SIM/USIM</simmsgprompt></common></veltdoc>");
    attachModem("wcdma");
    m_plugin = new DiagnosticsUIPlugin;
}

void ForeignHostTest::cleanup()
{
    allocationsLeft = -1;
    delete m_plugin;
    for (int reference = 0; reference < 3; ++reference)
        DiagnosticsUILogic::Destroy();
    for (int reference = 0; reference < 3; ++reference)
        DiagnosticsConfigParse::DestroyInstance();
    delete m_host;
    delete m_log;
}

void ForeignHostTest::noTexts()
{
    QCOMPARE(m_plugin->Init(), 1);
    hasTexts = false;
    const auto pin = [this](const char *status) {
        ModemControl::setValue("sim/pinStatus", status);
        QString value;
        m_plugin->getValueLabelVal(QLatin1String("SIM/USIM"), QLatin1String("PIN code status"),
                                   &value);
        return value;
    };
    QCOMPARE(pin("0"), QString::fromLatin1("the PIN doesn't Initialized"));
    QCOMPARE(pin("1"), QString());
    hasTexts = true;
    QCOMPARE(pin("0"), QString::fromLatin1("IDS_LANG_PIN_NOT_INITIALIZED"));
}

/// A tab change takes the first caption that contains the tab's in any letter case.
void ForeignHostTest::captionInOtherLetters()
{
    m_host->write("DiagnosisConfig.xml",
                  "<veltdoc><tab name='Network status' resourceID='THE DEVICE'>"
                  "<item name='RSCP'/></tab><tab name='Device' resourceID='device'>"
                  "<item name='IMEI'/></tab><common><simmsgprompt>SIM/USIM</simmsgprompt></common>"
                  "</veltdoc>");
    QCOMPARE(m_plugin->Init(), 1);
    QWidget hostWindow;
    QRect rect;
    QCOMPARE(m_plugin->ShowWindow(&hostWindow, rect), 1);
    ModemControl::startRecording();
    diagnosticsWindow()->findChild<QTabWidget *>()->setCurrentIndex(1);
    QCOMPARE(takeCalls(), QStringList(QLatin1String("VELT_NetSrv_GetSignalQuality()")));
}

void ForeignHostTest::memoryForTheWindow_data()
{
    QTest::addColumn<int>("allocations"); ///< that succeed
    QTest::addColumn<QString>("messages");
    const QString failed = QLatin1String("|createWcdmaDialog: Creation of dialog is failed");
    int allocations = 0;
    const auto row = [&](const char *missing, const char *messages) {
        QTest::newRow(missing) << allocations++ << QLatin1String(messages) + failed;
    };
    const char *const widgets = "createDiagWidget: Memory Allocation Failed";
    const char *const form = "createTab: Memory Allocation Failed"
                             "|dynamicTabCreation: tab creation failed"
                             "|createDiagWidget: dynamic Tab creation Failed";
    const char *const label = "createTab: tabItemNameLabel is null"
                              "|dynamicTabCreation: tab creation failed"
                              "|createDiagWidget: dynamic Tab creation Failed";
    const char *const layouts = "createLayout: Memory assignment Failed"
                                "|createDiagWidget: Layout creation failed";
    row("frame", "createDiagWidget: Memory Allocation Failed for main dialog");
    row("main widget", widgets);
    row("tab widget", widgets);
    row("Cancel", widgets);
    row("Refresh", widgets);
    row("marks", "createDiagWidget: dynamic Tab creation Failed");
    // The pass over the pages ends at the first that is missing; the rows' pass comes all the same.
    const QByteArray page = QByteArray("dynamicTabCreation: tabWidget is null|") + form;
    row("first page", page.constData());
    row("second page", page.constData());
    row("first form", form);
    row("first caption", label);
    row("first value", label);
    row("second form", form);
    row("second caption", label);
    row("second value", label);
    row("Save", "createDiagWidget: Creation of Save Button Failed");
    row("main layout", layouts);
    row("top row", layouts);
    row("bottom row", layouts);
    QTest::newRow("nothing") << allocations << QString();
}

/// One allocation after the other fails, and with it all that follow.
void ForeignHostTest::memoryForTheWindow()
{
    QFETCH(int, allocations);
    QFETCH(QString, messages);
    QCOMPARE(m_plugin->Init(), 1);
    QWidget hostWindow;
    QRect rect;
    m_log->takeLog();
    allocationsLeft = allocations;
    const int shown = m_plugin->ShowWindow(&hostWindow, rect);
    allocationsLeft = -1;
    QStringList said;
    for (const QString &line : m_log->takeLog()) {
        const QString message = line.section(QLatin1String(": "), 2);
        if (message.contains(QLatin1String("ailed")) || message.contains(QLatin1String(" is null")))
            said.append(message);
    }
    QCOMPARE(said.join(QLatin1Char('|')), messages);
    QCOMPARE(shown, messages.isEmpty() ? 1 : 0);
    QCOMPARE(diagnosticsWindow() != nullptr, shown == 1);
    m_plugin->Notify(4100, 0, 0); // with what is left of the window
    settle();
}

void ForeignHostTest::memoryForTheSingletons_data()
{
    QTest::addColumn<int>("allocations");
    QTest::addColumn<int>("initialised");
    QTest::addColumn<int>("shown");
    QTest::newRow("query layer") << 0 << 0 << 0;
    QTest::newRow("store") << 1 << 0 << 0;
    QTest::newRow("tab list") << 2 << 1 << 0;
    QTest::newRow("customization") << 3 << 1 << 0;
    QTest::newRow("settings") << 4 << 1 << 1;
}

void ForeignHostTest::memoryForTheSingletons()
{
    QFETCH(int, allocations);
    QFETCH(int, initialised);
    QFETCH(int, shown);
    QWidget hostWindow;
    QRect rect;
    allocationsLeft = allocations;
    QCOMPARE(m_plugin->Init(), initialised);
    const QStringList log = m_log->takeLog();
    allocationsLeft = -1;
    QCOMPARE(
        log.filter(QLatin1String("DiagnosticsConfigParse: m_pHashSetting/m_listDiagTab is NULL"))
            .size(),
        allocations >= 2 ? 1 : 0);
    QCOMPARE(m_plugin->ShowWindow(&hostWindow, rect), shown);
    if (!initialised)
        QCOMPARE(m_plugin->Init(), 1); // with memory again
}

QTEST_MAIN(ForeignHostTest)
#include "foreign_host.moc"
