// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// Preloaded into a program: closes its standard output when a dialog has been painted.

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QTimer>

#include <unistd.h>

class Watch : public QObject
{
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && qobject_cast<QDialog *>(object)) {
            QCoreApplication::instance()->removeEventFilter(this);
            // After the children, and after all has gone to the display.
            QTimer::singleShot(0, [] { close(STDOUT_FILENO); });
        }
        return false;
    }
};

static void install()
{
    QCoreApplication::instance()->installEventFilter(new Watch);
}

Q_COREAPP_STARTUP_FUNCTION(install)
