// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsSaveDialogs.h"

#include "DiagnosticsText.h"
#include "DiagnosticsToolkit.h"

#include "core/CommonUtils.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>

namespace {

void showOutcome(QWidget *parent, const char *captionKey, const char *messageKey)
{
    CommonUtils::ShowMessage(
        QMessageBox::Information, parent, DiagnosticsText::of(QLatin1String(captionKey)),
        DiagnosticsText::of(QLatin1String(messageKey)), QLatin1String("IDS_OK"), QLatin1String(""),
        QLatin1String(""), true, Qt::WindowCloseButtonHint, nullptr, QString(), true);
}

} // namespace

QString DiagnosticsSaveDialogs::askPath(QWidget *parent)
{
    // Asks what QFileDialog::getSaveFileName() asks. The dialog is on the heap, because a window
    // that the host closes deletes it. The start path ends with the proposed name: otherwise, if
    // the home folder is missing, the dialog would start in its parent.
    const QLatin1String proposal("*.txt");
    const QPointer<QFileDialog> dialog(
        new QFileDialog(parent, QString(), QDir::homePath() + QLatin1Char('/') + proposal,
                        QLatin1String("Text Files (*.txt)")));
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(proposal);
    offerLocalFiles(*dialog);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    const QString path = accepted && dialog ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    return path;
}

void DiagnosticsSaveDialogs::showSuccess(QWidget *parent)
{
    showOutcome(parent, "IDS_PROMPT_CAPTION", "IDS_EXPORTSUCCESS_PROMPT");
}

// A failure has the information icon too.
void DiagnosticsSaveDialogs::showFailure(QWidget *parent)
{
    showOutcome(parent, "IDS_ERROR_CAPTION", "IDS_EXPORTFAILURE_PROMPT");
}
