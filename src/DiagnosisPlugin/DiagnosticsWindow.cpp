// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsWindow.h"

#include "DiagnosticsText.h"

#include "core/CommonUtils.h"
#include "core/ExtendDialog.h"

#include <QHBoxLayout>
#include <QPushButton>

#include <new>

ExtendDialog *DiagnosticsWindow::createFrame(QWidget *parent)
{
    const int plainDialog = 1;
    return new (std::nothrow) ExtendDialog(parent, Qt::WindowCloseButtonHint, plainDialog);
}

bool DiagnosticsWindow::hasSaveButton(const QHash<QString, QString> *settings)
{
    return settings && settings->value(QLatin1String("SaveButton")) == QLatin1String("true");
}

void DiagnosticsWindow::setUpButton(QPushButton *button, const char *textKey, QObject *receiver,
                                    const char *slot)
{
    button->setText(DiagnosticsText::of(QLatin1String(textKey)));
    QObject::connect(button, SIGNAL(clicked()), receiver, slot);
}

void DiagnosticsWindow::layOutButtons(QHBoxLayout *layout, QPushButton *save, QPushButton *refresh,
                                      QPushButton *cancel, int gap, int rightMargin)
{
    layout->setSpacing(0);   // the style's spacing would add to the gap
    layout->addWidget(save); // Qt ignores a null button, with a warning
    layout->addSpacing(gap);
    layout->addWidget(refresh);
    layout->addSpacing(gap);
    layout->addWidget(cancel);
    layout->setContentsMargins(0, 0, rightMargin, 0);
    layout->setAlignment(Qt::AlignRight);
    if (save)
        QWidget::setTabOrder(save, refresh);
    QWidget::setTabOrder(refresh, cancel);
    // Without this, Qt 4 makes the first button of the Tab order the default.
    cancel->setDefault(true);
    cancel->setFocus(Qt::OtherFocusReason);
}

void DiagnosticsWindow::show(ExtendDialog *window)
{
    window->setVisible(true);
    CommonUtils::MoveCentre(window);
    window->setAttribute(Qt::WA_DeleteOnClose);
}
