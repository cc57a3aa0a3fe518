// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "HostCore.h"
#include "core/Change.h"
#include "core/CommonUtils.h"

#include <QDirIterator>
#include <QKeySequence>
#include <QLabel>
#include <QTranslator>
#include <QtTest>

namespace {

const QString folder = TRANSLATIONS_DIR;

QString text(const char *key, const char *context = "DiagnosisPlugin")
{
    return Change::tr(QLatin1String(key), QLatin1String(context));
}

/// The resource keys in the files below a folder of the sources.
QSet<QByteArray> keysIn(const char *where)
{
    QSet<QByteArray> keys;
    const QRegularExpression pattern("\\bIDS_[A-Z0-9_]*[A-Z0-9]\\b");
    QDirIterator files(DIAG_SOURCE_DIR "/" + QLatin1String(where), QDir::Files,
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
        QCOMPARE(HostCore::languages(folder).join(' '), "ar de en es fr zh_CN");
        QCOMPARE(text("IDS_MAINFRM_UNKNOWN"), "Unknown"); // without any file
        QVERIFY(HostCore::setLanguage(folder, "de"));
        for (const char *wrong : {"xx", "", "../translations/host_en", "en.qm"})
            QVERIFY(!HostCore::setLanguage(folder, QLatin1String(wrong)));
        QCOMPARE(text("IDS_MAINFRM_UNKNOWN"), "Unbekannt");
        QCOMPARE(QCoreApplication::translate("MainWindow", "&Unplug"), "&Abziehen");
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Abbrechen");
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
        const QString source = poor.filePath("host_fr.ts");
        QVERIFY(QFile::copy(TEST_SOURCE_DIR "/poor.ts", source));
        QCOMPARE(QProcess::execute(LRELEASE, {"-silent", source}), 0);
        QVERIFY(HostCore::setLanguage(poor.path(), "fr"));
        QCOMPARE(text("IDS_OK"), "Bien");
        QCOMPARE(text("IDS_MAINFRM_UNKNOWN"), "Unknown");
    }

    void everyKeyHasATextInEveryLanguage()
    {
        const QSet<QByteArray> keys =
            keysIn("src") + keysIn("config") + keysIn("host/translations");
        QVERIFY(keys.size() > 60);
        for (const QString &language : HostCore::languages(folder)) {
            // Without the fallback to English.
            QTranslator translator;
            QVERIFY(translator.load(folder + "/host_" + language + ".qm"));
            for (const QByteArray &key : keys)
                QVERIFY2(!translator.translate("DiagnosisPlugin", key).isEmpty(), key);
        }
    }

    /// All texts but the messages about the export keep to a caption's 185 pixels. The window of
    /// CDMA devices gives each row 35 pixels, and 20 of them are between the rows.
    void captionsFit()
    {
        HostCore::applyLook(*qApp);
        const QSet<QByteArray> keys = keysIn("config") + keysIn("src");
        for (const QString &language : HostCore::languages(folder)) {
            QVERIFY(HostCore::setLanguage(folder, language));
            for (const QByteArray &key : keys) {
                const QLabel caption(text(key));
                int width = 0;
                int height = 0;
                CommonUtils::GetApplicationStringHeightAndWidth(caption.text(), width, height);
                QVERIFY2(caption.sizeHint().width() <= 185 || key.contains("_EXPORT"), key);
                QCOMPARE(width, caption.fontMetrics().horizontalAdvance(caption.text()));
                QVERIFY2(height >= caption.sizeHint().height() && height <= 15, key);
            }
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
            QCOMPARE(titles.filter("sim", Qt::CaseInsensitive), QStringList(titles.last()));
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
        QVERIFY(HostCore::setLanguage(folder, "ar"));
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
        QVERIFY(HostCore::setLanguage(folder, "en"));
        QCOMPARE(text("IDS_TAB_NETWORK_STATUS"), "Network status");
    }
};

QTEST_MAIN(TranslationTest)
#include "translation.moc"
