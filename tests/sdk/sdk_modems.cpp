// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "SdkControl.h"
#include "TestSupport.h"
#include "sdk/VeltDevice.h"
#include "sdk/VeltNetwork.h"
#include "sdk/VeltSms.h"

#include <QtTest>

using namespace TestSupport;

class SdkModems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shippedModem_data() { addRows(TEST_SOURCE_DIR "/sdk_modems.txt", "shipped"); }
    void shippedModem()
    {
        QFETCH(QStringList, fields);
        std::string error;
        const QString file = MODEM_DIR "/" + fields.at(0) + ".ini";
        const auto modem = SimulatedModem::load(file.toStdString(), &error);
        QVERIFY2(modem, error.c_str());
        SdkControl::attach(modem, modem->results());
        QVERIFY(SdkControl::isPlugged());

        // What is what on this kind of modem, and the results of functions that only some have.
        int32_t type = -1, sim = -1, count = -1;
        char text[256], edition[VELT_SIZE_CUSTOMIZE_NAME + 1] = "";
        VELT_ESN_INFO esn = {};
        VELT_SIGNAL_PAIR signal;
        VELT_DevSrv_GetProductType(&type);
        VELT_DevSrv_GetSimStatus(&sim);
        VELT_DevSrv_GetCustomizeName(edition);
        QString seen;
        for (const VELT_ERROR result :
             {VELT_DevSrv_GetImeiInfo(text), VELT_DevSrv_GetESN(&esn), VELT_NetSrv_GetPrlVer(text),
              VELT_DevSrv_GetImsiInfo(text), VELT_SMSSrv_SMSRecordSetGetRecordCount(&count, 1),
              VELT_NetSrv_GetSignalQuality(&signal)})
            seen += QString::number(result);
        QCOMPARE(seen, fields.at(2));
        QCOMPARE(QString("%1,%2,%3,%4").arg(type).arg(sim).arg(edition, QString(esn.esn).left(2)),
                 fields.at(1));
    }

    void brokenFile_data() { addRows(TEST_SOURCE_DIR "/sdk_modems.txt", "broken files"); }
    void brokenFile()
    {
        QFETCH(QStringList, fields);
        const std::string fault = fields.at(2).toStdString(); // empty for a file that is right
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(fields.at(1).toLatin1());
        file.close();
        const std::string name = file.fileName().toStdString();
        std::string error;
        const auto modem = SimulatedModem::load(name, &error);
        QCOMPARE(modem != nullptr, fault.empty());
        QCOMPARE(error, fault.empty() ? std::string() : name + ": " + fault);
        if (modem)
            QCOMPARE(modem->value("device/deviceName"), std::string("M\xfcr"));
    }

    /// The page of the keys has a line for each.
    void documentedKeys()
    {
        const QString page = contentOf(DIAG_SOURCE_DIR "/host/modems/README.md");
        for (const auto &keys : {textKeys(), numberKeys()}) {
            for (const char *key : keys)
                QCOMPARE(page.count(QString("\n| `%1` | ").arg(key)), 1);
        }
    }

    void fileThatIsNone()
    {
        for (const std::string file : {TEST_SOURCE_DIR "/distinct.ini/none", TEST_SOURCE_DIR}) {
            std::string error;
            QVERIFY(!SimulatedModem::load(file, &error));
            QVERIFY2(error.find(file + ": ") == 0 && error.size() > file.size() + 5, error.c_str());
        }
    }
};

QTEST_APPLESS_MAIN(SdkModems)
#include "sdk_modems.moc"
