// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "modemmanager/Conversion.h"

#include <QtTest>

Q_DECLARE_METATYPE(NumberValue)
Q_DECLARE_METATYPE(TextValue)

namespace {

/// A number that is missing.
const qint64 none = -1000;

/// Sets "Modem.Signal/Umts" of the modem, or "sim/Imsi", "location/1".
void set(ServiceObjects &objects, const QString &name, const QVariant &value)
{
    const QString object = name.section('/', 0, 0);
    const QString property = name.section('/', 1);
    if (object == "sim")
        objects.sim[property] = value;
    else if (object == "location")
        objects.location[property] = value;
    else
        objects.interfaces[object][property] = value;
}

Readings convertWith(const QVariantMap &properties)
{
    ServiceObjects objects;
    set(objects, "Modem/State", 8);
    set(objects, "Modem/Sim", "/SIM/0");
    set(objects, "Modem/CurrentCapabilities", 4u);
    for (auto i = properties.begin(); i != properties.end(); ++i)
        set(objects, i.key(), i.value());
    return convert(objects);
}

qint64 numberOf(const Readings &readings, NumberValue value)
{
    const auto found = readings.numbers.find(value);
    return found == readings.numbers.end() ? none : found->second;
}

} // namespace

class Conversion : public QObject
{
    Q_OBJECT

private slots:
    void codes_data();
    void codes();
    void signal_data();
    void signal();
    void texts_data();
    void texts();
    void messages();
};

/// Each row: a property, the value that comes of it, and for the codes from the first one on what
/// it is.
void Conversion::codes_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<NumberValue>("value");
    QTest::addColumn<int>("first");
    QTest::addColumn<QList<qint64>>("expected");
    const auto row = [](const char *property, NumberValue value, int first,
                        const QList<qint64> &expected) {
        QTest::newRow(property) << QString(property) << value << first << expected;
    };
    using N = NumberValue;
    row("Modem.Modem3gpp/RegistrationState", N::CsState, 0,
        {0, 1, 2, 3, 4, 5, 1, 5, 0, 1, 5, 0, 4, 4});
    row("Modem.Modem3gpp/PacketServiceState", N::PsAttachment, 0, {255, 0, 1, 255});
    row("Modem/UnlockRequired", N::PinStatus, 0, {7, 1, 2, 5, 3, 6, 7, 7, 7});
    row("Modem/State", N::DeviceStatus, -1, {3, 2, 2, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3});
    row("Modem/CurrentCapabilities", N::ProductType, 0, {3, 3, 1, 1, 0, 0, 0, 0, 3, 3, 1});
}

void Conversion::codes()
{
    QFETCH(QString, property);
    QFETCH(NumberValue, value);
    QFETCH(int, first);
    QFETCH(QList<qint64>, expected);
    QList<qint64> found;
    for (int code = first; code < first + expected.size(); ++code)
        found << numberOf(convertWith({{property, code}}), value);
    QCOMPARE(found, expected);
}

