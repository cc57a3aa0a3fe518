// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

/// The three leading fields of the log lines.

#ifndef DIAGNOSTICSLOG_H
#define DIAGNOSTICSLOG_H

#include <QtDebug>

#include <time.h>

/// The current local time as "hh:mm:ss:zzz", written digit by digit. QTime would cost more than all
/// the rest of a log line: its current time asks each time whether the file of the time zone has
/// changed, and its text goes through a format-string parser. Here the time zone is that of the
/// process's start, unless Qt has read a newer one.
class LogTime
{
public:
    LogTime()
    {
        const int nanosecondsPerMillisecond = 1000000;
        timespec now;
        clock_gettime(CLOCK_REALTIME, &now);
        tm local;
        localtime_r(&now.tv_sec, &local);
        const int milliseconds = static_cast<int>(now.tv_nsec / nanosecondsPerMillisecond);
        putTwoDigits(0, local.tm_hour);
        putTwoDigits(3, local.tm_min);
        putTwoDigits(6, local.tm_sec);
        m_text[9] = static_cast<char>('0' + milliseconds / 100);
        putTwoDigits(10, milliseconds % 100);
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

/// Time, source path and function as arguments of qDebug(). Each source file defines its path as
/// LogSource. A helper that writes a getter's lines uses LOG_AS with the getter's name.
#define LOG_AS(function) LogTime().text(), LogSource, function
#define LOG_AT LOG_AS(__func__)

#endif
