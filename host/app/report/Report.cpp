// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "report/Report.h"

#include "report/Masking.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <cstdio>

namespace {

/// A value may come from the network: its control characters must not start a new line, nor act as
/// commands of a terminal.
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

/// The sum of a configuration, which has no version of its own.
QString sumOf(const QString &fileName)
{
    QFile file(fileName);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        return QStringLiteral("missing");
    return QStringLiteral("SHA-256 ") + QLatin1String(hash.result().toHex());
}

} // namespace

Report::Report(const QList<ShownPage> &pages, const Source &source, Identifiers identifiers)
    : m_pages(pages)
{
    const auto add = [this](const char *name, const QString &value) {
        m_facts.append({QLatin1String(name), value});
    };
    const QDateTime now = QDateTime::currentDateTime();
    add("Date", now.toOffsetFromUtc(now.offsetFromUtc()).toString(Qt::ISODate));
    add("Host", QStringLiteral("diagnosis-host ") + QCoreApplication::applicationVersion());
    add("Configuration", sumOf(source.configuration));
    add("Toolkit", QStringLiteral("Qt ") + QLatin1String(qVersion()));
    add("Language", source.language);
    add("Modem", source.modem);
    if (!source.problem.isEmpty())
        add("Problem", source.problem);
    add("Identifiers", identifiers == Masked ? QStringLiteral("masked") : QStringLiteral("shown"));
    if (identifiers == Masked) {
        for (ShownPage &page : m_pages) {
            for (ShownRow &row : page.rows)
                row.value = maskedValue(row);
        }
    }
}

QString Report::rows(const QList<ShownPage> &pages)
{
    QStringList blocks;
    for (const ShownPage &page : pages) {
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
    return head + QLatin1Char('\n') + rows(m_pages);
}

QByteArray Report::json() const
{
    QJsonArray tabs;
    for (const ShownPage &page : m_pages) {
        QJsonArray rows;
        for (const ShownRow &row : page.rows)
            rows.append(QJsonObject{{QStringLiteral("name"), row.name},
                                    {QStringLiteral("caption"), row.caption},
                                    {QStringLiteral("value"), row.value},
                                    {QStringLiteral("known"), row.isKnown()}});
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
    QFile direct(fileName); // QSaveFile would replace a device by a file
    QFileDevice &file = toOutput || isDevice ? static_cast<QFileDevice &>(direct) : saved;
    const bool isOpen =
        toOutput ? direct.open(stdout, QIODevice::WriteOnly) : file.open(QIODevice::WriteOnly);
    // QSaveFile::commit() does not notice that the disk is too full for the last bytes.
    if (isOpen && file.write(content) == content.size() && file.flush() &&
        (&file != &saved || saved.commit()))
        return true;
    *error =
        QStringLiteral("cannot write %1: %2")
            .arg(toOutput ? QStringLiteral("to standard output") : fileName, file.errorString());
    return false;
}
