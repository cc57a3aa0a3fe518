// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "report/Masking.h"

namespace {

/// How many characters of a row's value stay readable. docs/report.md has the reasons.
struct Mask
{
    const char *row;
    int front;
    int back;
};

// clang-format off
const Mask Masks[] = {
    {"IMEI",                        8, 0},
    {"Serial number",               4, 2},
    {"Cell ID",                     0, 0},
    {"LAC Code",                    0, 0},
    {"IMSI number",                 5, 2},
    {"Own number(MSISDN)",          3, 2},
    {"SMSC(Message center number)", 3, 2},
    {"ICCID",                       7, 2},
    {"IDS_MAINFRM_IMSI",            5, 2},
    {"IDS_MAINFRM_ESN",             2, 0},
    {"IDS_DIAGNOSE_MEID",           8, 0},
};
// clang-format on

const char *const AddressRows[] = {"IP address", "DNS server"};

/// If fewer characters would be hidden, all are: so few could be guessed.
const int FewestHidden = 6;

const QChar Hidden = QLatin1Char('*');

/// Keeps the separators and the first group of each address. They tell the kind of address.
QString maskedAddresses(QString value)
{
    const QString separators = QStringLiteral(".:");
    for (int start = 0, end; start < value.size(); start = end + 1) {
        end = start;
        while (end < value.size() && value.at(end) != QLatin1Char(',') && !value.at(end).isSpace())
            ++end;
        int index = start;
        while (index < end && !separators.contains(value.at(index)))
            ++index;
        for (index = index == end ? start : index; index < end; ++index) {
            if (!separators.contains(value.at(index)))
                value[index] = Hidden;
        }
    }
    return value;
}

} // namespace

QString maskedValue(const ShownRow &row)
{
    if (!row.isKnown())
        return row.value;
    for (const char *name : AddressRows) {
        if (row.name == QLatin1String(name))
            return maskedAddresses(row.value);
    }
    for (const Mask &mask : Masks) {
        if (row.name != QLatin1String(mask.row))
            continue;
        const int length = row.value.size();
        const int hidden = length - mask.front - mask.back;
        return hidden < FewestHidden ? QString(length, Hidden)
                                     : row.value.left(mask.front) + QString(hidden, Hidden) +
                                           row.value.right(mask.back);
    }
    return row.value;
}

QString maskedValue(const ModemService::Detail &detail)
{
    const QString value = QString::fromStdString(detail.value);
    switch (detail.kind) {
    case ModemService::DetailKind::Plain:
        break;
    case ModemService::DetailKind::Device:
    case ModemService::DetailKind::User:
    case ModemService::DetailKind::Place:
        return QString(value.size(), Hidden);
    case ModemService::DetailKind::Address:
        return maskedAddresses(value);
    }
    return value;
}
