// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "config/CaptionRules.h"

#include "HostCore.h"

void CaptionRules::addTab(const QString &resourceKey, int offset)
{
    m_captions.append({offset, HostCore::pluginText(resourceKey)});
}

void CaptionRules::addWording(const QString &wording, int offset, bool common)
{
    m_wordings.append({offset, wording});
    m_hasCommonWording |= common;
}

QList<CaptionRules::Text> CaptionRules::findings(int root) const
{
    QList<Text> findings;
    if (m_captions.isEmpty())
        findings.append({root, QStringLiteral("No tab is shown.")});
    if (!m_hasCommonWording)
        findings.append({root, QStringLiteral("Without a <simmsgprompt> in <common>, the SIM tab "
                                              "has no title where no <customize> holds.")});
    for (int index = 0; index < m_captions.size(); ++index) {
        const Text &own = m_captions.at(index);
        const int found = indexOf(own.text);
        if (!own.text.isEmpty() && found != index)
            findings.append({own.offset, QStringLiteral("The tab stays blank: its caption, \"%1\", "
                                                        "is part of the earlier one \"%2\".")
                                             .arg(own.text, m_captions.at(found).text)});
    }
    const int simTab = indexOf(QStringLiteral("sim"));
    for (const Text &wording : m_wordings) {
        // The first tab is filled before it gets the wording as its title.
        if (simTab > 0 && wording.text != QLatin1String("SIM/USIM") &&
            indexOf(wording.text) != simTab)
            findings.append({wording.offset,
                             QStringLiteral("With this title the SIM tab stays blank: its caption, "
                                            "\"%1\", must be the first that contains it.")
                                 .arg(m_captions.at(simTab).text)});
    }
    return findings;
}

/// The first caption that contains a text, or -1.
int CaptionRules::indexOf(const QString &part) const
{
    for (int index = 0; index < m_captions.size(); ++index) {
        if (m_captions.at(index).text.contains(part, Qt::CaseInsensitive))
            return index;
    }
    return -1;
}
