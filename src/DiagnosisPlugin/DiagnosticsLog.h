// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

/// The three leading fields of the log lines.

#ifndef DIAGNOSTICSLOG_H
#define DIAGNOSTICSLOG_H

#include <QTime>
#include <QtDebug>

/// The current time as "hh:mm:ss:zzz". Written digit by digit: the toolkit's format-string parser
/// would cost more than all the rest of a log line.
class LogTime
{
public:
    LogTime()
    {
        const QTime now = QTime::currentTime();
        putTwoDigits(0, now.hour());
        putTwoDigits(3, now.minute());
        putTwoDigits(6, now.second());
        m_text[9] = static_cast<char>('0' + now.msec() / 100);
        putTwoDigits(10, now.msec() % 100);
        m_text[2] = m_text[5] = m_text[8] = ':';
        m_text[12] = '\0';
    }
    const char *text() const { return m_text; }

private:
    void putTwoDigits(int at, int number)
    {
        m_text[at] = static_cast<char>('0' + number / 10);
        m_text[at + 1] = static_cast<char>('0' + number % 10);
    }

    char m_text[13];
};

/// Time, source path and function as arguments of qDebug(); each source file defines its path as
/// LogSource. Where a helper writes a getter's lines, it uses LOG_AS with the getter's name.
#define LOG_AS(function) LogTime().text(), LogSource, function
#define LOG_AT LOG_AS(__func__)

#endif
