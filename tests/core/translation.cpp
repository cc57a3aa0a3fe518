// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "HostCore.h"
#include "core/Change.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QTranslator>
#include <QtTest>

namespace {

const QString folder = QStringLiteral(TRANSLATIONS_DIR);
const QString context = QStringLiteral("DiagnosisPlugin");

QString text(const char *key)
{
    return Change::tr(QLatin1String(key), context);
}

/// The resource keys in the files below a folder of the sources.
QSet<QString> keysIn(const char *where)
{
    QSet<QString> keys;
    const QRegularExpression pattern(QStringLiteral("\\bIDS_[A-Z0-9_]*[A-Z0-9]\\b"));
    QDirIterator files(QStringLiteral(DIAG_SOURCE_DIR "/") + QLatin1String(where), QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        auto matches = pattern.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext())
            keys.insert(matches.next().captured());
    }
    return keys;
}

} // namespace

class TranslationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void languages()
    {
        QCOMPARE(HostCore::languages(folder),
                 QStringList({QStringLiteral("de"), QStringLiteral("en")}));
        QVERIFY(HostCore::languages(folder + QStringLiteral("/none")).isEmpty());
    }

    void englishNeedsNoFile() { QCOMPARE(text("IDS_MAINFRM_UNKNOWN"), QStringLiteral("Unknown")); }

    void chosenLanguage()
    {
        QVERIFY(HostCore::setLanguage(folder, QStringLiteral("de")));
        QCOMPARE(text("IDS_MAINFRM_UNKNOWN"), QStringLiteral("Unbekannt"));
        QCOMPARE(QCoreApplication::translate("ModemWindow", "&Unplug"),
                 QStringLiteral("&Abziehen"));
        for (const char *wrong : {"xx", "", "../translations/host_en", "en.qm"})
            QVERIFY(!HostCore::setLanguage(folder, QLatin1String(wrong)));
        QCOMPARE(text("IDS_MAINFRM_UNKNOWN"), QStringLiteral("Unbekannt"));
    }

    void unknownKeysAreEmpty_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("where");
        QTest::newRow("key") << QStringLiteral("IDS_NO_SUCH_KEY") << context;
        QTest::newRow("empty key") << QString() << context;
        QTest::newRow("context") << QStringLiteral("IDS_OK") << QStringLiteral("OtherPlugin");
    }

    void unknownKeysAreEmpty()
    {
        QFETCH(QString, key);
        QFETCH(QString, where);
        QCOMPARE(Change::tr(key, where), QString());
    }

    void lackingTextsAreEnglish()
    {
        QTemporaryDir poor;
        // A language file without a text, made from a translation that holds only one other.
        QFile source(poor.filePath(QStringLiteral("host_fr.ts")));
        QVERIFY(source.open(QIODevice::WriteOnly));
        source.write("<TS version=\"2.1\"><context><name>DiagnosisPlugin</name><message><source>"
                     "IDS_OK</source><translation>Bien</translation></message></context></TS>");
        source.close();
        QCOMPARE(QProcess::execute(QStringLiteral(LRELEASE),
                                   {QStringLiteral("-silent"), source.fileName()}),
                 0);
        QVERIFY(HostCore::setLanguage(poor.path(), QStringLiteral("fr")));
        QCOMPARE(text("IDS_OK"), QStringLiteral("Bien"));
        QCOMPARE(text("IDS_MAINFRM_UNKNOWN"), QStringLiteral("Unknown"));
    }

    void everyKeyHasATextInEveryLanguage()
    {
        const QSet<QString> keys = keysIn("src") + keysIn("config") + keysIn("host/translations");
        QVERIFY(keys.size() > 60);
        for (const QString &language : HostCore::languages(folder)) {
            // Without the fallback to English.
            QTranslator translator;
            QVERIFY(translator.load(QStringLiteral("%1/host_%2.qm").arg(folder, language)));
            for (const QString &key : keys)
                QVERIFY2(!translator.translate("DiagnosisPlugin", key.toLatin1()).isEmpty(),
                         qPrintable(language + QLatin1Char(' ') + key));
        }
    }

    /// What the plug-in and its files rely on: tabs are found by their titles, SIM texts by a word.
    void textsOthersRelyOn()
    {
        const char *const tabs[] = {"IDS_TAB_DEVICE", "IDS_TAB_NETWORK_SETTINGS",
                                    "IDS_TAB_NETWORK_STATUS", "IDS_TAB_SIM"};
        for (const QString &language : HostCore::languages(folder)) {
            QVERIFY(HostCore::setLanguage(folder, language));
            QStringList titles;
            for (const char *tab : tabs) {
                for (const QString &earlier : qAsConst(titles))
                    QVERIFY2(!earlier.contains(text(tab)), tab);
                titles.append(text(tab));
            }
            QCOMPARE(titles.filter(QStringLiteral("sim"), Qt::CaseInsensitive),
                     QStringList(titles.last()));
            for (const char *key :
                 {"IDS_DIAGNOSE_SIM_MESSAGES", "IDS_DIAGNOSE_SIM_CONTACTS",
                  "IDS_MAINFRM_SIM_MESSAGE_CONTENT_PROMPT", "IDS_MAINFRM_SIM_CONTACT_CONTENT"})
                QVERIFY2(text(key).contains(QLatin1String("SIM/USIM")), key);
        }
        QCOMPARE(text("IDS_TAB_NETWORK_STATUS"), QStringLiteral("Network status"));
    }
};

QTEST_GUILESS_MAIN(TranslationTest)
#include "translation.moc"
