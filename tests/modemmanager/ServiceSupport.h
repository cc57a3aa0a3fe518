// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef SERVICESUPPORT_H
#define SERVICESUPPORT_H

#include "modemmanager/ServiceTiming.h"

#include <QMap>
#include <QString>

#include <functional>
#include <map>

namespace ServiceSupport {

const ServiceTiming shortTiming{300, 2400};

/// Names and values, "name = value", a pair a line or separated by "; ". A line that begins with
/// '#' is a comment.
using Pairs = QMap<QString, QString>;
Pairs pairs(const QString &text);

/// Waits until the SDK says what pairs tell. Besides SdkCalls::answers() they name: "all", the
/// different ones of these answers; "status"; "condition"; "verdict", its text; the details by
/// group and name; the keys of what the host alone reads; and "events", what was taken. The test
/// fails after 10 s, and after 1 s once an expectation has failed.
void expect(const QString &expected);

using Commands = std::map<QString, std::function<void(const QString &)>>;

/// Takes the steps of a script, each a command of these or the following, and its argument.
///     attach INDEX | absent | signal-read | pause MILLISECONDS
///     detach        or "detach hangs", if the bus does
///     events        starts to take events: the code, and the device status inside the callback
///     expect PAIRS  waits for them
///     still PAIRS   does not wait
///     at-once       the SDK's functions wait for nothing
void perform(const QStringList &steps, Commands commands);

} // namespace ServiceSupport

#endif
