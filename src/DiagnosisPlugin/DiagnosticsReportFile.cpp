// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsReportFile.h"

#include "DiagnosticsToolkit.h"

DiagnosticsReportFile::DiagnosticsReportFile(const QString &path) : m_file(path) {}

bool DiagnosticsReportFile::open()
{
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    m_stream.reset(new QTextStream(&m_file));
    setUtf8(*m_stream);
    return true;
}

void DiagnosticsReportFile::writeLine(const QString &text)
{
    *m_stream << text << '\n';
    m_stream->flush();
}

void DiagnosticsReportFile::writeRow(const QString &caption, const QString &value)
{
    writeLine(caption + QLatin1Char(' ') + value);
}

void DiagnosticsReportFile::close()
{
    m_file.close();
    m_stream.reset();
}
