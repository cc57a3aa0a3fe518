// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "PluginTest.h"

#include "DiagnosticsCdmaUI.h"
#include "DiagnosticsConfigParse.h"
#include "DiagnosticsUILogic.h"
#include "DiagnosticsUIPlugin.h"

#include "ModemControl.h"

#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

using namespace TestSupport;

void PluginTest::setUp(const QByteArray &configuration)
{
    m_log = new LogCapture;
    m_host = configuration.isEmpty() ? new ConfiguredHost : new ConfiguredHost(configuration);
    attachModem("wcdma");
    ModemControl::startRecording();
    m_parent = new QWidget;
    m_parent->show();
    m_plugin = new DiagnosticsUIPlugin;
}

void PluginTest::tearDown()
{
    delete m_parent;
    settle();
    delete m_plugin;
    DiagnosticsCdmaUI::DestroyInstance();
    for (int reference = 0; reference < 4; ++reference)
        DiagnosticsUILogic::Destroy();
    for (int reference = 0; reference < 4; ++reference)
        DiagnosticsConfigParse::DestroyInstance();
    delete m_host;
    QStringList warnings = m_log->takeWarnings();
    delete m_log;
    // Where there is no Save button, the toolkit says that it passes over it.
    for (const QString &warning : QStringList(warnings)) {
        if (warning.startsWith(QLatin1String("QLayout: Cannot add a null widget to QHBoxLayout/")))
            warnings.removeAll(warning);
    }
    QCOMPARE(warnings, QStringList());
}

void PluginTest::open(const QByteArray &configuration)
{
    if (!configuration.isEmpty())
        m_host->write("DiagnosisConfig.xml", configuration);
    QCOMPARE(m_plugin->Init(), 1);
    ModemControl::startRecording();
    QCOMPARE(show(), 1);
}

int PluginTest::show()
{
    QRect rect;
    return m_plugin->ShowWindow(m_parent, rect);
}

QString PluginTest::path(const char *file) const
{
    return m_host->folder() + QLatin1String(file);
}

QTabWidget *PluginTest::tabs() const
{
    return diagnosticsWindow()->findChild<QTabWidget *>();
}

QPushButton *PluginTest::button(const char *name) const
{
    return m_parent->findChild<QPushButton *>(QLatin1String("DiagnosticsUIPlugin_pushButton") +
                                              QLatin1String(name));
}

QString PluginTest::line(const char *message, const char *source)
{
    return QString::fromLatin1("TIME: ../../src/DiagnosisPlugin/%1: %2")
        .arg(QLatin1String(source), QLatin1String(message));
}

void PluginTest::compareWithGolden(const QString &file, const QStringList &lines)
{
    QFile golden(QLatin1String(TEST_SOURCE_DIR "/") + file);
    QVERIFY(golden.open(QIODevice::ReadOnly));
    const QByteArray spoken = lines.join(QLatin1Char('\n')).toUtf8() + '\n';
    const QByteArray expected = golden.readAll();
    QFile actual(file + QLatin1String(".actual"));
    if (spoken != expected && actual.open(QIODevice::WriteOnly))
        actual.write(spoken);
    QCOMPARE(QString::fromUtf8(spoken).split(QLatin1Char('\n')),
             QString::fromUtf8(expected).split(QLatin1Char('\n')));
}

QStringList PluginTest::perform(const QString &command, const QString &argument)
{
    if (command == QLatin1String("configuration"))
        m_host->write("DiagnosisConfig.xml", argument.toUtf8());
    else if (command == QLatin1String("language"))
        setLanguage(argument.toLatin1().constData());
    else if (command == QLatin1String("modem"))
        attachModem(argument.toLatin1().constData());
    else if (command == QLatin1String("set"))
        setValues(argument);
    else if (command == QLatin1String("fail"))
        ModemControl::setResult(argument.toStdString(), 1);
    else if (command == QLatin1String("open"))
        open();
    else if (command == QLatin1String("visit"))
        tabs()->setCurrentIndex(argument.toInt());
    else if (command == QLatin1String("refresh"))
        (button("Refresh") ? button("Refresh") : button("CdmaRefresh"))->click();
    else if (command == QLatin1String("rows"))
        return flatten(m_parent);
    else if (command == QLatin1String("unplug"))
        ModemControl::unplug();
    else if (command == QLatin1String("plug"))
        ModemControl::plug();
    else
        return QStringList(QLatin1String("no such command"));
    ModemControl::waitForEvents(10000);
    settle();
    return takeCalls();
}

void PluginTest::play(const QString &file, const QString &section)
{
    QFile script(QLatin1String(TEST_SOURCE_DIR "/") + file);
    QVERIFY(script.open(QIODevice::ReadOnly));
    QStringList expected;
    QStringList actual;
    bool inSection = false;
    for (const QString &line : QString::fromUtf8(script.readAll()).split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1Char('[')))
            inSection = line == QLatin1Char('[') + section + QLatin1Char(']');
        if (!inSection || line.isEmpty() || line.startsWith(QLatin1Char('[')) ||
            line.startsWith(QLatin1Char('#')))
            continue;
        expected.append(line);
        if (line.startsWith(QLatin1Char(' ')))
            continue;
        actual.append(line);
        for (const QString &outcome :
             perform(line.section(QLatin1Char(' '), 0, 0), line.section(QLatin1Char(' '), 1)))
            actual.append(QLatin1String("    ") + outcome);
    }
    QCOMPARE(actual, expected);
    QVERIFY(!actual.isEmpty());
}
