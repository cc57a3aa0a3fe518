// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// Runs a program on a private message bus, where the real service has a virtual modem:
//     with_virtual_modem diagnosis-host --modem modemmanager

#include "VirtualModem.h"

#include <QCoreApplication>
#include <QProcess>
#include <QThread>

#include <cstdio>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.isEmpty()) {
        std::fputs("usage: with_virtual_modem PROGRAM [ARGUMENT...]\n", stderr);
        return 1;
    }
    VirtualModem modem;
    const QString problem = modem.start();
    if (!problem.isEmpty() || !modem.add()) {
        std::fprintf(stderr, "no virtual modem: %s\n", qPrintable(problem));
        return 1;
    }
    QThread::sleep(1); // until it is registered
    const QString program = arguments.takeFirst();
    return QProcess::execute(program, arguments);
}
