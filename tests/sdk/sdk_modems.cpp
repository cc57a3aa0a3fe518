// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ModemControl.h"
#include "sdk/VeltDevice.h"
#include "sdk/VeltNetwork.h"
#include "sdk/VeltSms.h"
#include "support/Rows.h"

#include <QSettings>

namespace {

QStringList keysOf(const QByteArray &modem)
{
    return QSettings(QStringLiteral(MODEM_DIR "/%1.ini").arg(QLatin1String(modem)),
                     QSettings::IniFormat)
        .allKeys()
        .filter(QRegularExpression(QStringLiteral("^(?!results/)")));
}

} // namespace

class SdkModems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shippedModem_data() { addRows("modems.txt", {"values", "results"}); }
    void shippedModem()
    {
        QFETCH(QByteArray, values);
        QFETCH(QByteArray, results);
        std::string error;
        const QByteArray file = QByteArray(MODEM_DIR "/") + QTest::currentDataTag() + ".ini";
        QVERIFY2(ModemControl::attach(file.toStdString(), &error), error.c_str());
        QVERIFY(ModemControl::isPlugged());
        QCOMPARE(keysOf(QTest::currentDataTag()), keysOf("wcdma"));

        // What is what on this kind of modem, and the results of functions that only some have.
        int32_t type = -1, sim = -1, count = -1;
        char text[256], edition[VELT_SIZE_CUSTOMIZE_NAME + 1] = "";
        VELT_ESN_INFO esn = {};
        VELT_SIGNAL_PAIR signal;
        VELT_DevSrv_GetProductType(&type);
        VELT_DevSrv_GetSimStatus(&sim);
        VELT_DevSrv_GetCustomizeName(edition);
        QByteArray seen;
        for (const VELT_ERROR result :
             {VELT_DevSrv_GetImeiInfo(text), VELT_DevSrv_GetESN(&esn), VELT_NetSrv_GetPrlVer(text),
              VELT_DevSrv_GetImsiInfo(text), VELT_SMSSrv_SMSRecordSetGetRecordCount(&count, 1),
              VELT_NetSrv_GetSignalQuality(&signal)})
            seen += QByteArray::number(qlonglong(result));
        QCOMPARE(seen, results);
        QCOMPARE(QStringLiteral("%1,%2,%3,%4")
                     .arg(type)
                     .arg(sim)
                     .arg(QLatin1String(edition), QString::fromLatin1(esn.esn).left(2)),
                 QString::fromLatin1(values));
    }

    void brokenFile_data() { addRows("broken.txt", {"content", "fault"}); }
    void brokenFile()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, fault); // empty for a file that is right
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(content);
        file.close();
        const std::string name = file.fileName().toStdString();
        std::string error;
        QVERIFY(ModemControl::attach(TEST_SOURCE_DIR "/distinct.ini", &error));
        QCOMPARE(ModemControl::attach(name, &error), fault.isEmpty());
        QCOMPARE(error, fault.isEmpty() ? std::string() : name + ": " + fault.toStdString());
        QCOMPARE(ModemControl::value("device/deviceName"),
                 std::string(fault.isEmpty() ? "M\xfcr" : "MODEL"));
    }

    void fileThatIsNone()
    {
        for (const std::string file : {"/nowhere/modem.ini", TEST_SOURCE_DIR}) {
            std::string error;
            QVERIFY(!ModemControl::attach(file, &error));
            QVERIFY2(error.find(file + ": ") == 0 && error.size() > file.size() + 5, error.c_str());
        }
    }
};

QTEST_APPLESS_MAIN(SdkModems)
#include "sdk_modems.moc"
