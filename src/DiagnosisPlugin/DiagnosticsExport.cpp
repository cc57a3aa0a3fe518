// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsExport.h"

#include "core/Change.h"
#include "core/CommonUtils.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>

namespace {

QString text(const char *key)
{
    return Change::tr(QLatin1String(key), QLatin1String("DiagnosisPlugin"));
}

void showOutcome(QWidget *parent, const QString &caption, const QString &message)
{
    CommonUtils::ShowMessage(QMessageBox::Information, parent, caption, message,
                             QLatin1String("IDS_OK"), QLatin1String(""), QLatin1String(""), true,
                             Qt::WindowCloseButtonHint, nullptr, QString(), true);
}

} // namespace

QString DiagnosticsExport::askPath(QWidget *parent)
{
    // The questions of QFileDialog::getSaveFileName(), but the dialog is on the heap, since a
    // window that the host closes deletes it.
    const QPointer<QFileDialog> dialog(
        new QFileDialog(parent, QString(), QDir::homePath(), QLatin1String("Text Files (*.txt)")));
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(QLatin1String("*.txt"));
    const bool accepted = dialog->exec() == QDialog::Accepted;
    const QString path = accepted && dialog ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    return path;
}

void DiagnosticsExport::showSuccess(QWidget *parent)
{
    showOutcome(parent, text("IDS_PROMPT_CAPTION"), text("IDS_EXPORTSUCCESS_PROMPT"));
}

// An information box too: an export that failed is told, not alarmed about.
void DiagnosticsExport::showFailure(QWidget *parent)
{
    showOutcome(parent, text("IDS_ERROR_CAPTION"), text("IDS_EXPORTFAILURE_PROMPT"));
}
