// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Call.h"

Library &Library::instance()
{
    static Library library;
    return library;
}

void copyText(const std::string &text, char *buffer, size_t size)
{
    const size_t length = text.copy(buffer, size);
    if (length < size)
        buffer[length] = '\0';
}

VELT_ERROR Answer::note(VELT_ERROR result)
{
    if (m_result == VELT_SUCCESS)
        m_result = result;
    return m_result;
}

std::string Answer::text(TextValue value)
{
    std::string text;
    note(m_modem.read(value, text));
    return text;
}

VELT_ERROR Answer::giveText(char *buffer, size_t size, const std::string &text)
{
    if (!buffer)
        note(VELT_ERROR_BAD_ARGUMENT);
    if (m_result == VELT_SUCCESS)
        copyText(text, buffer, size);
    return m_result;
}

std::string Call::describe(int32_t number)
{
    return std::to_string(number);
}

std::string Call::describe(const char *text)
{
    return text ? '"' + std::string(text) + '"' : "null";
}

std::string Call::describe(VELT_DEVICE_CALLBACK callback)
{
    return callback ? "callback" : "null";
}

VELT_ERROR Call::recorded(VELT_ERROR result) const
{
    if (!m_recording)
        return result;
    std::string arguments;
    for (const std::string &input : m_inputs)
        arguments += (arguments.empty() ? "" : ", ") + input;
    Library &library = Library::instance();
    std::lock_guard<std::mutex> lock(library.mutex);
    library.record.push_back({m_function, arguments, result});
    return result;
}

std::shared_ptr<Modem> Call::pluggedModem()
{
    Library &library = Library::instance();
    std::lock_guard<std::mutex> lock(library.mutex);
    return library.plugged ? library.modem : nullptr;
}

SdkControl::Result Call::takeResult() const
{
    Library &library = Library::instance();
    std::lock_guard<std::mutex> lock(library.mutex);
    const SdkControl::Result none{VELT_SUCCESS, SdkControl::FillOutputs, 0};
    auto found = library.results.find(m_function);
    if (found == library.results.end())
        found = library.results.find("*");
    if (found == library.results.end())
        return none;
    const SdkControl::Result set = found->second;
    if (set.call == 0)
        return set;
    if (--found->second.call > 0)
        return none;
    library.results.erase(found);
    return set;
}

VELT_ERROR answerText(const char *function, TextValue value, char *buffer, size_t size)
{
    return Call(function).answer(
        [=](Answer &answer) { return answer.giveText(buffer, size, answer.text(value)); });
}
