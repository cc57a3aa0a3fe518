// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Commands.h"

#include "EndingSignals.h"
#include "ExitCode.h"
#include "HostCore.h"
#include "HostFiles.h"
#include "Options.h"
#include "config/ConfigCheck.h"
#include "config/ConfigFile.h"
#include "modem/HostPlugins.h"
#include "modem/ModemSource.h"
#include "report/Report.h"
#include "window/Diagnostics.h"
#include "window/MainWindow.h"
#include "window/PluginLoader.h"

#include <QApplication>
#include <QFileInfo>
#include <QPixmap>
#include <QTemporaryFile>

#include <cstdio>

namespace {

ExitCode exitCode(PluginLoader::State reached)
{
    switch (reached) {
    case PluginLoader::Named:
    case PluginLoader::Found:
        return PluginMissing;
    case PluginLoader::Loaded:
        return WrongInterface;
    case PluginLoader::Recognised:
        return InitFailed;
    case PluginLoader::Started:
        break;
    }
    return Success;
}

int failWithoutWindow()
{
    return fail(WindowNotOpened,
                QStringLiteral("the diagnostics window could not be opened (--log tells why)"));
}

int writePicture(QWidget *window, const QString &fileName)
{
    QCoreApplication::processEvents();
    const bool named = !QFileInfo(fileName).suffix().isEmpty();
    if (!window || !window->grab().save(fileName, named ? nullptr : "PNG"))
        return fail(FileNotWritten, QStringLiteral("cannot write the picture %1").arg(fileName));
    return Success;
}

/// Opens the diagnostics window on the tab that \a options ask for.
int openTab(const Options &options, bool isOpen)
{
    if (!isOpen)
        return failWithoutWindow();
    const DiagnosticsReader reader;
    if (!options.tab.isNull() && !reader.selectTab(options.tab))
        return failUnknown("tab", options.tab, reader.tabNames());
    return Success;
}

/// Writes what \a options ask for, without the host's window.
int write(Diagnostics &diagnostics, const ModemSource &modem, const Options &options)
{
    const bool isRead = options.print || options.report;
    Report::Content content;
    if (isRead && !diagnostics.read(Diagnostics::AwaitSignal, &content))
        return failWithoutWindow();
    if (!options.tab.isNull() || !options.screenshot.isNull()) {
        const int code = openTab(options, diagnostics.open());
        if (code != Success)
            return code;
    }
    if (!isRead)
        content.verdict = modem.verdict();
    const Report report(content, options.mask ? Report::Masked : Report::Unmasked);
    const QByteArray text = options.print  ? Report::rows(content.pages).toUtf8()
                            : options.json ? report.json()
                                           : report.text().toUtf8();
    QString error;
    if (isRead && !Report::write(text, options.reportFile, &error))
        return fail(FileNotWritten, error);
    if (!options.screenshot.isNull()) {
        const int code = writePicture(DiagnosticsReader().window(), options.screenshot);
        if (code != Success)
            return code;
    }
    return content.verdict.noModem ? fail(NoModem, content.verdict.text) : Success;
}

} // namespace

int Commands::print(const QString &text)
{
    QString error;
    return Report::write(text.toUtf8(), QString(), &error) ? Success : fail(FileNotWritten, error);
}

int Commands::checkConfig(const QString &fileName)
{
    QStringList findings;
    QString error;
    if (!ConfigCheck::run(fileName, HostFiles::path(HostFiles::ConfigurationSchema), &findings,
                          &error))
        return fail(FileNotRead, error);
    QString lines;
    for (const QString &finding : findings)
        lines += fileName + QLatin1Char(':') + finding + QLatin1Char('\n');
    const int code = print(lines);
    return code == Success && !findings.isEmpty() ? ConfigHasFindings : code;
}

int Commands::show(const ModemSource &modem, const Options &options)
{
    const QString configuration = HostFiles::path(HostFiles::Configuration);
    QString libraries = HostFiles::path(HostFiles::Libraries);
    const QString problem = ConfigFile::problem(configuration);
    if (!problem.isEmpty()) {
        const QString target = QFileInfo(configuration).symLinkTarget();
        std::fprintf(stderr, "diagnosis-host: %s: %s\n",
                     qUtf8Printable(target.isEmpty() ? configuration : target),
                     qUtf8Printable(problem));
        libraries += QStringLiteral("/none"); // where the plug-in finds no configuration
    }
    HostCore::setPluginLibraryPath(libraries);
    const HostPlugins hostPlugins;
    PluginLoader plugin(HostFiles::path(HostFiles::Plugin));
    if (!plugin.start())
        return fail(exitCode(plugin.state()), plugin.error());

    Diagnostics diagnostics(modem, plugin, configuration, options.language);
    if (options.endsByItself())
        return write(diagnostics, modem, options);
    const EndingSignals endingSignals;
    MainWindow window(modem, diagnostics);
    window.show();
    if (options.open) {
        const int code = openTab(options, window.openDiagnostics());
        if (code != Success)
            return code;
    }
    return QApplication::exec();
}

int Commands::showUnseen(const ModemSource &modem, Options options)
{
    QTemporaryFile picture(QDir::temp().filePath(QStringLiteral("diagnosis-host-XXXXXX.png")));
    if (!picture.open())
        return fail(FileNotWritten, QStringLiteral("cannot write a picture to %1: %2")
                                        .arg(QDir::tempPath(), picture.errorString()));
    options.open = true;
    options.print = true;
    options.screenshot = picture.fileName();
    const int code = show(modem, options);
    if (code == Success || code == NoModem) {
        picture.setAutoRemove(false);
        std::printf("No display: the screenshot is %s\n", qUtf8Printable(picture.fileName()));
    }
    return code;
}
