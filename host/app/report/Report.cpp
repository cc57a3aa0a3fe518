// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "report/Report.h"

#include "core/Change.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <cstdio>

namespace {

/// How much of a row's value stays readable. docs/report.md has the reasons.
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

/// A value that would hide fewer characters is hidden altogether: the rest could be guessed.
const int FewestHidden = 6;

const QChar Hidden = QLatin1Char('*');

bool isUnknown(const QString &value)
{
    return value ==
           Change::tr(QStringLiteral("IDS_MAINFRM_UNKNOWN"), QStringLiteral("DiagnosisPlugin"));
}

/// Leaves the separators and the first group of each address, which tells what kind it is.
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

/// A line of a value from the air must not look like a row, nor reach a terminal as a command.
QString printable(QString value)
{
    for (QChar &character : value) {
        if (character.category() == QChar::Other_Control)
            character = QChar::ReplacementCharacter;
    }
    return value;
}

QString line(const QString &caption, const QString &value)
{
    return QStringLiteral("  %1: %2\n").arg(caption, printable(value));
}

} // namespace

void Report::addFact(const QString &name, const QString &value)
{
    m_facts.append({name, value});
}

void Report::mask()
{
    for (ShownPage &page : m_pages) {
        for (ShownRow &row : page.rows)
            row.value = masked(row);
    }
}

QString Report::rows() const
{
    QStringList blocks;
    for (const ShownPage &page : m_pages) {
        QString block = page.title + QLatin1Char('\n');
        for (const ShownRow &row : page.rows)
            block += line(row.caption, row.value);
        blocks.append(block);
    }
    return blocks.join(QLatin1Char('\n'));
}

QString Report::text() const
{
    QString head = QStringLiteral("Report\n");
    for (const auto &fact : m_facts)
        head += line(fact.first, fact.second);
    return head + QLatin1Char('\n') + rows();
}

QByteArray Report::json() const
{
    QJsonArray tabs;
    for (const ShownPage &page : m_pages) {
        QJsonArray rows;
        for (const ShownRow &row : page.rows)
            rows.append(QJsonObject{
                {QStringLiteral("name"), row.name},
                {QStringLiteral("caption"), row.caption},
                {QStringLiteral("value"), row.value},
                {QStringLiteral("known"), !row.value.isEmpty() && !isUnknown(row.value)}});
        tabs.append(
            QJsonObject{{QStringLiteral("name"), page.name.isNull() ? QJsonValue() : page.name},
                        {QStringLiteral("caption"), page.title},
                        {QStringLiteral("rows"), rows}});
    }
    QJsonObject report{{QStringLiteral("tabs"), tabs}};
    for (const auto &fact : m_facts)
        report.insert(fact.first.toLower(), fact.second);
    return QJsonDocument(report).toJson();
}

bool Report::write(const QByteArray &content, const QString &fileName, QString *error)
{
    const bool toOutput = fileName.isNull() || fileName == QLatin1String("-");
    const QFileInfo target(fileName);
    const bool isDevice = target.exists() && !target.isFile() && !target.isDir();
    QSaveFile saved(fileName);
    QFile direct(fileName); // a saved file would take the place of a device
    QFileDevice &file = toOutput || isDevice ? static_cast<QFileDevice &>(direct) : saved;
    const bool isOpen =
        toOutput ? direct.open(stdout, QIODevice::WriteOnly) : file.open(QIODevice::WriteOnly);
    // The toolkit's commit() does not see that the last bytes found no room.
    if (isOpen && file.write(content) == content.size() && file.flush() &&
        (&file != &saved || saved.commit()))
        return true;
    *error =
        QStringLiteral("cannot write %1: %2")
            .arg(toOutput ? QStringLiteral("to standard output") : fileName, file.errorString());
    return false;
}

QString Report::masked(const ShownRow &row)
{
    if (isUnknown(row.value))
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
