// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsRow.h"

#include <QLabel>
#include <QStyle>

namespace {

QString captionName(const QString &rowName)
{
    return QLatin1String("DiagnosticsUIPlugin_label") + rowName;
}

QString valueName(const QString &rowName)
{
    return captionName(rowName) + QLatin1String("Value");
}

} // namespace

void DiagnosticsRow::setUp(QLabel *caption, QLabel *value, const QString &rowName)
{
    // Beside each other in a window from right to left too: by themselves, labels turn a text in
    // Latin letters to the left there.
    for (QLabel *label : {caption, value})
        label->setAlignment(Qt::AlignAbsolute |
                            QStyle::visualAlignment(label->layoutDirection(), label->alignment()));
    caption->setObjectName(captionName(rowName));
    value->setObjectName(valueName(rowName));
    // Tells assistive technology what the value is of. A caption with a buddy shows no '&', but
    // takes the letter behind it for a shortcut.
    if (!caption->text().contains(QLatin1Char('&')))
        caption->setBuddy(value);
    // A text from the air must not be read as markup.
    value->setTextFormat(Qt::PlainText);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
}

QLabel *DiagnosticsRow::caption(const QWidget *below, const QString &rowName)
{
    return below->findChild<QLabel *>(captionName(rowName));
}

QLabel *DiagnosticsRow::value(const QWidget *below, const QString &rowName)
{
    return below->findChild<QLabel *>(valueName(rowName));
}

void DiagnosticsRow::replaceSimWording(const QWidget *below, const QString &rowName,
                                       const QString &wording)
{
    QLabel *label = caption(below, rowName);
    if (label)
        label->setText(label->text().replace(QLatin1String("SIM/USIM"), wording));
}
