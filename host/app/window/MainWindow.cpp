// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "window/MainWindow.h"

#include "interfaces/INotify.h"
#include "interfaces/IUIPlugin.h"
#include "modem/ModemSource.h"
#include "window/PluginLoader.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

MainWindow::MainWindow(const ModemSource &modem, const PluginLoader &plugin)
    : m_plugin(plugin), m_modem(modem), m_message(new QLabel)
{
    setWindowTitle(tr("Diagnosis host"));
    setObjectName(QStringLiteral("MainWindow"));
    m_message->setObjectName(QStringLiteral("MainWindow_labelMessage"));
    m_message->setWordWrap(true);
    if (modem.isSimulated())
        m_message->setText(modem.problem());
    auto *const diagnostics = new QPushButton(tr("&Diagnostics"));
    diagnostics->setObjectName(QStringLiteral("MainWindow_pushButtonDiagnostics"));

    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(12);
    layout->addWidget(m_message);
    layout->addStretch();
    layout->addWidget(diagnostics, 0, Qt::AlignLeft);
    resize(460, 120);

    connect(diagnostics, &QPushButton::clicked, this, &MainWindow::openDiagnostics);
}

bool MainWindow::openDiagnostics()
{
    QRect offered = geometry();
    const bool opened = m_plugin.plugin()->ShowWindow(this, offered) == 1;
    m_message->setText(opened ? QString() : tr("The diagnostics window could not be opened."));
    return opened;
}

void MainWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_modem.show();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    m_plugin.notify()->Notify(NOTIFY_CLOSE_WINDOWS, 0, 0);
    m_modem.close();
    QWidget::closeEvent(event);
}
