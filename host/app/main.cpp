// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsReader.h"
#include "HostCore.h"
#include "HostPlugins.h"
#include "Log.h"
#include "MainWindow.h"
#include "ModemSource.h"
#include "PluginLoader.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QPixmap>

#include <cstdio>
#include <cstdlib>

namespace {

enum ExitCode
{
    Success = 0,
    WrongUsage = 1,
    PluginMissing = 2,
    WrongInterface = 3,
    InitFailed = 4,
    WindowNotOpened = 5,
    FileNotWritten = 6
};

const char description[] = "Host of the diagnostics plug-in, on a simulated or a real modem.\n"
                           "\n"
                           "Exit codes:\n"
                           "  0  success\n"
                           "  1  wrong usage: unknown option, modem, language or tab\n"
                           "  2  the plug-in is missing or cannot be loaded\n"
                           "  3  the plug-in does not have the host's interfaces\n"
                           "  4  the plug-in's initialisation failed\n"
                           "  5  the diagnostics window could not be opened\n"
                           "  6  a file could not be written";

/// What the command line asks for.
struct Request
{
    QString tab;
    QString screenshot;
    bool open;
    bool print;
};

int fail(ExitCode code, const QString &reason)
{
    std::fprintf(stderr, "diagnosis-host: %s\n", qUtf8Printable(reason));
    return code;
}

int failUsage(const char *what, const QString &given, const QStringList &known)
{
    return fail(WrongUsage, QStringLiteral("unknown %1 \"%2\", known are: %3")
                                .arg(QLatin1String(what), given,
                                     known.isEmpty() ? QStringLiteral("none")
                                                     : known.join(QLatin1String(", "))));
}

/// A folder of the host, given relative to the root that the program is installed in.
QString hostFolder(const char *relative)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1String("/../") +
                           QLatin1String(relative));
}

/// Without a wish the language of the system, if the host has it.
bool chooseLanguage(const QString &folder, const QString &wish)
{
    if (!wish.isNull())
        return HostCore::setLanguage(folder, wish);
    const QString system = QLocale::system().name(); // "zh_CN", "de_AT"
    return HostCore::setLanguage(folder, system) ||
           HostCore::setLanguage(folder, system.section(QLatin1Char('_'), 0, 0)) ||
           HostCore::setLanguage(folder, QStringLiteral("en"));
}

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

/// Opens the diagnostics window and does with it what is asked.
int showDiagnostics(MainWindow &window, const Request &request)
{
    if (!window.openDiagnostics())
        return fail(WindowNotOpened, QStringLiteral("the diagnostics window could not be opened "
                                                    "(--log tells why)"));
    const DiagnosticsReader reader;
    if (!request.tab.isNull() && !reader.selectTab(request.tab))
        return failUsage("tab", request.tab, reader.tabNames());
    if (request.print &&
        (std::fputs(reader.text().toUtf8().constData(), stdout) < 0 || std::fflush(stdout) != 0))
        return fail(FileNotWritten, QStringLiteral("cannot write to standard output"));
    if (!request.screenshot.isNull()) {
        QCoreApplication::processEvents();
        const bool named = !QFileInfo(request.screenshot).suffix().isEmpty();
        if (!reader.window() ||
            !reader.window()->grab().save(request.screenshot, named ? nullptr : "PNG"))
            return fail(FileNotWritten,
                        QStringLiteral("cannot write the picture %1").arg(request.screenshot));
    }
    return Success;
}

