// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef CALL_H
#define CALL_H

#include "Library.h"
#include "Modem.h"

#include <limits>
#include <memory>
#include <string>
#include <vector>

/// Copies a text into a buffer; one that fills it has no zero at its end, a longer one is cut.
void copyText(const std::string &text, char *buffer, size_t size);

template <size_t Size>
void copyText(const std::string &text, char (&field)[Size])
{
    copyText(text, field, Size);
}

/// Collects what a function reads from the modem. Gives it to the out-parameters only if all of it
/// could be read.
class Answer
{
public:
    explicit Answer(Modem &modem) : m_modem(modem) {}

    Modem &modem() { return m_modem; }

    /// Notes a result. Returns the first failure that was noted, or success.
    VELT_ERROR note(VELT_ERROR result);

    std::string text(TextValue value);

    template <typename Number>
    Number number(NumberValue value)
    {
        int64_t number = 0;
        note(m_modem.read(value, number));
        if (number < std::numeric_limits<Number>::min() ||
            number > std::numeric_limits<Number>::max())
            note(VELT_ERROR_FAILURE);
        return static_cast<Number>(number);
    }

    /// Gives each out-parameter the number or record that stands behind it in the arguments.
    /// Returns the result of all.
    template <typename Out, typename... Rest>
    VELT_ERROR give(Out *out, NumberValue value, const Rest &...rest)
    {
        return give(out, number<Out>(value), rest...);
    }
    template <typename Out, typename... Rest>
    VELT_ERROR give(Out *out, const Out &value, const Rest &...rest)
    {
        if (!out)
            note(VELT_ERROR_BAD_ARGUMENT);
        const VELT_ERROR result = give(rest...);
        if (out && result == VELT_SUCCESS)
            *out = value;
        return result;
    }
    VELT_ERROR give() const { return m_result; }

    VELT_ERROR giveText(char *buffer, size_t size, const std::string &text);

private:
    Modem &m_modem;
    VELT_ERROR m_result = VELT_SUCCESS;
};

/// One call of an SDK function: what all functions share.
class Call
{
public:
    /// \a inputs are the in-arguments, for the record of calls.
    template <typename... Inputs>
    explicit Call(const char *function, const Inputs &...inputs)
        : m_function(function), m_recording(Library::instance().recording)
    {
        if (m_recording)
            m_inputs = {describe(inputs)...};
    }

    /// The result of a function that asks the modem. \a body takes an Answer and returns the result
    /// of its give() or giveText().
    template <typename Body>
    VELT_ERROR answer(Body body) const
    {
        const std::shared_ptr<Modem> modem = pluggedModem();
        if (!modem)
            return recorded(VELT_ERROR_NO_DEVICE);
        return result([&] {
            Answer answer(*modem);
            return body(answer);
        });
    }

    /// The result of \a body, or the one that is set for the function.
    template <typename Body>
    VELT_ERROR result(Body body) const
    {
        const SdkControl::Result set = takeResult();
        if (set.outputs == SdkControl::KeepOutputs)
            return recorded(set.code);
        const VELT_ERROR result = body();
        return recorded(set.code == VELT_SUCCESS ? result : set.code);
    }

private:
    static std::string describe(int32_t number);
    static std::string describe(const char *text);
    static std::string describe(VELT_DEVICE_CALLBACK callback);
    /// Records the call, where calls are recorded. Returns \a result.
    VELT_ERROR recorded(VELT_ERROR result) const;
    static std::shared_ptr<Modem> pluggedModem();
    SdkControl::Result takeResult() const;

    const char *m_function;
    const bool m_recording;
    std::vector<std::string> m_inputs;
};

/// The whole of a function that gives one text.
VELT_ERROR answerText(const char *function, TextValue value, char *buffer, size_t size);

/// The whole of a function that gives numbers. In \a outputs a NumberValue follows each
/// out-parameter.
template <typename... Outputs>
VELT_ERROR answerNumbers(const char *function, Outputs... outputs)
{
    return Call(function).answer([=](Answer &answer) { return answer.give(outputs...); });
}

#endif
