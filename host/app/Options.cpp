// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Options.h"

#include <QByteArrayList>
#include <QCommandLineParser>

#include <algorithm>

namespace {

const char Description[] = "Host of the diagnostics plug-in, on a simulated or a real modem.\n"
                           "\n"
                           "Exit codes:\n"
                           "  0  success\n"
                           "  1  wrong usage: unknown option, modem, language, tab or format\n"
                           "  2  the plug-in is missing or cannot be loaded\n"
                           "  3  the plug-in does not have the host's interfaces\n"
                           "  4  the plug-in's initialisation failed\n"
                           "  5  the diagnostics window could not be opened\n"
                           "  6  a file could not be written\n"
                           "  7  the configuration has faults, which are listed\n"
                           "  8  the configuration, its schema or a translation could not be read\n"
                           "  9  there is no modem service or no modem, or it does not answer";

struct KnownOption
{
    const char *name;
    const char *value; ///< empty for an option without one
    const char *description;
};

// clang-format off
const KnownOption KnownOptions[] = {
    {"modem", "name",
     "Attach this modem: a simulated one, \"modemmanager\" for the first modem of the system's service, "
     "\"modemmanager:1\" for the second, or \"auto\" (the default) for the service's; a window then takes a "
     "simulated one if there is none."},
    {"list-modems", "", "List the modems and exit."},
    {"language", "name", "Show texts in this language (default: the system's, else English)."},
    {"open", "", "Open the diagnostics window at once."},
    {"tab", "name", "Open it and show this tab, by its configured name (\"Network status\")."},
    {"print", "", "Print all captions and values of the diagnostics window, and exit."},
    {"screenshot", "file", "Open it, write its picture to a file, and exit."},
    {"report", "",
     "Write all captions and values, below a head (date, versions, modem), to the given file or to standard "
     "output, and exit. No window is shown."},
    {"format", "name", "Write the report as \"text\" (the default) or as \"json\"."},
    {"mask", "", "Hide identifiers, location and addresses in the report, so that it can be published."},
    {"check-config", "file",
     "List the faults in a DiagnosisConfig.xml, also those that the plug-in ignores, and exit."},
    {"log", "file", "Write the plug-in's log to a file; \"-\" stands for standard error."},
};
// clang-format on

} // namespace

bool Options::needNoScreen(int count, const char *const *arguments)
{
    const QByteArrayList options = {"--report", "--list-modems", "--help", "-h", "--version",
                                    "-v",       "--check-config"};
    return std::any_of(arguments, arguments + count, [&options](const char *argument) {
        return options.contains(QByteArray(argument).split('=').constFirst());
    });
}

bool Options::parse(const QStringList &arguments, QString *error)
{
    error->clear();
    QCommandLineParser parser;
    parser.setApplicationDescription(QLatin1String(Description));
    for (const KnownOption &option : KnownOptions)
        parser.addOption({QLatin1String(option.name), QLatin1String(option.description),
                          QLatin1String(option.value)});
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help and exit."));
    parser.addOption(help);
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Show the version and exit."));
    parser.addOption(version);
    parser.addPositionalArgument(
        QStringLiteral("file"),
        QStringLiteral("Where the report goes; \"-\" stands for standard output."),
        QStringLiteral("[file]"));
    if (!parser.parse(arguments)) {
        *error = parser.errorText();
        return false;
    }
    if (parser.isSet(help))
        information = parser.helpText();
    else if (parser.isSet(version))
        information = QCoreApplication::applicationName() + QLatin1Char(' ') +
                      QCoreApplication::applicationVersion() + QLatin1Char('\n');
    if (!information.isNull())
        return true;

    const auto isSet = [&parser](const char *name) { return parser.isSet(QLatin1String(name)); };
    const auto value = [&parser, isSet](const char *name, const char *otherwise = nullptr) {
        return isSet(name) ? parser.value(QLatin1String(name)) : QString::fromLatin1(otherwise);
    };
    modem = value("modem", "auto");
    listModems = isSet("list-modems");
    language = value("language");
    tab = value("tab");
    print = isSet("print");
    screenshot = value("screenshot");
    report = isSet("report");
    const QString format = value("format", "text");
    json = format == QLatin1String("json");
    mask = isSet("mask");
    configFile = value("check-config");
    log = value("log");
    const bool shows = isSet("open") || isSet("tab") || print || isSet("screenshot");
    open = shows || report;
    const QStringList files = parser.positionalArguments();
    reportFile = files.value(0);

    if (files.size() > int(report))
        *error = QStringLiteral("unexpected argument \"%1\"").arg(files.constLast());
    else if (int(!configFile.isNull()) + int(listModems) + int(open) > 1)
        *error = QStringLiteral("--check-config and --list-modems go alone");
    else if (report && shows)
        *error = QStringLiteral("--report goes without --open, --tab, --print and --screenshot");
    else if (!report && (mask || isSet("format")))
        *error = QStringLiteral("--mask and --format go with --report only");
    else if (!json && format != QLatin1String("text"))
        *error = QStringLiteral("unknown format \"%1\", known are: text, json").arg(format);
    return error->isEmpty();
}
