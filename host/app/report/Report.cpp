// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "report/Report.h"

#include "report/Masking.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QVector>

#include <cstdio>

namespace {

/// A value may come from the network: none of its characters may start a new line, act as a command
/// of a terminal or change the direction of what follows.
QString printable(const QString &value)
{
    QVector<uint> characters = value.toUcs4();
    for (uint &character : characters) {
        switch (QChar::category(character)) {
        case QChar::Other_Control:
        case QChar::Other_Format:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            character = QChar::ReplacementCharacter;
            break;
        default:
            break;
        }
    }
    return QString::fromUcs4(reinterpret_cast<const char32_t *>(characters.constData()),
                             characters.size());
}

QString line(const QString &caption, const QString &value)
{
    return QStringLiteral("  %1: %2\n").arg(caption, printable(value));
}

/// The caption in the host's language of a group or name of the modem's service, which may have a
/// number at its end.
QString translated(const std::string &name)
{
    const QString whole = QString::fromStdString(name);
    int end = whole.size();
    while (end > 0 && whole.at(end - 1).isDigit())
        --end;
    const bool isNumbered = end > 0 && whole.at(end - 1) == QLatin1Char(' ');
    const QString word = isNumbered ? whole.left(end - 1) : whole;
    return QCoreApplication::translate("RadioAndService", word.toUtf8().constData()) +
           whole.mid(word.size());
}

QString caption(const ModemService::Detail &detail)
{
    return translated(detail.group) + QStringLiteral(", ") + translated(detail.name);
}

QString resultName(VELT_ERROR result)
{
    const char *const names[] = {"success", "refused",   "no modem",       "no such value",
                                 "no SIM",  "no answer", "wrong argument", "not registered"};
    const bool isKnown = result >= 0 && result < VELT_ERROR(sizeof names / sizeof *names);
    return isKnown ? QLatin1String(names[result]) : QStringLiteral("error %1").arg(result);
}

} // namespace

Report::Report(const Content &content, Identifiers identifiers) : m_content(content)
{
    const auto add = [this](const char *name, const QString &value) {
        m_facts.append({QLatin1String(name), value});
    };
    const QDateTime now = QDateTime::currentDateTime();
    add("Date", now.toOffsetFromUtc(now.offsetFromUtc()).toString(Qt::ISODate));
    add("Host", QStringLiteral("diagnosis-host ") + QCoreApplication::applicationVersion());
    add("Configuration", content.configuration);
    add("Toolkit", QStringLiteral("Qt ") + QLatin1String(qVersion()));
    add("Language", content.language);
    add("Modem", content.modem);
    if (content.lacksSignal)
        add("Signal", QStringLiteral("ModemManager has not read it in time"));
    add("Identifiers", identifiers == Masked ? QStringLiteral("masked") : QStringLiteral("shown"));
    if (identifiers == Unmasked)
        return;
    for (ShownPage &page : m_content.pages) {
        for (ShownRow &row : page.rows)
            row.value = maskedValue(row);
    }
    for (ModemService::Detail &detail : m_content.details)
        detail.value = maskedValue(detail).toStdString();
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
    QString text = QStringLiteral("Report\n");
    for (const auto &fact : m_facts)
        text += line(fact.first, fact.second);
    text += line(QStringLiteral("Verdict"),
                 QStringLiteral("%1 (%2)").arg(m_content.verdict.text, m_content.verdict.code));
    text += QLatin1Char('\n') + rows(m_content.pages);
    if (!m_content.details.empty())
        text += QStringLiteral("\n%1\n").arg(translated("Radio and service"));
    for (const ModemService::Detail &detail : m_content.details)
        text += line(caption(detail), QString::fromStdString(detail.value));
    if (!m_content.failures.isEmpty())
        text += QStringLiteral("\nFailed functions\n");
    for (const Failure &failure : m_content.failures)
        text += line(failure.function, resultName(failure.result));
    return text;
}

QByteArray Report::json() const
{
    QJsonArray tabs;
    for (const ShownPage &page : m_content.pages) {
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
    QJsonArray details;
    for (const ModemService::Detail &detail : m_content.details)
        details.append(
            QJsonObject{{QStringLiteral("group"), QString::fromStdString(detail.group)},
                        {QStringLiteral("name"), QString::fromStdString(detail.name)},
                        {QStringLiteral("caption"), caption(detail)},
                        {QStringLiteral("value"), QString::fromStdString(detail.value)}});
    QJsonArray failures;
    for (const Failure &failure : m_content.failures)
        failures.append(QJsonObject{{QStringLiteral("function"), failure.function},
                                    {QStringLiteral("result"), resultName(failure.result)},
                                    {QStringLiteral("code"), int(failure.result)}});
    QJsonObject report{
        {QStringLiteral("verdict"), QJsonObject{{QStringLiteral("code"), m_content.verdict.code},
                                                {QStringLiteral("text"), m_content.verdict.text}}},
        {QStringLiteral("tabs"), tabs},
        {QStringLiteral("radioAndService"), details},
        {QStringLiteral("failedFunctions"), failures}};
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
