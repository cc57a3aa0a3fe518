// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef REPORT_H
#define REPORT_H

#include "modem/Verdict.h"
#include "report/DiagnosticsReader.h"

#include <QPair>

#include <vector>

/// The captions and values of the diagnostics window and what ModemManager tells besides, as text
/// or as JSON. The head says when, where and with which versions they were read, and what stands in
/// the way of a connection.
class Report
{
public:
    enum Identifiers
    {
        Unmasked,
        Masked ///< values that tell the device, its user or its place are hidden by maskedValue()
    };

    /// A function of the SDK that failed.
    struct Failure
    {
        QString function;
        VELT_ERROR result;
    };

    struct Content
    {
        QString configuration; ///< see ConfigFile::description()
        QString language;
        QString modem;
        Verdict verdict;
        bool lacksSignal = false; ///< whether the service has not read the signal in time
        QList<ShownPage> pages;
        std::vector<ModemService::Detail> details;
        QList<Failure> failures;
    };

    Report(const Content &content, Identifiers identifiers);

    /// The pages as text: a line for each title and each row, an empty line between pages.
    static QString rows(const QList<ShownPage> &pages);

    /// The head and all blocks.
    QString text() const;

    QByteArray json() const;

    /// Writes to a file, or to standard output if its name is null or "-". Returns false, with the
    /// reason in *\a error, if not all could be written. An earlier file then stays as it was.
    static bool write(const QByteArray &content, const QString &fileName, QString *error);

private:
    Content m_content;
    QList<QPair<QString, QString>> m_facts;
};

#endif
