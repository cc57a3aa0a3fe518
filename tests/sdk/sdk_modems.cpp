// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ModemControl.h"
#include "sdk/VeltDevice.h"
#include "sdk/VeltNetwork.h"
#include "sdk/VeltSms.h"

#include <QtTest>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>

namespace {

const QString modemFolder = QStringLiteral(DIAG_SOURCE_DIR "/host/modems");

bool passesLuhn(const char *digits)
{
    int sum = 0;
    const int length = static_cast<int>(qstrlen(digits));
    for (int i = 0; i < length; ++i) {
        const int digit = (digits[length - 1 - i] - '0') * (i % 2 + 1);
        sum += digit / 10 + digit % 10;
    }
    return sum % 10 == 0;
}

} // namespace

class SdkModems : public QObject
{
    Q_OBJECT

private slots:
    void keysAreThoseOfTheReadme_data();
    void keysAreThoseOfTheReadme();
    void shippedModems_data();
    void shippedModems();
    void brokenFiles_data();
    void brokenFiles();
    void fileThatIsNone();
};

void SdkModems::keysAreThoseOfTheReadme_data()
{
    QTest::addColumn<QString>("file");
    const QDir folder(modemFolder);
    const QStringList files = folder.entryList({QStringLiteral("*.ini")});
    QCOMPARE(files.size(), 7);
    for (const QString &file : files)
        QTest::newRow(qPrintable(file)) << folder.filePath(file);
}

void SdkModems::keysAreThoseOfTheReadme()
{
    QFETCH(QString, file);
    QFile readme(modemFolder + QStringLiteral("/README.md"));
    QVERIFY(readme.open(QIODevice::ReadOnly));
    QStringList documented;
    auto match = QRegularExpression(QStringLiteral("^\\| `(\\w+/\\w+)` \\|"),
                                    QRegularExpression::MultilineOption)
                     .globalMatch(QString::fromUtf8(readme.readAll()));
    while (match.hasNext())
        documented << match.next().captured(1);
    documented.sort();
    QStringList keys = QSettings(file, QSettings::IniFormat)
                           .allKeys()
                           .filter(QRegularExpression(QStringLiteral("^(?!results/)")));
    keys.sort();
    QCOMPARE(keys, documented);
}

void SdkModems::shippedModems_data()
{
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *modem, const char *expected) {
        QTest::newRow(modem) << QString::fromLatin1(expected);
    };
    row("wcdma",
        "type 0, SIM 1, edition , ESN , IMEI 0, ESN 3, PRL 3, IMSI 0, messages 0, signal 0");
    row("td-scdma", "type 2, SIM 1, edition OPERATOR-TD, ESN , IMEI 0, ESN 3, PRL 3, IMSI 0, "
                    "messages 0, signal 0");
    row("cdma",
        "type 1, SIM 1, edition , ESN 5C, IMEI 3, ESN 0, PRL 0, IMSI 0, messages 0, signal 3");
    row("cdma-pesn",
        "type 1, SIM 1, edition , ESN 80, IMEI 3, ESN 0, PRL 0, IMSI 0, messages 0, signal 3");
    row("cdma-roaming",
        "type 1, SIM 240, edition , ESN 5C, IMEI 3, ESN 0, PRL 3, IMSI 0, messages 0, signal 3");
    row("no-sim",
        "type 0, SIM 255, edition , ESN , IMEI 0, ESN 3, PRL 3, IMSI 4, messages 4, signal 0");
    row("failing",
        "type -1, SIM -1, edition , ESN , IMEI 1, ESN 1, PRL 1, IMSI 1, messages 1, signal 1");
}

