// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Fuzz.h"

#include "DiagnosticsCdmaUI.h"
#include "DiagnosticsConfigParse.h"
#include "DiagnosticsSaveDialogs.h"
#include "DiagnosticsUILogic.h"

#include <QApplication>
#include <QFile>

#include <cstdio>
#include <cstdlib>

using namespace TestSupport;

namespace {

QString exportPath()
{
    return Fuzz::host().folder() + QLatin1String("report.txt");
}

void take(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    // Where there is no Save button the toolkit says that it passes over it, and the offscreen
    // platform speaks of itself for windows with size constraints.
    const bool expected =
        type == QtDebugMsg ||
        message.startsWith(QLatin1String("QLayout: Cannot add a null widget to QHBoxLayout/")) ||
        message == QLatin1String("This plugin does not support propagateSizeHints()");
    Fuzz::require(expected, "no warning of the toolkit", message);
}

} // namespace

// In place of the plug-in's own: its dialogs would take most of the time.
QString DiagnosticsSaveDialogs::askPath(QWidget *)
{
    return exportPath();
}

void DiagnosticsSaveDialogs::showSuccess(QWidget *) {}

void DiagnosticsSaveDialogs::showFailure(QWidget *)
{
    Fuzz::require(false, "the export succeeds");
}

void Fuzz::require(bool condition, const char *rule, const QString &detail)
{
    if (condition)
        return;
    std::fprintf(stderr, "Not so: %s: %s\n", rule, detail.toUtf8().constData());
    std::abort();
}

ConfiguredHost &Fuzz::host()
{
    static const bool prepared = qputenv("QT_QPA_PLATFORM", "offscreen");
    Q_UNUSED(prepared)
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    static QApplication application(argc, argv);
    static ConfiguredHost configuredHost;
    qInstallMessageHandler(take);
    return configuredHost;
}

Fuzz::Session::Session() : parent(new QWidget)
{
    require(plugin.Init() == 1, "the plug-in initialises");
}

Fuzz::Session::~Session()
{
    delete parent;
    settle();
    plugin.OnDestroy();
    DiagnosticsCdmaUI::DestroyInstance();
    for (int reference = 0; reference < 4; ++reference)
        DiagnosticsUILogic::Destroy();
    for (int reference = 0; reference < 4; ++reference)
        DiagnosticsConfigParse::DestroyInstance();
}

int Fuzz::Session::show()
{
    QRect rect;
    return plugin.ShowWindow(parent, rect);
}

QPushButton *Fuzz::Session::button(const char *name) const
{
    return parent->findChild<QPushButton *>(QLatin1String("DiagnosticsUIPlugin_pushButton") +
                                            QLatin1String(name));
}

QByteArray Fuzz::Session::save(const char *name)
{
    button(name)->click();
    QFile file(exportPath());
    require(file.open(QIODevice::ReadOnly), "the export is a file");
    return file.readAll();
}