void Conversion::signal_data()
{
    QTest::addColumn<QVariantMap>("properties");
    QTest::addColumn<NumberValue>("value");
    QTest::addColumn<qint64>("expected");
    const auto row = [](const char *name, const QVariantMap &properties, NumberValue value,
                        qint64 expected) {
        QTest::newRow(name) << properties << value << expected;
    };
    using N = NumberValue;
    const auto dBm = [&](const char *name, double rssi, qint64 expected) {
        row(name, {{"Modem.Signal/Gsm", QVariantMap{{"rssi", rssi}}}}, N::Rssi, expected);
    };
    dBm("-140 dBm", -140, 0);
    dBm("-113 dBm", -113, 0);
    dBm("-111 dBm", -111, 1);
    dBm("-109 dBm", -109, 2);
    dBm("-53 dBm", -53, 30);
    dBm("-51 dBm", -51, 31);
    dBm("-20 dBm", -20, 31);
    const auto percent = [&](const char *name, uint percent, bool recent, qint64 expected) {
        row(name, {{"Modem/SignalQuality", QVariantList{percent, recent}}}, N::Rssi, expected);
    };
    percent("0 %", 0, true, 99);
    percent("1 %", 1, true, 0);
    percent("61 %", 61, true, 19);
    percent("old 61 %", 61, false, 19);
    percent("100 %", 100, true, 31);
    percent("700 %", 700, true, 31);
    row("no signal", {}, N::Rssi, none);
    const QVariantMap utran{{"rscp", -87.4}, {"ecio", -6.5}};
    const QVariantMap both{{"Modem.Signal/Umts", utran},
                           {"Modem/SignalQuality", QVariantList{100u, true}}};
    row("UTRAN", both, N::Rssi, 16);
    row("RSCP", both, N::Rscp, -87);
    row("Ec/Io", both, N::EcIo, -7);
    row("no RSCP", {{"Modem.Signal/Umts", QVariantMap{{"rscp", -1.7e308}}}}, N::Rscp, none);
    QVariantMap tdScdma{{"Modem/CurrentCapabilities", 128u},
                        {"Modem.Signal/Umts", QVariantMap{{"rssi", -101.0}}}};
    row("TD-SCDMA", tdScdma, N::Rssi, 15);
    row("TD-SCDMA's kind", tdScdma, N::ProductType, 2);
    tdScdma["Modem.Signal/Umts"] = QVariantMap{{"rssi", -20.0}};
    row("TD-SCDMA at most", tdScdma, N::Rssi, 91);

    const auto packet = [&](const char *name, int registration, int state, qint64 expected) {
        row(name,
            {{"Modem.Modem3gpp/RegistrationState", registration},
             {"Modem.Modem3gpp/PacketServiceState", state}},
            N::PsState, expected);
    };
    packet("attached at home", 1, 2, 1);
    packet("attached, roaming", 5, 2, 5);
    packet("detached at home", 1, 1, 0);
    packet("detached, denied", 3, 1, 3);
    packet("home, attachment unknown", 1, 0, 4);
    row("old service", {{"Modem.Modem3gpp/RegistrationState", 1}}, N::PsState, none);

    row("GPRS and EDGE", {{"Modem/AccessTechnologies", 24u}}, N::AccessTechnology, 0);
    row("UMTS and HSDPA", {{"Modem/AccessTechnologies", 96u}}, N::AccessTechnology, 2);
    row("LTE", {{"Modem/AccessTechnologies", 16384u}}, N::AccessTechnology, 7);
    row("LTE and 5G", {{"Modem/AccessTechnologies", 49152u}}, N::AccessTechnology, 13);
    row("EV-DO", {{"Modem/AccessTechnologies", 2048u}}, N::AccessTechnology, none);
    row("not known", {{"Modem/AccessTechnologies", 0u}}, N::AccessTechnology, none);

    const auto retries = [&](const char *name, uint pin, uint puk, NumberValue value,
                             qint64 expected) {
        row(name,
            {{"Modem/UnlockRequired", 4},
             {"Modem/UnlockRetries", QVariantMap{{"2", pin}, {"4", puk}}}},
            value, expected);
    };
    retries("PIN attempts", 0, 7, N::PinAttempts, 0);
    retries("PUK attempts", 0, 7, N::PukAttempts, 7);
    retries("attempts not known", 999, 10, N::PinAttempts, notTold);
    retries("PUK", 0, 7, N::PinStatus, 3);
    retries("PUK used up", 0, 0, N::PinStatus, 4);
    row("PIN is asked for", {{"Modem.Modem3gpp/EnabledFacilityLocks", 1u}}, N::PinEnabled, 1);
    row("another lock", {{"Modem.Modem3gpp/EnabledFacilityLocks", 2u}}, N::PinEnabled, notTold);
    row("no SIM", {{"Modem/Sim", "/"}}, N::SimStatus, 255);
    row("no SIM yet", {{"Modem/Sim", "/"}, {"Modem/State", 1}}, N::SimStatus, none);
    row("faulty SIM", {{"Modem/Sim", "/"}, {"Modem/State", -1}, {"Modem/StateFailedReason", 3}},
        N::SimStatus, 0);
    row("port", {{"Modem/PrimaryPort", "ttyUSB12"}}, N::DevicePort, 12);
    row("port without a number", {{"Modem/PrimaryPort", "cdc-wdm"}}, N::DevicePort, none);
}

