// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsRow.h"

#include <QLabel>
#include <QStyle>

namespace {

/// Sets a caption's text and its buddy. The buddy tells assistive technology which value the
/// caption belongs to, but makes the label read an ampersand as the mark of a shortcut, so a text
/// with an ampersand gets none. The old buddy is removed first. If it were removed after the text
/// was set, its shortcut would stay.
void setText(QLabel *caption, QLabel *value, const QString &text)
{
    caption->setBuddy(nullptr);
    caption->setText(text);
    if (!text.contains(QLatin1Char('&')))
        caption->setBuddy(value);
}

} // namespace

QString DiagnosticsRow::captionName(const QString &rowName)
{
    return QLatin1String("DiagnosticsUIPlugin_label") + rowName;
}

QString DiagnosticsRow::valueName(const QString &rowName)
{
    return captionName(rowName) + QLatin1String("Value");
}

void DiagnosticsRow::setUp(QLabel *caption, QLabel *value, const QString &text)
{
    // In a window from right to left, labels would align a text in Latin letters to the left, and
    // caption and value would stand apart.
    for (QLabel *label : {caption, value})
        label->setAlignment(Qt::AlignAbsolute |
                            QStyle::visualAlignment(label->layoutDirection(), label->alignment()));
    setText(caption, value, text);
    // An operator's name, which the network sends, must not be read as markup.
    value->setTextFormat(Qt::PlainText);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
}

QLabel *DiagnosticsRow::caption(const QWidget *below, const QString &rowName)
{
    return below ? below->findChild<QLabel *>(captionName(rowName)) : nullptr;
}

QLabel *DiagnosticsRow::value(const QWidget *below, const QString &rowName)
{
    return below ? below->findChild<QLabel *>(valueName(rowName)) : nullptr;
}

void DiagnosticsRow::setCaption(const QWidget *below, const QString &rowName, const QString &text)
{
    QLabel *label = caption(below, rowName);
    if (label)
        setText(label, value(below, rowName), text);
}

void DiagnosticsRow::replaceSimWording(const QWidget *below, const QString &rowName,
                                       const QString &wording)
{
    const QLabel *label = caption(below, rowName);
    if (label)
        setCaption(below, rowName, label->text().replace(QLatin1String("SIM/USIM"), wording));
}
