// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "modemmanager/Conversion.h"
#include "ServiceSupport.h"
#include "TestSupport.h"

#include <QJsonDocument>
#include <QtTest>

namespace {

/// Adds properties, by interface, to those of a modem that is at work.
Readings convertWith(const QVariantMap &told)
{
    ServiceObjects objects;
    objects.interfaces["Modem"] = {{"State", 8}, {"Sim", "/SIM/0"}, {"CurrentCapabilities", 4u}};
    objects.sim = told["sim"].toMap();
    objects.location = told["location"].toMap();
    for (const QVariant &message : told["messages"].toList())
        objects.messages << message.toMap();
    for (auto i = told.begin(); i != told.end(); ++i)
        objects.interfaces[i.key()].insert(i->toMap());
    return convert(objects);
}

QMap<QString, QString> valuesOf(const Readings &readings)
{
    QMap<QString, QString> values;
    for (const char *name : textKeys())
        values[name] = "none";
    for (const char *name : numberKeys())
        values[name] = "none";
    for (const auto &text : readings.texts)
        values[textKeys()[static_cast<size_t>(text.first)]] =
            QString::fromLatin1(text.second.c_str());
    for (const auto &number : readings.numbers)
        values[numberKeys()[static_cast<size_t>(number.first)]] = QString::number(number.second);
    return values;
}

} // namespace

class Conversion : public QObject
{
    Q_OBJECT

private slots:
    void codes_data() { TestSupport::addRows(TEST_SOURCE_DIR "/conversion.txt", "codes"); }
    void codes();
    void values_data() { TestSupport::addRows(TEST_SOURCE_DIR "/conversion.txt", "values"); }
    void values();
};

void Conversion::codes()
{
    QFETCH(QStringList, fields);
    QStringList found;
    const qlonglong first = fields.at(3).toLongLong();
    for (qlonglong code = first; code < first + fields.at(4).split(' ').size(); ++code)
        found << valuesOf(convertWith({{fields.at(0), QVariantMap{{fields.at(1), code}}}}))
                     .value(fields.at(2));
    QCOMPARE(found.join(' '), fields.at(4));
}

void Conversion::values()
{
    QFETCH(QStringList, fields);
    const QJsonDocument told = QJsonDocument::fromJson(fields.at(0).toUtf8());
    QVERIFY(told.isObject());
    const auto found = valuesOf(convertWith(told.toVariant().toMap()));
    const auto expected = ServiceSupport::pairs(fields.at(1));
    for (auto i = expected.begin(); i != expected.end(); ++i)
        QCOMPARE(i.key() + " = " + found[i.key()], i.key() + " = " + *i);
}

QTEST_GUILESS_MAIN(Conversion)

#include "conversion.moc"