void Conversion::signal()
{
    QFETCH(QVariantMap, properties);
    QFETCH(NumberValue, value);
    QFETCH(qint64, expected);
    QCOMPARE(numberOf(convertWith(properties), value), expected);
}

void Conversion::texts_data()
{
    QTest::addColumn<QVariantMap>("properties");
    QTest::addColumn<TextValue>("value");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *property, const QVariant &set,
                        TextValue value, const char *expected) {
        QTest::newRow(name) << QVariantMap{{property, set}} << value << QString(expected);
    };
    using T = TextValue;
    row("LAC", "location/1", "001,01,1A2B,C3D4E,0", T::CsLac, "1A2B");
    row("cell", "location/1", "001,01,1A2B,C3D4E,0", T::PsCellId, "C3D4E");
    row("TAC", "location/1", "001,01,0,C3D4E,5F60", T::CsLac, "5F60");
    row("TAC, LAC deleted", "location/1", "001,01,FFFE,C3D4E,5F60", T::PsLac, "5F60");
    row("no area", "location/1", "001,01,0,C3D4E,0", T::CsLac, "");
    row("half a location", "location/1", "001,01,1A2B", T::CsLac, "");
    row("no location", "location/2", "$GPGGA", T::CsCellId, "");
    row("IMEI", "Modem.Modem3gpp/Imei", "001017003100016", T::Imei, "001017003100016");
    row("IMEI of a failed modem", "Modem/EquipmentIdentifier", "001017003100016", T::Imei,
        "001017003100016");
    row("number that is no IMEI", "Modem/EquipmentIdentifier", "1234567890", T::Imei, "none");
    row("MEID is no IMEI", "Modem/EquipmentIdentifier", "A0000000012345", T::Imei, "none");
    row("hardware", "Modem/HardwareRevision", "Ver.A", T::HardwareVersion, "Ver.A");
    row("no hardware version", "Modem/Revision", "1.2", T::HardwareVersion, "");
    row("no ESN", "Modem/Revision", "1.2", T::Esn, "none");
    row("MEID", "Modem.ModemCdma/Meid", "A0000000012345", T::Meid, "A0000000012345");
    row("MEID alone", "Modem.ModemCdma/Meid", "A0000000012345", T::Esn, "");
    row("name in Latin-1", "Modem.Modem3gpp/OperatorName", QString::fromUtf8("Caf\u00e9"),
        T::OperatorLongName, "Caf\u00e9");
    row("no IMSI", "sim/Imsi", "", T::Imsi, "none");
}

void Conversion::texts()
{
    QFETCH(QVariantMap, properties);
    QFETCH(TextValue, value);
    QFETCH(QString, expected);
    const Readings readings = convertWith(properties);
    const auto found = readings.texts.find(value);
    QCOMPARE(found == readings.texts.end() ? QString("none")
                                           : QString::fromLatin1(found->second.c_str()),
             expected);
}

void Conversion::messages()
{
    ServiceObjects objects;
    objects.interfaces["Modem.Messaging"]["Messages"] = QStringList();
    for (const int storage : {1, 2, 2, 3})
        objects.messages << QVariantMap{{"Storage", storage},
                                        {"SMSC", storage == 1 ? "+447700900900" : ""}};
    Readings readings = convert(objects);
    QCOMPARE(numberOf(readings, NumberValue::SimMessagesUsed), 1);
    QCOMPARE(numberOf(readings, NumberValue::DeviceMessagesUsed), 2);
    QCOMPARE(readings.texts[TextValue::SmsCentre], std::string("+447700900900"));
    QCOMPARE(numberOf(convertWith({}), NumberValue::SimMessagesUsed), none);
}

QTEST_GUILESS_MAIN(Conversion)

#include "conversion.moc"
