// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef DIAGNOSTICSSDKTEXT_H
#define DIAGNOSTICSSDKTEXT_H

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstring>

/// A text buffer for the SDK, or a copy of a text field of its records. It is zeroed. It has
/// one unit more than the SDK may write, which stays zero: a text that fills its buffer has no zero
/// at its end. Texts of bytes are Latin-1, texts of 16-bit units UTF-16.
template <std::size_t size, typename Unit = char>
class SdkText
{
public:
    SdkText() : m_text() {}
    explicit SdkText(const Unit (&field)[size]) : m_text()
    {
        std::memcpy(m_text, field, sizeof field);
    }

    Unit *buffer() { return m_text; }
    const Unit *text() const { return m_text; }
    QString toString() const { return convert(m_text); }

private:
    static QString convert(const char *text) { return QString::fromLatin1(text); }
    static QString convert(const uint16_t *text)
    {
        return QString(reinterpret_cast<const QChar *>(text));
    }

    Unit m_text[size + 1];
};

#endif
