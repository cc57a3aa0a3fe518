// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef CAPTIONRULES_H
#define CAPTIONRULES_H

#include <QList>
#include <QString>

/// The rules about the captions of the tabs and the wordings for the SIM tab. The window finds a
/// tab by the first caption that contains a text.
class CaptionRules
{
public:
    struct Text
    {
        int offset; ///< in the document
        QString text;
    };

    /// Adds a tab that is shown. Its caption is the text of the key in the host's language.
    void addTab(const QString &resourceKey, int offset);

    /// Adds the content of a <simmsgprompt>. \a common is true if it is in <common>.
    void addWording(const QString &wording, int offset, bool common);

    bool hasWording() const { return !m_wordings.isEmpty(); }

    /// What breaks the rules. Findings about the whole document get the offset \a root.
    QList<Text> findings(int root) const;

private:
    int indexOf(const QString &part) const;

    QList<Text> m_captions;
    QList<Text> m_wordings;
    bool m_hasCommonWording = false;
};

#endif
