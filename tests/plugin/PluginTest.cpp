// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "PluginTest.h"

#include "DiagnosticsCdmaUI.h"
#include "DiagnosticsConfigParse.h"
#include "DiagnosticsUILogic.h"

#include "SdkControl.h"

#include <QRect>
#include <QRegularExpression>

using namespace TestSupport;

PluginTest::PluginTest()
{
    attachModem("wcdma");
    SdkControl::startRecording();
    m_parent->setGeometry(100, 120, 620, 500);
    m_parent->show();
}

QStringList PluginTest::end()
{
    delete m_parent;
    settle();
    delete m_plugin;
    DiagnosticsCdmaUI::DestroyInstance();
    release();
    // Where there is no Save button, Qt says that it passes over it.
    static const QRegularExpression noSaveButton("^QLayout: Cannot add a null widget to QHBoxL.*");
    return m_log.takeWarnings()
        .replaceInStrings(noSaveButton, QString())
        .filter(QRegularExpression("."));
}

void PluginTest::release()
{
    for (int reference = 0; reference < 4; ++reference)
        DiagnosticsUILogic::Destroy();
    for (int reference = 0; reference < 4; ++reference)
        DiagnosticsConfigParse::DestroyInstance();
}

int PluginTest::show()
{
    QRect rect;
    return m_plugin->ShowWindow(m_parent, rect);
}

QPushButton *PluginTest::button(const QString &name) const
{
    const QRegularExpression named(QString("_pushButton(Cdma)?%1$").arg(name));
    for (QPushButton *button : m_parent->findChildren<QPushButton *>(named)) {
        if (button->isVisible())
            return button;
    }
    return nullptr;
}
