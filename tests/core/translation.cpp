// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "HostCore.h"
#include "core/Change.h"

#include <QDirIterator>
#include <QKeySequence>
#include <QTranslator>
#include <QtTest>

namespace {

const QString folder = QStringLiteral(TRANSLATIONS_DIR);

QString text(const char *key, const char *context = "DiagnosisPlugin")
{
    return Change::tr(QLatin1String(key), QLatin1String(context));
}

/// The resource keys in the files below a folder of the sources.
QSet<QByteArray> keysIn(const char *where)
{
    QSet<QByteArray> keys;
    const QRegularExpression pattern(QStringLiteral("\\bIDS_[A-Z0-9_]*[A-Z0-9]\\b"));
    QDirIterator files(QStringLiteral(DIAG_SOURCE_DIR "/") + QLatin1String(where), QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        file.open(QIODevice::ReadOnly);
        auto matches = pattern.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext())
            keys.insert(matches.next().captured().toLatin1());
    }
    return keys;
}

} // namespace

class TranslationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chosenLanguage()
    {
        QCOMPARE(HostCore::languages(folder).join(QLatin1Char(' ')),
                 QStringLiteral("ar de en es fr zh_CN"));
        QCOMPARE(text("IDS_MAINFRM_UNKNOWN"), QStringLiteral("Unknown")); // without any file
        QVERIFY(HostCore::setLanguage(folder, QStringLiteral("de")));
        for (const char *wrong : {"xx", "", "../translations/host_en", "en.qm"})
            QVERIFY(!HostCore::setLanguage(folder, QLatin1String(wrong)));
        QCOMPARE(text("IDS_MAINFRM_UNKNOWN"), QStringLiteral("Unbekannt"));
        QCOMPARE(QCoreApplication::translate("MainWindow", "&Unplug"), QStringLiteral("&Abziehen"));
    }

    void unknownKeysAreEmpty()
    {
        QCOMPARE(text("IDS_NO_SUCH_KEY"), QString());
        QCOMPARE(text(""), QString());
        QCOMPARE(text("IDS_OK", "OtherPlugin"), QString());
    }

    void lackingTextsAreEnglish()
    {
        // A language file with one text only.
        QTemporaryDir poor;
        const QString source = poor.filePath(QStringLiteral("host_fr.ts"));
        QVERIFY(QFile::copy(QStringLiteral(TEST_SOURCE_DIR "/poor.ts"), source));
        QCOMPARE(QProcess::execute(QStringLiteral(LRELEASE), {QStringLiteral("-silent"), source}),
                 0);
        QVERIFY(HostCore::setLanguage(poor.path(), QStringLiteral("fr")));
        QCOMPARE(text("IDS_OK"), QStringLiteral("Bien"));
        QCOMPARE(text("IDS_MAINFRM_UNKNOWN"), QStringLiteral("Unknown"));
    }

    void everyKeyHasATextInEveryLanguage()
    {
        const QSet<QByteArray> keys =
            keysIn("src") + keysIn("config") + keysIn("host/translations");
        QVERIFY(keys.size() > 60);
        for (const QString &language : HostCore::languages(folder)) {
            // Without the fallback to English.
            QTranslator translator;
            QVERIFY(translator.load(QStringLiteral("%1/host_%2.qm").arg(folder, language)));
            for (const QByteArray &key : keys)
                QVERIFY2(!translator.translate("DiagnosisPlugin", key).isEmpty(), key);
        }
    }

    /// The plug-in finds tabs by their titles and SIM texts by a word in them.
    void textsOthersRelyOn()
    {
        for (const QString &language : HostCore::languages(folder)) {
            QVERIFY(HostCore::setLanguage(folder, language));
            QStringList titles;
            for (const char *tab : {"IDS_TAB_DEVICE", "IDS_TAB_NETWORK_SETTINGS",
                                    "IDS_TAB_NETWORK_STATUS", "IDS_TAB_SIM"}) {
                QVERIFY2(titles.filter(text(tab), Qt::CaseInsensitive).isEmpty(), tab);
                titles.append(text(tab));
            }
            QCOMPARE(titles.filter(QStringLiteral("sim"), Qt::CaseInsensitive),
                     QStringList(titles.last()));
            for (const char *key :
                 {"IDS_DIAGNOSE_SIM_MESSAGES", "IDS_DIAGNOSE_SIM_CONTACTS",
                  "IDS_MAINFRM_SIM_MESSAGE_CONTENT_PROMPT", "IDS_MAINFRM_SIM_CONTACT_CONTENT"})
                QVERIFY2(text(key).contains(QLatin1String("SIM/USIM")), key);
            QSet<QKeySequence> mnemonics;
            for (const char *button : {"IDS_MAINFRM_SAVE_PROMPT", "IDS_MAINFRM_REFRESH_PROMPT",
                                       "IDS_MAINFRM_CANCEL_PROMPT"})
                mnemonics.insert(QKeySequence::mnemonic(text(button)));
            QCOMPARE(mnemonics.size(), 3);
        }
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
        QVERIFY(HostCore::setLanguage(folder, QStringLiteral("ar")));
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
        QVERIFY(HostCore::setLanguage(folder, QStringLiteral("en")));
        QCOMPARE(text("IDS_TAB_NETWORK_STATUS"), QStringLiteral("Network status"));
    }
};

QTEST_MAIN(TranslationTest)
#include "translation.moc"
