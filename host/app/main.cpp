// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Commands.h"
#include "ExitCode.h"
#include "HostCore.h"
#include "HostFiles.h"
#include "Log.h"
#include "Options.h"
#include "Platform.h"
#include "modem/ModemSource.h"

#include <QApplication>
#include <QIcon>
#include <QImageReader>
#include <QPixmap>

#include <cstdio>
#include <cstdlib>

int main(int argc, char *argv[])
{
    Platform::choose(Options::needNoScreen(argc, argv));
    Log::install();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("diagnosis-host"));
    QApplication::setApplicationVersion(QStringLiteral(HOST_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("diagnosis-host"));
    // Detecting the format would load Qt's reader of each format.
    QImageReader icon(HostFiles::path(HostFiles::Icon), "png");
    icon.setAutoDetectImageFormat(false);
    QApplication::setWindowIcon(QIcon(QPixmap::fromImageReader(&icon)));

    Options options;
    QString error;
    if (!options.parse(QApplication::arguments(), &error))
        return fail(WrongUsage, error);

    if (!options.information.isNull())
        return Commands::print(options.information);

    ModemSource modem(HostFiles::path(HostFiles::Modems));
    if (options.listModems)
        return Commands::print(modem.names().join(QLatin1Char('\n')) + QLatin1Char('\n'));
    if (!options.log.isNull() && !Log::open(options.log))
        return fail(FileNotWritten, QStringLiteral("cannot write the log %1").arg(options.log));

    const QString translations = HostFiles::path(HostFiles::Translations);
    if (options.language.isNull())
        options.language = HostCore::systemLanguage(translations);
    const QStringList languages = HostCore::languages(translations);
    if (!languages.contains(options.language))
        return failUnknown("language", options.language, languages);
    if (!HostCore::setLanguage(translations, options.language))
        return fail(FileNotRead, QStringLiteral("the translation %1/host_%2.qm is broken")
                                     .arg(translations, options.language));
    if (!options.configFile.isNull())
        return Commands::checkConfig(options.configFile);

    HostCore::setSettingsFile(HostFiles::path(HostFiles::Settings));
    HostCore::applyLook(application);
    const bool isSeen = !options.endsByItself() && !Platform::isMissing();
    if (!modem.attach(options.modem, isSeen ? ModemSource::Replaced : ModemSource::Reported,
                      &error))
        return fail(WrongUsage, error);
    const int code = isSeen || options.endsByItself() ? Commands::show(modem, options)
                                                      : Commands::showUnseen(modem, options);
    if (!modem.detach()) {
        std::fflush(nullptr);
        std::_Exit(code);
    }
    return code;
}
