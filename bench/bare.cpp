// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The least that a Qt program with a dialog does.

#include <QApplication>
#include <QDialog>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QDialog dialog;
    dialog.setFixedSize(460, 426);
    dialog.show();
    return QApplication::exec();
}
