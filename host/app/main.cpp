// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Commands.h"
#include "Display.h"
#include "ExitCode.h"
#include "HostCore.h"
#include "HostFiles.h"
#include "Log.h"
#include "Options.h"
#include "modem/ModemSource.h"

#include <QApplication>
#include <QIcon>

#include <cstdio>
#include <cstdlib>

int main(int argc, char *argv[])
{
    Display::choose(Options::needNoScreen(argc, argv));
    Log::install();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("diagnosis-host"));
    QApplication::setApplicationVersion(QStringLiteral(HOST_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("diagnosis-host"));
    QApplication::setWindowIcon(QIcon(HostFiles::path(HostFiles::Icon)));

    Options options;
    QString error;
    if (!options.parse(QApplication::arguments(), &error))
        return fail(WrongUsage, error);

    ModemSource modem(HostFiles::path(HostFiles::Modems));
    if (options.listModems)
        return Commands::listModems(modem);
    if (!options.log.isNull() && !Log::open(options.log))
        return fail(FileNotWritten, QStringLiteral("cannot write the log %1").arg(options.log));

    const QString translations = HostFiles::path(HostFiles::Translations);
    if (options.language.isNull())
        options.language = HostCore::systemLanguage(translations);
    if (!HostCore::setLanguage(translations, options.language))
        return failUnknown("language", options.language, HostCore::languages(translations));
    if (!options.configFile.isNull())
        return Commands::checkConfig(options.configFile);

    HostCore::setPluginLibraryPath(HostFiles::path(HostFiles::Libraries));
    HostCore::setSettingsFile(HostFiles::path(HostFiles::Settings));
    HostCore::applyLook(application);
    if (!modem.attach(options.modem, &error))
        return fail(WrongUsage, error);
    const int code = Display::isMissing() && !options.endsByItself()
                         ? Commands::showUnseen(modem, options)
                         : Commands::show(modem, options);
    if (!modem.detach()) {
        std::fflush(nullptr);
        std::_Exit(code);
    }
    return code;
}
