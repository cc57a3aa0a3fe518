// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// Preloaded into a program: writes a byte to the descriptor that DIAG_SHOWN names as soon as a
// dialog of the program has been painted.

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QTimer>

#include <unistd.h>

namespace {

class Watch : public QObject
{
public:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && qobject_cast<QDialog *>(object)) {
            QCoreApplication::instance()->removeEventFilter(this);
            // After the children, and after all has gone to the display.
            QTimer::singleShot(0, [] {
                const int descriptor = qEnvironmentVariableIntValue("DIAG_SHOWN");
                if (write(descriptor, "!", 1) != 1)
                    qFatal("nobody waits for the window");
            });
        }
        return false;
    }
};

void install()
{
    static Watch watch;
    QCoreApplication::instance()->installEventFilter(&watch);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(install)
