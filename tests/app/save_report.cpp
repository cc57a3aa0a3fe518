// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The program loads this library first, in place of a user: it visits every tab of the open window,
// saves the report to the file SAVE_REPORT, and closes the windows.

#include "TestSupport.h"

#include <QApplication>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>

static void use()
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, [timer] {
        QWidget *window = TestSupport::diagnosticsWindow();
        if (!window)
            return;
        timer->stop();
        auto *tabs = window->findChild<QTabWidget *>();
        for (int index = 0; index < tabs->count(); ++index)
            tabs->setCurrentIndex(index);
        TestSupport::save(window->findChild<QPushButton *>("DiagnosticsUIPlugin_pushButtonSave"),
                          QFile::decodeName(qgetenv("SAVE_REPORT")));
        QApplication::closeAllWindows();
    });
    timer->start(10);
}

Q_COREAPP_STARTUP_FUNCTION(use)
