// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "TestSupport.h"
#include "modemmanager/Conversion.h"

#include <QJsonDocument>
#include <QtTest>

#include <algorithm>
#include <limits>

namespace {

QVariantMap fromJson(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).toVariant().toMap();
}

Readings convertTold(const QVariantMap &told)
{
    ServiceObjects objects;
    for (auto i = told.begin(); i != told.end(); ++i) {
        if (i.key().startsWith("Modem"))
            objects.interfaces[i.key()] = i->toMap();
    }
    objects.sim = told["sim"].toMap();
    objects.location = told["location"].toMap();
    for (const QVariant &bearer : told["bearers"].toList())
        objects.bearers << bearer.toMap();
    const QVariantMap sims = told["otherSims"].toMap();
    for (auto i = sims.begin(); i != sims.end(); ++i)
        objects.otherSims[i.key()] = i->toMap();
    return convert(objects);
}

QString show(const ModemService::Detail &detail)
{
    const char *const kinds[] = {"", " device", " user", " place", " address"};
    return QString("%1 %2: %3%4")
        .arg(QString::fromStdString(detail.group), QString::fromStdString(detail.name),
             QString::fromStdString(detail.value), kinds[static_cast<int>(detail.kind)]);
}

QStringList show(const Readings &readings)
{
    QStringList shown;
    for (const ModemService::Detail &detail : readings.details)
        shown << show(detail);
    return shown;
}

/// All that \a value becomes if one value in it, at any depth, is replaced by \a odd. Of a list
/// the first is replaced.
QVariantList variations(const QVariant &value, const QVariant &odd)
{
    QVariantList all{odd};
    QVariantMap map = value.toMap();
    for (const QString &key : map.keys()) {
        for (const QVariant &variation : variations(map[key], odd)) {
            QVariantMap varied = map;
            varied[key] = variation;
            all << varied;
        }
    }
    const QVariantList list = value.toList();
    for (const QVariant &variation : list.isEmpty() ? list : variations(list[0], odd)) {
        QVariantList varied = list;
        varied[0] = variation;
        all << QVariant(varied);
    }
    return all;
}

} // namespace

class Details : public QObject
{
    Q_OBJECT

private slots:
    void details_data() { TestSupport::addRows(TEST_SOURCE_DIR "/details.txt", "details"); }
    void details();
    void oddValues();
};

void Details::details()
{
    QFETCH(QStringList, fields);
    QCOMPARE(show(convertTold(fromJson(fields.at(1)))), fields.mid(2));
}

/// A value of the wrong type or size makes nothing else wrong, and no text of it is long.
void Details::oddValues()
{
    const QString row =
        TestSupport::section(TEST_SOURCE_DIR "/details.txt", "details").value(0).section(" | ", 1);
    const QVariantMap told = fromJson(row.section(" | ", 0, 0));
    const QStringList usual = row.split(" | ").mid(1);
    QCOMPARE(show(convertTold(told)), usual);
    const QString longText = QString("<b>\u202e\n%1").repeated(1250);
    const QVariantList odds{longText,
                            -1,
                            1e300,
                            std::numeric_limits<double>::quiet_NaN(),
                            std::numeric_limits<qulonglong>::max(),
                            QVariantList{QVariantList()},
                            QVariantMap{{"0", 1}}};
    for (const QVariant &odd : odds) {
        for (const QVariant &variation : variations(told, odd)) {
            QStringList others;
            for (const QString &shown : show(convertTold(variation.toMap()))) {
                if (!usual.contains(shown))
                    others << shown;
            }
            // The cell's parts depend on the access technology, the SIMs on the slots.
            const bool isOdd = std::any_of(others.begin(), others.end(), [](const QString &shown) {
                return shown.size() >= 250 || shown.contains("nan") || shown.contains("e+");
            });
            if (isOdd || others.size() > 7)
                QFAIL(qPrintable(others.join('\n')));
        }
    }
}

QTEST_GUILESS_MAIN(Details)

#include "details.moc"
