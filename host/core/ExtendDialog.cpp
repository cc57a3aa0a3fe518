// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "core/ExtendDialog.h"
#include "HostCore.h"

#include <QCloseEvent>
#include <QPointer>
#include <QVBoxLayout>

namespace {

bool s_unseen = false;

} // namespace

void HostCore::setDialogsUnseen(bool unseen)
{
    s_unseen = unseen;
}

ExtendDialog::ExtendDialog(QWidget *parent, Qt::WindowFlags flags, int /*widgetType*/)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | flags),
      m_layout(new QVBoxLayout(this)), m_content(nullptr), m_ended(false)
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    setAttribute(Qt::WA_DontShowOnScreen, s_unseen);
}

ExtendDialog::~ExtendDialog()
{
    end();
}

void ExtendDialog::AddMainWidget(QWidget *widget)
{
    if (!widget || m_layout->indexOf(widget) >= 0)
        return;
    // If others have deleted the content, it is no longer in the layout.
    if (m_content && m_layout->indexOf(m_content) >= 0)
        delete m_content;
    m_content = widget;
    m_layout->addWidget(widget);
}

void ExtendDialog::setWindowTitle(const QString &title)
{
    QDialog::setWindowTitle(title);
}

void ExtendDialog::changeSize(const QSize &size)
{
    setFixedSize(size);
}

void ExtendDialog::done(int result)
{
    const QPointer<ExtendDialog> alive(this);
    QDialog::done(result);
    if (alive)
        end();
}

// QDialog::closeEvent() calls done() only if the dialog is visible.
void ExtendDialog::closeEvent(QCloseEvent *event)
{
    const QPointer<ExtendDialog> alive(this);
    QDialog::closeEvent(event);
    if (alive && event->isAccepted())
        end();
}

// No member may be used after the signal: a slot may have deleted the dialog.
void ExtendDialog::end()
{
    if (m_ended)
        return;
    m_ended = true;
    Q_EMIT dlgCloseEvent();
}
