// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Commands.h"

#include "ExitCode.h"
#include "HostFiles.h"
#include "Options.h"
#include "config/ConfigCheck.h"
#include "modem/HostPlugins.h"
#include "modem/ModemSource.h"
#include "report/Report.h"
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

QByteArray content(const QList<ShownPage> &pages, const ModemSource &modem, const Options &options)
{
    if (options.print)
        return Report::rows(pages).toUtf8();
    const Report report(pages,
                        {HostFiles::path(HostFiles::Configuration), options.language, modem.name(),
                         modem.problem()},
                        options.mask ? Report::Masked : Report::Unmasked);
    return options.json ? report.json() : report.text().toUtf8();
}

/// Opens the diagnostics window, and does with it what \a options ask for.
int showDiagnostics(MainWindow &window, const ModemSource &modem, const Options &options)
{
    if (!window.openDiagnostics())
        return fail(WindowNotOpened, QStringLiteral("the diagnostics window could not be opened "
                                                    "(--log tells why)"));
    const DiagnosticsReader reader;
    if (!options.tab.isNull() && !reader.selectTab(options.tab))
        return failUnknown("tab", options.tab, reader.tabNames());
    QString error;
    if ((options.print || options.report) &&
        !Report::write(content(reader.read(), modem, options), options.reportFile, &error))
        return fail(FileNotWritten, error);
    if (!options.screenshot.isNull()) {
        QCoreApplication::processEvents();
        const bool named = !QFileInfo(options.screenshot).suffix().isEmpty();
        if (!reader.window() ||
            !reader.window()->grab().save(options.screenshot, named ? nullptr : "PNG"))
            return fail(FileNotWritten,
                        QStringLiteral("cannot write the picture %1").arg(options.screenshot));
    }
    return Success;
}

} // namespace

int Commands::listModems(const ModemSource &modem)
{
    for (const QString &name : modem.names())
        std::puts(qUtf8Printable(name));
    return Success;
}

int Commands::checkConfig(const QString &fileName)
{
    QStringList findings;
    QString error;
    if (!ConfigCheck::run(fileName, HostFiles::path(HostFiles::ConfigurationSchema), &findings,
                          &error))
        return fail(FileNotRead, error);
    for (const QString &finding : findings)
        std::printf("%s:%s\n", qUtf8Printable(fileName), qUtf8Printable(finding));
    return findings.isEmpty() ? Success : ConfigHasFindings;
}

int Commands::show(const ModemSource &modem, const Options &options)
{
    const HostPlugins hostPlugins;
    PluginLoader plugin(HostFiles::path(HostFiles::Plugin));
    if (!plugin.start())
        return fail(exitCode(plugin.state()), plugin.error());

    if (!modem.problem().isEmpty())
        std::fprintf(stderr, "diagnosis-host: %s\n", qUtf8Printable(modem.problem()));
    MainWindow window(modem, plugin);
    window.show();
    if (options.open) {
        const int code = showDiagnostics(window, modem, options);
        if (code != Success || options.endsByItself()) {
            window.close();
            return code;
        }
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
    if (code == Success) {
        picture.setAutoRemove(false);
        std::printf("No display: the screenshot is %s\n", qUtf8Printable(picture.fileName()));
    }
    return code;
}