void SdkModems::shippedModems()
{
    QFETCH(QString, expected);
    const std::string folder = MODEM_DIR "/";
    std::string error;
    QVERIFY2(ModemControl::attach(folder + QTest::currentDataTag() + ".ini", &error),
             error.c_str());
    QVERIFY(ModemControl::isPlugged());

    // What is what on this kind of modem, and the results of functions that only some have.
    int32_t type = -1, sim = -1, count = -1;
    char imei[VELT_SIZE_IMEI + 1] = "0", prl[VELT_SIZE_PRL_VERSION], imsi[VELT_SIZE_IMSI];
    char edition[VELT_SIZE_CUSTOMIZE_NAME + 1] = "";
    VELT_ESN_INFO esn = {};
    VELT_SIGNAL_PAIR signal = {};
    VELT_DevSrv_GetProductType(&type);
    VELT_DevSrv_GetSimStatus(&sim);
    VELT_DevSrv_GetCustomizeName(edition);
    const QString results =
        QStringLiteral(", IMEI %1, ESN %2, PRL %3, IMSI %4, messages %5, signal %6")
            .arg(VELT_DevSrv_GetImeiInfo(imei))
            .arg(VELT_DevSrv_GetESN(&esn))
            .arg(VELT_NetSrv_GetPrlVer(prl))
            .arg(VELT_DevSrv_GetImsiInfo(imsi))
            .arg(VELT_SMSSrv_SMSRecordSetGetRecordCount(&count, VELT_SMS_SIM))
            .arg(VELT_NetSrv_GetSignalQuality(&signal));
    QCOMPARE(QStringLiteral("type %1, SIM %2, edition %3, ESN %4")
                     .arg(type)
                     .arg(sim)
                     .arg(QLatin1String(edition), QString::fromLatin1(esn.esn).left(2)) +
                 results,
             expected);
    QVERIFY(passesLuhn(imei));
}

void SdkModems::brokenFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("fault"); // empty for a file that is right
    const auto row = [](const char *name, const char *content, const char *fault) {
        QTest::newRow(name) << QByteArray(content) << QByteArray(fault);
    };
    row("no INI file", "just words\n", "not a well-formed INI file");
    row("section cut off", "[device\nimei=1\n", "not a well-formed INI file");
    row("unknown key", "[device]\nimie=1\n", "device/imie: unknown key");
    row("another section's key", "[device]\nimsi=1\n", "device/imsi: unknown key");
    row("no number", "[device]\nvoltage=12 V\n", "device/voltage: \"12 V\" is not a number");
    row("base 16", "[device]\ncarriers=0x10\n", "device/carriers: \"0x10\" is not a number");
    row("huge", "[device]\ncarriers=99999999999999999999\n",
        "device/carriers: \"99999999999999999999\" is not a number");
    row("comma without quotes", "[device]\ndeviceName=a, b\n",
        "device/deviceName: a value with commas needs double quotes");
    row("unknown function", "[results]\nVELT_DevSrv_GetImei=1\n",
        "results/VELT_DevSrv_GetImei: unknown function");
    row("result without code", "[results]\n*=\n", "results/*: \"\" is not a number");
    row("Latin-1, empty number", "[device]\ndeviceName=\"M\\xfcr\"\nvoltage=\n", "");
}

void SdkModems::brokenFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, fault);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("modem.ini")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    const std::string name = file.fileName().toStdString();
    std::string error;
    QVERIFY(ModemControl::attach(TEST_SOURCE_DIR "/distinct.ini", &error));
    QCOMPARE(ModemControl::attach(name, &error), fault.isEmpty());
    if (fault.isEmpty()) {
        QCOMPARE(ModemControl::value("device/deviceName"), std::string("M\xfcr"));
    } else {
        QCOMPARE(QByteArray(error.c_str()), (name + ": ").c_str() + fault);
        QCOMPARE(ModemControl::value("device/deviceName"), std::string("MODEL"));
    }
}

void SdkModems::fileThatIsNone()
{
    for (const std::string file : {"/nowhere/modem.ini", TEST_SOURCE_DIR}) {
        std::string error;
        QVERIFY(!ModemControl::attach(file, &error));
        QVERIFY2(error.find(file + ": ") == 0 && error.size() > file.size() + 5, error.c_str());
    }
}

QTEST_APPLESS_MAIN(SdkModems)
#include "sdk_modems.moc"
