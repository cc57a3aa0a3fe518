// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The window on the virtual modem, and how long the GUI thread is kept, whatever the service does.

#include "HostCore.h"
#include "TestSupport.h"
#include "VirtualModem.h"
#include "modem/HostPlugins.h"
#include "modem/ModemSource.h"
#include "modemmanager/ModemService.h"
#include "window/PluginLoader.h"

#include "interfaces/INotify.h"
#include "interfaces/IUIPlugin.h"

#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

#include <thread>

using namespace TestSupport;

class ModemManagerWindow : public QObject
{
    Q_OBJECT

private slots:
    void window();
};

struct Times
{
    double all = 0;
    double longest = 0; ///< of one refresh
};

/// Visits every tab and refreshes it; what the refreshes took, in milliseconds.
static Times visitAll()
{
    auto *tabs = diagnosticsWindow()->findChild<QTabWidget *>();
    auto *refresh =
        diagnosticsWindow()->findChild<QPushButton *>("DiagnosticsUIPlugin_pushButtonRefresh");
    Times times;
    for (int index = 0; index < tabs->count(); ++index) {
        tabs->setCurrentIndex(index);
        QElapsedTimer timer;
        timer.start();
        refresh->click();
        const double took = timer.nsecsElapsed() / 1e6;
        times.all += took;
        times.longest = qMax(times.longest, took);
    }
    return times;
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
    QVERIFY2(modem.attach("auto", ModemSource::Replaced, &error), qPrintable(error));
    QVERIFY(!modem.isSimulated());
    QCOMPARE(modem.description(), QString("TM-V1"));
    EXPECT(ServiceSupport::content("sdk.home"));
    const HostPlugins hostPlugins;
    PluginLoader plugin(MODULE_FILE);
    QVERIFY(plugin.start());
    QWidget hostWindow;
    QRect rect;
    QCOMPARE(plugin.plugin()->ShowWindow(&hostWindow, rect), 1);

    const Times answering = visitAll();
    QElapsedTimer timer;
    timer.start();
    service.readAll();
    const double client = timer.nsecsElapsed() / 1e6;
    const QStringList rows =
        ServiceSupport::content("window.virtual").split('\n', Qt::SkipEmptyParts);
    QCOMPARE(flatten(diagnosticsWindow()), rows);

    service.daemon().signal(SIGSTOP);
    double kept = visitAll().longest;
    QTRY_VERIFY_WITH_TIMEOUT(!ModemService::isPresent(0), 30000);
    kept = qMax(kept, visitAll().longest);
    QCOMPARE(flatten(diagnosticsWindow()).filter(" = Unknown").size(), 30); // all but the fixed one
    service.daemon().signal(SIGCONT);
    QTRY_VERIFY_WITH_TIMEOUT(ModemService::isPresent(0), 30000);

    std::thread killer([&service] { service.daemon().signal(SIGKILL); });
    for (int round = 0; round < 20; ++round)
        kept = qMax(kept, visitAll().longest);
    killer.join();
    QTRY_VERIFY_WITH_TIMEOUT(ModemService::status() == ModemService::Status::NoService, 30000);
    service.startService();
    QVERIFY(service.add());
    EXPECT(ServiceSupport::content("sdk.home"));
    visitAll();
    QCOMPARE(flatten(diagnosticsWindow()), rows);
    plugin.notify()->Notify(4100, 0, 0);
    settle();
    std::printf(
        "all rows of all tabs: %.2f ms, a client that reads all objects over the bus: %.2f ms; "
        "longest refresh of a tab: %.2f ms, while the service was stopped and killed: %.2f ms\n",
        answering.all, client, answering.longest, kept);
    QVERIFY(kept < 1000); // a call that waited for the service would take longer
}

QTEST_MAIN(ModemManagerWindow)
#include "window.moc"
