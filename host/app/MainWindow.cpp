// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "MainWindow.h"

#include "ModemControl.h"
#include "PluginLoader.h"
#include "interfaces/INotify.h"
#include "interfaces/IUIPlugin.h"

#include <QCloseEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

MainWindow::MainWindow(const QString &modemName, const PluginLoader &plugin)
    : m_plugin(plugin), m_state(new QLabel), m_message(new QLabel),
      m_diagnostics(new QPushButton(tr("&Diagnostics"))), m_plugIn(new QPushButton(tr("&Plug in"))),
      m_unplug(new QPushButton(tr("&Unplug")))
{
    setWindowTitle(tr("Diagnosis host"));
    setObjectName(QStringLiteral("MainWindow"));
    m_message->setObjectName(QStringLiteral("MainWindow_labelMessage"));
    m_state->setObjectName(QStringLiteral("MainWindow_labelState"));
    m_diagnostics->setObjectName(QStringLiteral("MainWindow_pushButtonDiagnostics"));
    m_plugIn->setObjectName(QStringLiteral("MainWindow_pushButtonPlugIn"));
    m_unplug->setObjectName(QStringLiteral("MainWindow_pushButtonUnplug"));

    const std::string description = ModemControl::value("modem/description");
    auto *const descriptionLabel = new QLabel(QString::fromLatin1(description.c_str()));
    descriptionLabel->setTextFormat(Qt::PlainText);
    descriptionLabel->setWordWrap(true);
    m_message->setWordWrap(true);

    auto *const modem = new QGroupBox(tr("Modem"));
    auto *const form = new QFormLayout(modem);
    form->addRow(tr("Name"), new QLabel(modemName));
    form->addRow(tr("Description"), descriptionLabel);
    form->addRow(tr("State"), m_state);

    // In the order of the keyboard's way through them.
    auto *const buttons = new QHBoxLayout;
    buttons->addWidget(m_diagnostics);
    buttons->addStretch();
    buttons->addWidget(m_plugIn);
    buttons->addWidget(m_unplug);

    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(12);
    layout->addWidget(modem);
    layout->addWidget(m_message);
    layout->addStretch();
    layout->addLayout(buttons);
    resize(460, 200);

    connect(m_diagnostics, &QPushButton::clicked, this, &MainWindow::openDiagnostics);
    connect(m_plugIn, &QPushButton::clicked, this, &MainWindow::plug);
    connect(m_unplug, &QPushButton::clicked, this, &MainWindow::unplug);
    showState();
    m_diagnostics->setFocus();
}

bool MainWindow::openDiagnostics()
{
    QRect offered = geometry();
    const bool opened = m_plugin.plugin()->ShowWindow(this, offered) == 1;
    m_message->setText(opened ? QString() : tr("The diagnostics window could not be opened."));
    return opened;
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    m_plugin.notify()->Notify(NOTIFY_CLOSE_WINDOWS, 0, 0);
    QWidget::closeEvent(event);
}

void MainWindow::plug()
{
    ModemControl::plug();
    showState();
    m_unplug->setFocus();
}

void MainWindow::unplug()
{
    ModemControl::unplug();
    showState();
    m_plugIn->setFocus();
}

void MainWindow::showState()
{
    const bool plugged = ModemControl::isPlugged();
    m_state->setText(plugged ? tr("Plugged in") : tr("Unplugged"));
    m_plugIn->setEnabled(!plugged);
    m_unplug->setEnabled(plugged);
}
