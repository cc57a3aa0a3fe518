// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The yardstick of the whole program. With an argument it shows its window on no screen, and ends.

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

int main(int argc, char *argv[])
{
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    if (argc > 1)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12);
    QApplication::setFont(font);
    QDialog dialog;
    const QLabel label(QStringLiteral("Device name"), &dialog);
    const QPushButton button(QStringLiteral("Cancel"), &dialog);
    dialog.setFixedSize(460, 426);
    dialog.show();
    return argc > 1 ? 0 : QApplication::exec();
}
