// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Commands.h"
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

namespace {

/// Whether nothing says where windows could be shown.
bool lacksDisplay()
{
    for (const char *name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
        if (!qEnvironmentVariableIsEmpty(name))
            return false;
    }
    return true;
}

/// Sets what Qt reads from the environment when the application object is made.
void setEnvironment(bool offscreen)
{
    if (offscreen)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Nothing here draws with OpenGL; loading its drivers would only slow the start.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "none");
}

} // namespace

int main(int argc, char *argv[])
{
    const bool noDisplay = lacksDisplay();
    setEnvironment(noDisplay || Options::needNoScreen(argc, argv));
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
    // The option -platform may have chosen one that can be seen without these variables.
    const bool unseen = noDisplay && QApplication::platformName() == QLatin1String("offscreen");
    const int code = unseen && !options.endsByItself() ? Commands::showUnseen(modem, options)
                                                       : Commands::show(modem, options);
    if (!modem.detach()) {
        std::fflush(nullptr);
        std::_Exit(code);
    }
    return code;
}
