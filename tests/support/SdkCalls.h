// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef SDKCALLS_H
#define SDKCALLS_H

#include "sdk/VeltDevice.h"
#include "sdk/VeltNetwork.h"
#include "sdk/VeltPhonebook.h"
#include "sdk/VeltSms.h"

#include <QMap>
#include <QString>

#include <vector>

/// All functions of the SDK that give an answer, called with the arguments that tests need.
namespace SdkCalls {

/// Out-parameters of every kind, each longer than any function may fill it. They consist of '#'
/// before a call.
struct Outs
{
    Outs();

    int32_t n[6];
    uint32_t voltage;
    char c[4];
    VELT_VERSION_INFO version;
    VELT_ESN_INFO esn;
    VELT_SIGNAL_PAIR signal;
    VELT_USER_NUMBER own;
    VELT_REG_STATE state;
    VELT_OPERATOR plmn;
    char text[300];
    char16_t units[60];
};

struct TestedCall
{
    const char *function;
    VELT_ERROR (*run)(Outs &);
    const char *arguments;
    /// What the call writes on the modem tests/sdk/distinct.ini, as show() has it, with "{key}" for
    /// a value of the modem; or "error N".
    const char *answer;

    /// Without the prefix of the function, and with its arguments if there are any.
    QString name() const;
};

const std::vector<TestedCall> &all();

/// The results of calls that each have one bad argument.
std::vector<VELT_ERROR> withBadArguments(Outs &outs);

/// What a call wrote, separated by '|'. A '$' shows the zero at the end of a text.
QString show(const Outs &outs);

/// By name what each call wrote, or "error N".
QMap<QString, QString> answers();

} // namespace SdkCalls

#endif
