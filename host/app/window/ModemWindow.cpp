// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "window/ModemWindow.h"

#include "SdkControl.h"
#include "modem/ModemSource.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

ModemWindow::ModemWindow(const ModemSource &modem)
    : m_modem(modem), m_description(new QLabel), m_state(new QLabel),
      m_plugIn(new QPushButton(tr("&Plug in"))), m_unplug(new QPushButton(tr("&Unplug")))
{
    setWindowTitle(tr("Modem"));
    // The program ends with the host's window, not with this one.
    setAttribute(Qt::WA_QuitOnClose, false);
    m_state->setObjectName(QStringLiteral("ModemWindow_labelState"));
    m_plugIn->setObjectName(QStringLiteral("ModemWindow_pushButtonPlugIn"));
    m_unplug->setObjectName(QStringLiteral("ModemWindow_pushButtonUnplug"));
    m_description->setTextFormat(Qt::PlainText);

    auto *const form = new QFormLayout;
    form->addRow(tr("Name"), new QLabel(modem.name()));
    form->addRow(tr("Description"), m_description);
    form->addRow(tr("State"), m_state);

    auto *const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_plugIn);
    buttons->addWidget(m_unplug);

    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(12);
    layout->addLayout(form);
    layout->addStretch();
    layout->addLayout(buttons);
    setMinimumWidth(400);

    connect(m_plugIn, &QPushButton::clicked, this, &ModemWindow::plug);
    connect(m_unplug, &QPushButton::clicked, this, &ModemWindow::unplug);
    if (!modem.isSimulated()) {
        // The program cannot plug in a real modem, so it looks whether the user has.
        m_plugIn->hide();
        m_unplug->hide();
        auto *const look = new QTimer(this);
        connect(look, &QTimer::timeout, this, &ModemWindow::showState);
        look->start(1000);
    }
    showState();
}

void ModemWindow::plug()
{
    SdkControl::plug();
    showState();
    m_unplug->setFocus();
}

void ModemWindow::unplug()
{
    SdkControl::unplug();
    showState();
    m_plugIn->setFocus();
}

void ModemWindow::showState()
{
    const bool plugged = SdkControl::isPlugged();
    const QString problem = m_modem.problem();
    m_description->setText(m_modem.description());
    const bool away = !m_modem.isSimulated() && !problem.isEmpty();
    m_state->setText(away ? problem : plugged ? tr("Plugged in") : tr("Unplugged"));
    m_plugIn->setEnabled(!plugged);
    m_unplug->setEnabled(plugged);
}
