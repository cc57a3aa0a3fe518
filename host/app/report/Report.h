// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef REPORT_H
#define REPORT_H

#include "report/DiagnosticsReader.h"

#include <QPair>

/// What the diagnostics window shows, as text and as JSON, below a head with the facts that a
/// reader elsewhere needs.
class Report
{
public:
    enum Identifiers
    {
        Unmasked,
        Masked ///< values that tell the device, its user or its place are hidden by maskedValue()
    };

    /// Where the pages come from.
    struct Source
    {
        QString configuration; ///< the file that the window was made of
        QString language;
        QString modem;
        QString problem; ///< of the modem; empty if there is none
    };

    Report(const QList<ShownPage> &pages, const Source &source, Identifiers identifiers);

    /// A line for each title, one for each row, and an empty line between pages.
    static QString rows(const QList<ShownPage> &pages);

    /// The head, and all pages.
    QString text() const;

    QByteArray json() const;

    /// Writes to a file, or to standard output if its name is null or "-". Returns false, with the
    /// reason in *\a error, if not all could be written; then an earlier file is still there.
    static bool write(const QByteArray &content, const QString &fileName, QString *error);

private:
    QList<QPair<QString, QString>> m_facts;
    QList<ShownPage> m_pages;
};

#endif
