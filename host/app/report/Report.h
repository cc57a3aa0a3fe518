// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef REPORT_H
#define REPORT_H

#include "report/DiagnosticsReader.h"

#include <QPair>

/// What the diagnostics window shows, as text and as JSON, with the facts that whoever reads it
/// elsewhere needs.
class Report
{
public:
    explicit Report(const QList<ShownPage> &pages) : m_pages(pages) {}

    /// Adds a fact of the head, in this order.
    void addFact(const QString &name, const QString &value);

    /// Hides what names the device, its user or its place, by masked().
    void mask();

    /// All pages: a line for each title, one for each row, an empty line between pages.
    QString rows() const;

    /// The head, and all pages.
    QString text() const;

    QByteArray json() const;

    /// Writes to a file, or to standard output where its name is null or "-". False, with the
    /// reason in *\a error, when not all could be written; then an earlier file is still there.
    static bool write(const QByteArray &content, const QString &fileName, QString *error);

    /// A row's value with '*' for each character that must not be public, chosen by the row's
    /// configured name. The unknown text and the values of other rows stay.
    static QString masked(const ShownRow &row);

private:
    QList<QPair<QString, QString>> m_facts;
    QList<ShownPage> m_pages;
};

#endif
