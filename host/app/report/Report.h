// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef REPORT_H
#define REPORT_H

#include "report/DiagnosticsReader.h"

#include <QPair>

/// The captions and values of the diagnostics window, as text or as JSON. The head says when, where
/// and with which versions they were read.
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

    /// The pages as text: a line for each title and each row, an empty line between pages.
    static QString rows(const QList<ShownPage> &pages);

    /// The head and the pages.
    QString text() const;

    QByteArray json() const;

    /// Writes to a file, or to standard output if its name is null or "-". Returns false, with the
    /// reason in *\a error, if not all could be written. An earlier file then stays as it was.
    static bool write(const QByteArray &content, const QString &fileName, QString *error);

private:
    QList<QPair<QString, QString>> m_facts;
    QList<ShownPage> m_pages;
};

#endif
