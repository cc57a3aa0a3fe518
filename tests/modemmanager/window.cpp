// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The window on the virtual modem, and how long the GUI thread is kept, whatever the service does.

#include "HostCore.h"
#include "HostPlugins.h"
#include "ModemService.h"
#include "ModemSource.h"
#include "PluginLoader.h"
#include "TestSupport.h"
#include "VirtualModem.h"

#include "interfaces/INotify.h"
#include "interfaces/IUIPlugin.h"

#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

using namespace TestSupport;

class ModemManagerWindow : public QObject
{
    Q_OBJECT

private slots:
    void window();
};

/// Visits and refreshes every tab; the longest that one of it took, in milliseconds.
static double visitAll()
{
    auto *tabs = diagnosticsWindow()->findChild<QTabWidget *>();
    auto *refresh =
        diagnosticsWindow()->findChild<QPushButton *>("DiagnosticsUIPlugin_pushButtonRefresh");
    double longest = 0;
    for (int index = 0; index < tabs->count(); ++index) {
        QElapsedTimer timer;
        timer.start();
        tabs->setCurrentIndex(index);
        refresh->click();
        longest = qMax(longest, timer.nsecsElapsed() / 1e6);
    }
    return longest;
}

void ModemManagerWindow::window()
{
    VirtualModem service;
    const QString problem = service.start();
    if (!problem.isEmpty())
        QSKIP(qPrintable(problem));
    QVERIFY(service.add());
    const LogCapture log;
    setLanguage("en");
    HostCore::setPluginLibraryPath(LIBRARY_FOLDER);
    ModemSource modem{QString()};
    QString error;
    QVERIFY2(modem.attach("auto", &error), qPrintable(error));
    QVERIFY(!modem.isSimulated());
    QCOMPARE(modem.description(), QString("TM-V1"));
    // The last to come is what the set-up of the signal brings.
    QTRY_COMPARE_WITH_TIMEOUT(ServiceSupport::readSdk()["rscp"], QString("-87|-6"), 15000);
    const HostPlugins hostPlugins;
    PluginLoader plugin(MODULE_FILE);
    QVERIFY(plugin.start());
    QWidget hostWindow;
    QRect rect;
    QCOMPARE(plugin.plugin()->ShowWindow(&hostWindow, rect), 1);

    const double answering = visitAll();
    QElapsedTimer timer;
    timer.start();
    service.readAll();
    const double client = timer.nsecsElapsed() / 1e6;
    QCOMPARE(flatten(diagnosticsWindow()),
             ServiceSupport::content("window.virtual").split('\n', Qt::SkipEmptyParts));

    service.daemon().signal(SIGSTOP);
    double stopped = visitAll();
    QTRY_VERIFY_WITH_TIMEOUT(!ModemService::problem().empty(), 30000);
    stopped = qMax(stopped, visitAll());
    service.daemon().signal(SIGCONT);
    QCOMPARE(flatten(diagnosticsWindow()).filter(" = Unknown").size(), 30); // all but the fixed one
    plugin.notify()->Notify(4100, 0, 0);
    settle();
    std::printf(
        "longest visit and refresh of a tab: %.2f ms, while the service was stopped: %.2f ms; "
        "a client that reads all objects over the bus: %.2f ms\n",
        answering, stopped, client);
    QVERIFY(stopped < 1000); // a call that waited for the service would take longer
}

QTEST_MAIN(ModemManagerWindow)
#include "window.moc"