/// The host's life, from the attached modem to the end of its windows.
int run(const ModemSource &modem, const Request &request)
{
    const HostPlugins hostPlugins;
    PluginLoader plugin(hostFolder(HOST_LIBRARY_DIR) +
                        QLatin1String("/plugins/DiagnosisPlugin/libDiagnosisPlugin.so"));
    if (!plugin.start())
        return fail(exitCode(plugin.state()), plugin.error());

    if (!modem.problem().isEmpty())
        std::fprintf(stderr, "diagnosis-host: %s\n", qUtf8Printable(modem.problem()));
    MainWindow window(modem, plugin);
    window.show();
    if (request.open) {
        const int code = showDiagnostics(window, request);
        if (code != Success || request.print || !request.screenshot.isNull()) {
            window.close();
            return code;
        }
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    // Nothing here draws with OpenGL; loading its drivers would only slow the start.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "none");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY") &&
        qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Log::install();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("diagnosis-host"));
    QApplication::setApplicationVersion(QStringLiteral(HOST_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(QLatin1String(description));
    const QString name = QStringLiteral("name");
    const QString file = QStringLiteral("file");
    const QCommandLineOption modem(
        QStringLiteral("modem"),
        QStringLiteral(
            "Attach this modem: a simulated one, \"modemmanager\" for the first modem of the "
            "system's service, \"modemmanager:1\" for the second, or \"auto\" (the default) "
            "for the service's where there is one and a simulated one otherwise."),
        name, QStringLiteral("auto"));
    const QCommandLineOption listModems(QStringLiteral("list-modems"),
                                        QStringLiteral("List the modems and exit."));
    const QCommandLineOption language(
        QStringLiteral("language"),
        QStringLiteral("Show texts in this language (default: the system's, else English)."), name);
    const QCommandLineOption open(QStringLiteral("open"),
                                  QStringLiteral("Open the diagnostics window at once."));
    const QCommandLineOption tab(QStringLiteral("tab"),
                                 QStringLiteral("Open it and show this tab, by its configured name "
                                                "(\"Network status\")."),
                                 name);
    const QCommandLineOption print(
        QStringLiteral("print"),
        QStringLiteral("Open it, print all its captions and values, and exit."));
    const QCommandLineOption screenshot(
        QStringLiteral("screenshot"),
        QStringLiteral("Open it, write its picture to a file, and exit."), file);
    const QCommandLineOption log(QStringLiteral("log"),
                                 QStringLiteral("Write the plug-in's log to a file; \"-\" stands "
                                                "for standard error."),
                                 file);
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help and exit."));
    parser.addOptions({modem, listModems, language, open, tab, print, screenshot, log, help});
    const QCommandLineOption version = parser.addVersionOption();
    if (!parser.parse(QApplication::arguments()))
        return fail(WrongUsage, parser.errorText());
    if (parser.isSet(help))
        parser.showHelp(Success);
    if (parser.isSet(version))
        parser.showVersion();
    if (!parser.positionalArguments().isEmpty())
        return fail(WrongUsage, QStringLiteral("unexpected argument \"%1\"")
                                    .arg(parser.positionalArguments().constFirst()));

    const QString data = hostFolder(HOST_DATA_DIR);
    ModemSource source(data + QLatin1String("/modems"));
    if (parser.isSet(listModems)) {
        for (const QString &known : source.names())
            std::puts(qUtf8Printable(known));
        return Success;
    }
    if (parser.isSet(log) && !Log::open(parser.value(log)))
        return fail(FileNotWritten,
                    QStringLiteral("cannot write the log %1").arg(parser.value(log)));

    const QString translations = data + QLatin1String("/translations");
    if (!chooseLanguage(translations, parser.isSet(language) ? parser.value(language) : QString()))
        return failUsage("language", parser.value(language), HostCore::languages(translations));
    HostCore::setPluginLibraryPath(hostFolder(HOST_LIBRARY_DIR));
    HostCore::setSettingsFile(data + QLatin1String("/host.ini"));
    HostCore::applyLook(application);

    const Request request{parser.isSet(tab) ? parser.value(tab) : QString(),
                          parser.isSet(screenshot) ? parser.value(screenshot) : QString(),
                          parser.isSet(open) || parser.isSet(tab) || parser.isSet(print) ||
                              parser.isSet(screenshot),
                          parser.isSet(print)};
    QString error;
    if (!source.attach(parser.value(modem), &error))
        return fail(WrongUsage, error);
    const int code = run(source, request);
    if (!source.detach()) {
        std::fflush(nullptr);
        std::_Exit(code);
    }
    return code;
}
