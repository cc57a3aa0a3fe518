// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "HostCore.h"
#include "Log.h"
#include "Options.h"
#include "config/ConfigCheck.h"
#include "modem/HostPlugins.h"
#include "modem/ModemSource.h"
#include "report/DiagnosticsReader.h"
#include "report/Report.h"
#include "window/MainWindow.h"
#include "window/PluginLoader.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QLocale>
#include <QPixmap>

#include <cstdio>
#include <cstdlib>

namespace {

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

QString pluginFolder()
{
    return hostFolder(HOST_LIBRARY_DIR) + QLatin1String("/plugins/DiagnosisPlugin/");
}

/// A null language becomes that of the system, if the host has it, else English.
bool chooseLanguage(const QString &folder, QString *language)
{
    if (language->isNull()) {
        const QString system = QLocale::system().name(); // "zh_CN", "de_AT"
        *language = QStringLiteral("en");
        for (const QString &name : {system.section(QLatin1Char('_'), 0, 0), system}) {
            if (HostCore::languages(folder).contains(name))
                *language = name;
        }
    }
    return HostCore::setLanguage(folder, *language);
}

/// Prints what is wrong in a configuration.
int checkConfig(const QString &fileName)
{
    QStringList findings;
    QString error;
    if (!ConfigCheck::run(fileName, pluginFolder() + QLatin1String("DiagnosisConfig.xsd"),
                          &findings, &error))
        return fail(FileNotRead, error);
    for (const QString &finding : findings)
        std::printf("%s:%s\n", qUtf8Printable(fileName), qUtf8Printable(finding));
    return findings.isEmpty() ? Success : ConfigHasFindings;
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

/// What identifies the configuration that the window was made of.
QString configurationSum()
{
    QFile file(pluginFolder() + QLatin1String("DiagnosisConfig.xml"));
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        return QStringLiteral("missing");
    return QStringLiteral("SHA-256 ") + QLatin1String(hash.result().toHex());
}

QByteArray report(const QList<ShownPage> &pages, const ModemSource &modem, const Options &options)
{
    Report report(pages);
    if (options.print)
        return report.rows().toUtf8();
    const QDateTime now = QDateTime::currentDateTime();
    report.addFact(QStringLiteral("Date"),
                   now.toOffsetFromUtc(now.offsetFromUtc()).toString(Qt::ISODate));
    report.addFact(QStringLiteral("Host"),
                   QStringLiteral("diagnosis-host ") + QCoreApplication::applicationVersion());
    report.addFact(QStringLiteral("Configuration"), configurationSum());
    report.addFact(QStringLiteral("Toolkit"), QStringLiteral("Qt ") + QLatin1String(qVersion()));
    report.addFact(QStringLiteral("Language"), options.language);
    report.addFact(QStringLiteral("Modem"), modem.name());
    if (!modem.problem().isEmpty())
        report.addFact(QStringLiteral("Problem"), modem.problem());
    report.addFact(QStringLiteral("Identifiers"),
                   options.mask ? QStringLiteral("masked") : QStringLiteral("shown"));
    if (options.mask)
        report.mask();
    return options.json ? report.json() : report.text().toUtf8();
}

/// Opens the diagnostics window and does with it what is asked.
int showDiagnostics(MainWindow &window, const ModemSource &modem, const Options &options)
{
    if (!window.openDiagnostics())
        return fail(WindowNotOpened, QStringLiteral("the diagnostics window could not be opened "
                                                    "(--log tells why)"));
    const DiagnosticsReader reader;
    if (!options.tab.isNull() && !reader.selectTab(options.tab))
        return failUsage("tab", options.tab, reader.tabNames());
    QString error;
    if ((options.print || options.report) &&
        !Report::write(report(reader.read(), modem, options), options.reportFile, &error))
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

/// The host's life, from the attached modem to the end of its windows.
int run(const ModemSource &modem, const Options &options)
{
    const HostPlugins hostPlugins;
    PluginLoader plugin(pluginFolder() + QLatin1String("libDiagnosisPlugin.so"));
    if (!plugin.start())
        return fail(exitCode(plugin.state()), plugin.error());

    if (!modem.problem().isEmpty())
        std::fprintf(stderr, "diagnosis-host: %s\n", qUtf8Printable(modem.problem()));
    MainWindow window(modem, plugin);
    window.show();
    if (options.open) {
        const int code = showDiagnostics(window, modem, options);
        if (code != Success || options.print || options.report || !options.screenshot.isNull()) {
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
    if (Options::needNoScreen(argc, argv) ||
        (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY") &&
         qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Log::install();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("diagnosis-host"));
    QApplication::setApplicationVersion(QStringLiteral(HOST_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("diagnosis-host"));
    QApplication::setWindowIcon(QIcon(hostFolder(HOST_ICON)));

    Options options;
    QString error;
    if (!options.parse(QApplication::arguments(), &error))
        return fail(WrongUsage, error);

    const QString data = hostFolder(HOST_DATA_DIR);
    ModemSource source(data + QLatin1String("/modems"));
    if (options.listModems) {
        for (const QString &known : source.names())
            std::puts(qUtf8Printable(known));
        return Success;
    }
    if (!options.log.isNull() && !Log::open(options.log))
        return fail(FileNotWritten, QStringLiteral("cannot write the log %1").arg(options.log));

    const QString translations = data + QLatin1String("/translations");
    if (!chooseLanguage(translations, &options.language))
        return failUsage("language", options.language, HostCore::languages(translations));
    if (!options.configFile.isNull())
        return checkConfig(options.configFile);
    HostCore::setPluginLibraryPath(hostFolder(HOST_LIBRARY_DIR));
    HostCore::setSettingsFile(data + QLatin1String("/host.ini"));
    HostCore::applyLook(application);

    if (!source.attach(options.modem, &error))
        return fail(WrongUsage, error);
    const int code = run(source, options);
    if (!source.detach()) {
        std::fflush(nullptr);
        std::_Exit(code);
    }
    return code;
}
