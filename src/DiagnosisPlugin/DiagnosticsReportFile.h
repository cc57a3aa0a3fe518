// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef DIAGNOSTICSREPORTFILE_H
#define DIAGNOSTICSREPORTFILE_H

#include <QFile>
#include <QString>
#include <QTextStream>

#include <memory>

/// The file of an export, of either window: UTF-8 text, flushed after each line.
class DiagnosticsReportFile
{
public:
    explicit DiagnosticsReportFile(const QString &path);

    /// Empties the file, or creates it; returns false if it cannot be opened.
    bool open();
    void writeLine(const QString &text = QString());
    void writeRow(const QString &caption, const QString &value);
    void close();

private:
    Q_DISABLE_COPY(DiagnosticsReportFile)

    QFile m_file;
    std::unique_ptr<QTextStream> m_stream; ///< null unless the file is open
};

#endif
