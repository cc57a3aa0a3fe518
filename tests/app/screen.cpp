// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "HostCore.h"
#include "TestSupport.h"
#include "modem/HostPlugins.h"
#include "modem/ModemSource.h"
#include "window/Diagnostics.h"
#include "window/MainWindow.h"
#include "window/PluginLoader.h"

#include <QPushButton>
#include <QScreen>
#include <QToolButton>
#include <QWindow>
#include <QtTest>

/// The windows on a real screen, under a window manager.
class ScreenTest : public QObject
{
    Q_OBJECT

    /// Waits until the window manager has done all moves: it does what it is asked in turn.
    static void settleMoves()
    {
        QWidget later;
        later.show();
        QVERIFY(QTest::qWaitForWindowExposed(&later));
    }

    static void verifyWhole(const QWidget *window)
    {
        QVERIFY(QTest::qWaitForWindowExposed(window->windowHandle()));
        settleMoves();
        const QRect screen = window->screen()->availableGeometry();
        const QRect frame = window->windowHandle()->frameGeometry();
        QVERIFY(frame.height() > window->height()); // there is a title bar
        // Of a frame that is larger than the screen the upper left corner is seen.
        const QRect seen(frame.topLeft(), frame.size().boundedTo(screen.size()));
        QCOMPARE(seen.intersected(screen), seen);
    }

private Q_SLOTS:
    void whole_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("modem");
        const QString translations = DIAG_BINARY_DIR "/" HOST_DATA_DIR "/translations";
        for (const QString &language : HostCore::languages(translations)) {
            for (const char *modem : {"wcdma", "cdma"})
                QTest::addRow("%s %s", qPrintable(language), modem) << language << modem;
        }
    }

    /// Both windows, title bars and tabs included, wherever the host's window was moved before.
    void whole()
    {
        QFETCH(QString, language);
        QFETCH(QString, modem);
        const TestSupport::LogCapture log;
        const QDir built(DIAG_BINARY_DIR);
        HostCore::setPluginLibraryPath(built.filePath(HOST_LIBRARY_DIR));
        QCoreApplication::setAttribute(Qt::AA_Use96Dpi, false); // QTEST_MAIN sets it
        HostCore::applyLook(*qApp);
        TestSupport::setLanguage(language.toLatin1());
        TestSupport::attachModem(modem.toLatin1());
        const ModemSource source(QString{});
        const HostPlugins hostPlugins;
        PluginLoader loader(built.filePath(HOST_PLUGIN_DIR "/libDiagnosisPlugin.so"));
        QVERIFY2(loader.start(), qPrintable(loader.error()));
        Diagnostics diagnostics(source, loader, QString(), language);
        MainWindow window(source, diagnostics);
        window.show();
        verifyWhole(&window);

        const QRect screen = window.screen()->availableGeometry();
        for (const QPoint &corner : {window.pos(), screen.topLeft(), screen.bottomRight()}) {
            window.move(corner);
            settleMoves();
            window.findChild<QPushButton *>("MainWindow_pushButtonDiagnostics")->click();
            const QWidget *const dialog = TestSupport::diagnosticsWindow();
            verifyWhole(dialog);
            QCOMPARE(TestSupport::clipped(dialog), QStringList());
            for (const QToolButton *arrow : dialog->findChildren<QToolButton *>())
                QVERIFY(!arrow->isVisible()); // all tabs fit
            diagnostics.close();
        }
    }
};

QTEST_MAIN(ScreenTest)
#include "screen.moc"
