// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "PluginTest.h"

#include "DiagnosticsCdmaUI.h"
#include "DiagnosticsConfigParse.h"
#include "DiagnosticsUILogic.h"
#include "DiagnosticsUIPlugin.h"

#include "SdkControl.h"

#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

using namespace TestSupport;

void PluginTest::setUp(const QByteArray &configuration)
{
    m_log = new LogCapture;
    m_host = configuration.isEmpty() ? new ConfiguredHost : new ConfiguredHost(configuration);
    attachModem("wcdma");
    SdkControl::startRecording();
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
        if (warning.startsWith("QLayout: Cannot add a null widget to QHBoxLayout/"))
            warnings.removeAll(warning);
    }
    QCOMPARE(warnings, QStringList());
}

void PluginTest::open(const QByteArray &configuration)
{
    if (!configuration.isEmpty())
        m_host->write("DiagnosisConfig.xml", configuration);
    QCOMPARE(m_plugin->Init(), 1);
    SdkControl::startRecording();
    QCOMPARE(show(), 1);
}

int PluginTest::show()
{
    QRect rect;
    return m_plugin->ShowWindow(m_parent, rect);
}

QString PluginTest::path(const char *file) const
{
    return m_host->folder() + file;
}

QTabWidget *PluginTest::tabs() const
{
    return diagnosticsWindow()->findChild<QTabWidget *>();
}

QPushButton *PluginTest::button(const char *name) const
{
    const QRegularExpression named(QString("_pushButton(Cdma)?%1$").arg(name));
    for (QPushButton *button : m_parent->findChildren<QPushButton *>(named)) {
        if (button->isVisible())
            return button;
    }
    return nullptr;
}

void PluginTest::compare(const QString &name, const QStringList &actual,
                         const QStringList &expected)
{
    QFile file(name + ".actual");
    if (actual != expected && file.open(QIODevice::WriteOnly))
        file.write(actual.join('\n').toUtf8() + '\n');
    int at = 0;
    while (at < actual.size() && actual.value(at) == expected.value(at))
        ++at;
    QCOMPARE(actual.value(at), expected.value(at));
    QCOMPARE(actual.size(), expected.size());
}

void PluginTest::compareWithGolden(const QString &file, const QStringList &lines)
{
    QStringList expected = QString(contentOf(TEST_SOURCE_DIR "/" + file)).split('\n');
    expected.removeLast();
    compare(file, lines, expected);
}
