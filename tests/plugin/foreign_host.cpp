// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The plug-in in a host that has no texts, and where memory runs out.

#include "DiagnosticsUIPlugin.h"
#include "PluginTest.h"

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

class ForeignHostTest : public PluginTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void noTexts();
    void captionInOtherLetters();
    void memory_data() { addRows(TEST_SOURCE_DIR "/foreign_host.txt", "memory"); }
    void memory();
    void memoryForTheSingletons();
};

void ForeignHostTest::init()
{
    hasTexts = true;
    setUp("<veltdoc><function><item name='SaveButton' value='true'/></function>"
          "<tab name='Device' resourceID='IDS_D'><item name='IMEI' resourceID='IDS_I'/></tab>"
          "<tab name='hidden' show='false'><item name='RSCP'/></tab>"
          "<tab name='Other' resourceID='IDS_O'><item name='RSCP' resourceID='IDS_R'/></tab>"
          "<common><simmsgprompt>SIM/USIM</simmsgprompt></common></veltdoc>");
}

void ForeignHostTest::cleanup()
{
    allocationsLeft = -1;
    tearDown();
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
    open("<veltdoc><tab name='Network status' resourceID='THE DEVICE'><item name='RSCP'/></tab>"
         "<tab name='Device' resourceID='device'><item name='IMEI'/></tab>"
         "<common><simmsgprompt>SIM/USIM</simmsgprompt></common></veltdoc>");
    takeCalls();
    tabs()->setCurrentIndex(1);
    QCOMPARE(takeCalls(), list("VELT_NetSrv_GetSignalQuality()"));
}

/// From one allocation on all fail.
void ForeignHostTest::memory()
{
    QFETCH(QStringList, fields);
    QCOMPARE(m_plugin->Init(), 1);
    m_log->takeLog();
    allocationsLeft = fields.at(0).toInt();
    const int shown = show();
    allocationsLeft = -1;
    QStringList said;
    for (const QString &logged : m_log->takeLog()) {
        const QString message = logged.section(QLatin1String(": "), 2);
        if (message.contains(QLatin1String("ailed")) || message.contains(QLatin1String(" is null")))
            said.append(message);
    }
    QCOMPARE(said.join(QLatin1String(", ")), fields.at(2));
    QCOMPARE(shown, said.isEmpty() ? 1 : 0);
    QCOMPARE(diagnosticsWindow() != nullptr, shown == 1);
    m_plugin->Notify(4100, 0, 0); // with what is left of the window
    settle();
}

void ForeignHostTest::memoryForTheSingletons()
{
    // Query layer, store, tab list, customization, settings.
    const int initialised[] = {0, 0, 1, 1, 1};
    const int shown[] = {0, 0, 0, 0, 1};
    for (int allocations = 0; allocations < 5; ++allocations) {
        allocationsLeft = allocations;
        QCOMPARE(m_plugin->Init(), initialised[allocations]);
        allocationsLeft = -1;
        QCOMPARE(
            m_log->takeLog().filter(QLatin1String("m_pHashSetting/m_listDiagTab is NULL")).size(),
            allocations >= 2 ? 1 : 0);
        QCOMPARE(show(), shown[allocations]);
        if (!initialised[allocations])
            QCOMPARE(m_plugin->Init(), 1); // with memory again
        cleanup();
        init();
    }
}

QTEST_MAIN(ForeignHostTest)
#include "foreign_host.moc"
