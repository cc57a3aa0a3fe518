// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Conversion.h"

#include "Properties.h"
#include "sdk/VeltDevice.h"
#include "sdk/VeltNetwork.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <iterator>

using namespace ModemService;

namespace {

// ---- The service's numbers ----

enum Capability : unsigned
{
    CapabilityCdma = 1u << 1,
    CapabilityGsmUmts = 1u << 2,
    CapabilityTdScdma = 1u << 7,
    CapabilityAny = 0xFFFFFFFF // stands for not known
};

enum Lock
{
    LockUnknown = 0,
    LockPin = 2,
    LockPuk = 4
};

enum SmsStorage
{
    StorageSim = 1,
    StorageDevice = 2
};

const unsigned simFacility = 1;

template <typename Number, size_t Size>
int64_t lookUp(const Number (&table)[Size], int64_t code, int64_t unknown)
{
    return code >= 0 && code < static_cast<int64_t>(Size) ? table[code] : unknown;
}

/// By the service's registration state. Registrations "SMS only" and "CSFB not preferred" are
/// registrations; states "emergency only" and "attached RLOS" are not.
const int registrationStates[] = {
    VELT_REG_NOT_REGISTERED, VELT_REG_HOME,    VELT_REG_SEARCHING, VELT_REG_DENIED,
    VELT_REG_UNKNOWN,        VELT_REG_ROAMING, VELT_REG_HOME,      VELT_REG_ROAMING,
    VELT_REG_NOT_REGISTERED, VELT_REG_HOME,    VELT_REG_ROAMING,   VELT_REG_NOT_REGISTERED};

const int pinStates[] = {VELT_PIN_UNKNOWN,   VELT_PIN_READY,        VELT_PIN_REQUIRED,
                         VELT_PIN2_REQUIRED, VELT_PIN_PUK_REQUIRED, VELT_PIN_PUK2_REQUIRED};

const int packetStates[] = {VELT_PS_UNKNOWN, VELT_PS_DETACHED, VELT_PS_ATTACHED};

const int noCode = -1;

/// The first row whose bits are all in use counts. Packet extensions of a network (EDGE, HSDPA)
/// have the code of the network.
const struct
{
    unsigned bits;
    int code; ///< AcT of +COPS
    const char *name;
} accessTechnologies[] = {
    {1u << 15 | 1u << 14, 13, "5G"},
    {1u << 15, 11, "5G"},
    {1u << 14, 7, "LTE"},
    {1u << 16, 7, "LTE-M"},
    {1u << 17, 9, "NB-IoT"},
    {1u << 9, 2, "HSPA+"},
    {1u << 8, 2, "HSPA"},
    {1u << 7 | 1u << 6, 2, "HSPA"},
    {1u << 7, 2, "HSUPA"},
    {1u << 6, 2, "HSDPA"},
    {1u << 5, 2, "UMTS"},
    {1u << 4, 0, "EDGE"},
    {1u << 3, 0, "GPRS"},
    {1u << 2, 0, "GSM"},
    {1u << 1, 0, "GSM"},
    {1u << 13, noCode, "EV-DO B"},
    {1u << 12, noCode, "EV-DO A"},
    {1u << 11, noCode, "EV-DO"},
    {1u << 10, noCode, "CDMA 1x"},
};

std::string latin1(const QString &text)
{
    return text.toLatin1().toStdString();
}

class Converter
{
public:
    explicit Converter(const ServiceObjects &objects)
        : m_objects(objects), m_modem(interface("Modem")), m_3gpp(interface("Modem.Modem3gpp"))
    {
    }

    Readings convert()
    {
        convertIdentity();
        convertSim();
        convertPin();
        convertNetwork();
        convertLocation();
        convertSignal();
        convertMessages();
        convertConnections();
        m_readings.condition = {static_cast<int>(number(m_modem, "State")),
                                static_cast<int>(number(m_modem, "StateFailedReason")),
                                static_cast<int>(number(m_modem, "PowerState"))};
        m_readings.details = convertDetails(m_objects);
        return m_readings;
    }

private:
    QVariantMap interface(const char *name) const
    {
        return m_objects.interfaces.value(QLatin1String(name));
    }

    void set(TextValue value, const QString &text)
    {
        if (!text.isEmpty())
            m_readings.texts[value] = latin1(text);
    }

    /// A text that the host alone reads.
    void setHostText(TextValue value, const QString &text)
    {
        m_readings.texts[value] = text.toStdString();
    }

    bool isInitialising() const
    {
        const int64_t state = number(m_modem, "State");
        return state >= 0 && state <= Initialising;
    }

    int64_t productType() const
    {
        const unsigned capabilities = property(m_modem, "CurrentCapabilities").toUInt();
        if (capabilities == CapabilityAny)
            return VELT_PRODUCT_UNKNOWN;
        if (capabilities & CapabilityGsmUmts)
            return VELT_PRODUCT_WCDMA;
        if (capabilities & CapabilityCdma)
            return VELT_PRODUCT_CDMA;
        return capabilities & CapabilityTdScdma ? VELT_PRODUCT_TD_SCDMA : VELT_PRODUCT_UNKNOWN;
    }

    /// A modem that failed has no interface of 3GPP modems. Its general number may be an IMEI.
    QString imei() const
    {
        const QString imei = text(m_3gpp, "Imei");
        const QString equipment = text(m_modem, "EquipmentIdentifier");
        const bool hasImeiDigits =
            equipment.size() == 15 && std::all_of(equipment.begin(), equipment.end(),
                                                  [](QChar digit) { return digit.isDigit(); });
        return imei.isEmpty() && hasImeiDigits ? equipment : imei;
    }

    void convertIdentity()
    {
        auto &numbers = m_readings.numbers;
        numbers[NumberValue::DeviceStatus] =
            isInitialising() ? VELT_DEV_STATUS_INITIALISING : VELT_DEV_STATUS_READY;
        numbers[NumberValue::ProductType] = productType();
        const QString port = text(m_modem, "PrimaryPort");
        int digits = 0;
        while (digits < port.size() && port.at(port.size() - 1 - digits).isDigit())
            ++digits;
        bool isNumber = false;
        const int portNumber = port.right(digits).toInt(&isNumber);
        if (isNumber)
            numbers[NumberValue::DevicePort] = portNumber;

        set(TextValue::DeviceName, text(m_modem, "Model"));
        setHostText(TextValue::Description, text(m_modem, "Model"));
        set(TextValue::Imei, imei());
        // The SDK gives these in pairs. If a modem has only one of a pair, the other is empty.
        m_readings.texts[TextValue::FirmwareVersion] = latin1(text(m_modem, "Revision"));
        m_readings.texts[TextValue::HardwareVersion] = latin1(text(m_modem, "HardwareRevision"));
        const QVariantMap cdma = interface("Modem.ModemCdma");
        if (!cdma.isEmpty()) {
            m_readings.texts[TextValue::Esn] = latin1(text(cdma, "Esn"));
            m_readings.texts[TextValue::Meid] = latin1(text(cdma, "Meid"));
        }
    }

    void convertSim()
    {
        auto &numbers = m_readings.numbers;
        const QString path = text(m_modem, "Sim");
        const bool failed = number(m_modem, "State") == Failed;
        if (path.size() > 1) {
            const bool faulty = failed && number(m_modem, "StateFailedReason") == SimError;
            numbers[NumberValue::SimStatus] = faulty ? VELT_SIM_INVALID : VELT_SIM_VALID;
        } else if (failed && number(m_modem, "StateFailedReason") == SimError) {
            numbers[NumberValue::SimStatus] = VELT_SIM_INVALID;
        } else if (!isInitialising() && isUsable(m_modem)) {
            numbers[NumberValue::SimStatus] = VELT_SIM_NONE;
            m_readings.simMissing = true;
        }
        set(TextValue::Imsi, text(m_objects.sim, "Imsi"));
        set(TextValue::Iccid, text(m_objects.sim, "SimIdentifier"));

        if (!m_modem.contains(QStringLiteral("OwnNumbers")))
            return;
        for (const QString &ownNumber : property(m_modem, "OwnNumbers").toStringList())
            m_readings.ownNumbers.push_back(latin1(ownNumber));
        numbers[NumberValue::OwnNumbersTotal] = notTold;
        numbers[NumberValue::OwnNumbersFirst] = 1;
        numbers[NumberValue::OwnNumbersUsed] = static_cast<int64_t>(m_readings.ownNumbers.size());
        numbers[NumberValue::OwnNumberLength] = notTold;
        numbers[NumberValue::OwnNameLength] = notTold;
    }

    int64_t attempts(int lock) const
    {
        const QVariantMap retries = property(m_modem, "UnlockRetries").toMap();
        bool isNumber = false;
        const uint left = retries.value(QString::number(lock)).toUInt(&isNumber);
        return isNumber && left <= 9 ? left : notTold;
    }

    void convertPin()
    {
        auto &numbers = m_readings.numbers;
        const int64_t lock = number(m_modem, "UnlockRequired");
        const int64_t pukAttempts = attempts(LockPuk);
        int64_t state = lookUp(pinStates, lock, VELT_PIN_UNKNOWN);
        if (lock == LockUnknown && isInitialising())
            state = VELT_PIN_NOT_INITIALIZED;
        if (lock == LockPuk && pukAttempts == 0)
            state = VELT_PIN_BLOCKED;
        numbers[NumberValue::PinStatus] = state;
        numbers[NumberValue::PinAttempts] = attempts(LockPin);
        numbers[NumberValue::PukAttempts] = pukAttempts;
        // The service may not know of a lock, so that none named means nothing.
        const bool asked = property(m_3gpp, "EnabledFacilityLocks").toUInt() & simFacility;
        numbers[NumberValue::PinEnabled] =
            asked || lock == LockPin || lock == LockPuk ? 1 : notTold;
    }

    void convertNetwork()
    {
        auto &numbers = m_readings.numbers;
        const unsigned technologies = property(m_modem, "AccessTechnologies").toUInt();
        const auto used =
            std::find_if(std::begin(accessTechnologies), std::end(accessTechnologies),
                         [=](const auto &technology) {
                             return (technologies & technology.bits) == technology.bits;
                         });
        if (used != std::end(accessTechnologies) && technologies != AccessAny) {
            setHostText(TextValue::NetworkType, QLatin1String(used->name));
            if (used->code != noCode)
                numbers[NumberValue::AccessTechnology] = used->code;
        }
        if (m_3gpp.isEmpty())
            return;

        numbers[NumberValue::SelectionMode] = notTold;
        const QString name = text(m_3gpp, "OperatorName");
        setHostText(TextValue::ServiceName, name);
        m_readings.texts[TextValue::OperatorLongName] = latin1(name);
        m_readings.texts[TextValue::OperatorShortName] = std::string();
        set(TextValue::OperatorCode, text(m_3gpp, "OperatorCode"));

        const int64_t state =
            lookUp(registrationStates, number(m_3gpp, "RegistrationState", -1), VELT_REG_UNKNOWN);
        numbers[NumberValue::CsReportMode] = VELT_REG_REPORT_LOCATION;
        numbers[NumberValue::CsState] = state;
        int64_t packet = 0;
        if (!readNumber(property(m_3gpp, "PacketServiceState"), packet))
            return;
        // The service has one registration for both domains. It holds for the packet domain while
        // the modem is attached.
        const int64_t attachment = lookUp(packetStates, packet, VELT_PS_UNKNOWN);
        const bool registered = state == VELT_REG_HOME || state == VELT_REG_ROAMING;
        numbers[NumberValue::PsAttachment] = attachment;
        numbers[NumberValue::PsReportMode] = VELT_REG_REPORT_LOCATION;
        int64_t &packetState = numbers[NumberValue::PsState];
        if (registered == (attachment == VELT_PS_ATTACHED))
            packetState = state;
        else
            packetState =
                attachment == VELT_PS_DETACHED ? VELT_REG_NOT_REGISTERED : VELT_REG_UNKNOWN;
    }

    void convertLocation()
    {
        // In E-UTRAN the tracking area stands in the location area's place.
        const Cell cell = toCell(m_objects.location);
        const QString area = cell.locationArea.isEmpty() ? cell.trackingArea : cell.locationArea;
        for (const TextValue value : {TextValue::CsLac, TextValue::PsLac})
            m_readings.texts[value] = latin1(area);
        for (const TextValue value : {TextValue::CsCellId, TextValue::PsCellId})
            m_readings.texts[value] = latin1(cell.identity);
    }

    bool readRssi(double &rssi) const
    {
        const QVariantMap readings = interface("Modem.Signal");
        for (const char *technology : {"Umts", "Gsm", "Lte", "Evdo", "Cdma"}) {
            const QVariantMap signal = property(readings, technology).toMap();
            double rscp = 0;
            double ecIo = 0;
            if (readLevel(property(signal, "rssi"), rssi))
                return true;
            if (readLevel(property(signal, "rscp"), rscp) &&
                readLevel(property(signal, "ecio"), ecIo)) {
                rssi = rscp - ecIo;
                return true;
            }
        }
        return false;
    }

    void convertSignal()
    {
        auto &numbers = m_readings.numbers;
        const bool tdScdma = productType() == VELT_PRODUCT_TD_SCDMA;
        const double top = tdScdma ? 91 : 31;
        double rssi = 0;
        const QVariantList quality = toList(property(m_modem, "SignalQuality"));
        if (readRssi(rssi)) {
            const double raw = tdScdma ? rssi + 116 : (rssi + 113) / 2;
            numbers[NumberValue::Rssi] = std::lround(std::min(std::max(raw, 0.0), top));
        } else if (quality.size() == 2) {
            // 0 may also stand for no reading.
            const uint percent = std::min(quality[0].toUInt(), 100u);
            numbers[NumberValue::Rssi] = percent == 0 ? 99 : std::lround(percent * top / 100);
        }
        numbers[NumberValue::BitErrorRate] = 99;

        const QVariantMap signal = interface("Modem.Signal");
        double level = 0;
        for (const QVariant &technology : signal) {
            for (const QVariant &value : technology.toMap())
                m_readings.hasSignal = m_readings.hasSignal || readLevel(value, level);
        }
        const QVariantMap utran = property(signal, "Umts").toMap();
        if (readLevel(property(utran, "rscp"), level))
            numbers[NumberValue::Rscp] = std::lround(level);
        if (readLevel(property(utran, "ecio"), level))
            numbers[NumberValue::EcIo] = std::lround(level);
    }

    void convertMessages()
    {
        auto &numbers = m_readings.numbers;
        if (!interface("Modem.Messaging").isEmpty()) {
            numbers[NumberValue::SimMessagesUsed] = 0;
            numbers[NumberValue::DeviceMessagesUsed] = 0;
        }
        for (const QVariantMap &message : m_objects.messages) {
            const int64_t storage = number(message, "Storage");
            if (storage == StorageSim)
                ++numbers[NumberValue::SimMessagesUsed];
            else if (storage == StorageDevice)
                ++numbers[NumberValue::DeviceMessagesUsed];
            const QString centre = text(message, "SMSC");
            if (!centre.isEmpty())
                m_readings.texts[TextValue::SmsCentre] = centre.toStdString();
        }
    }

    void convertConnections()
    {
        QList<QVariantMap> bearers = m_objects.bearers;
        std::stable_partition(bearers.begin(), bearers.end(), [](const QVariantMap &bearer) {
            return property(bearer, "Connected").toBool();
        });
        for (const QVariantMap &bearer : bearers) {
            const QVariantMap settings = property(bearer, "Properties").toMap();
            const QString apn = text(settings, "apn");
            const QString name = text(settings, "profile-name");
            const QString profile = name.isEmpty() ? apn : name;
            if (m_readings.connections.empty()) {
                setHostText(TextValue::Profile, profile);
                setHostText(TextValue::Apn, apn);
            }

            QVariantMap ip = property(bearer, "Ip4Config").toMap();
            if (text(ip, "address").isEmpty())
                ip = property(bearer, "Ip6Config").toMap();
            Readings::Connection connection{latin1(profile), {}};
            QStringList servers;
            for (const char *server : {"dns1", "dns2", "dns3"}) {
                if (!text(ip, server).isEmpty())
                    servers << text(ip, server);
            }
            if (!text(ip, "address").isEmpty())
                connection.texts[TextValue::IpAddress] = latin1(text(ip, "address"));
            if (!servers.isEmpty())
                connection.texts[TextValue::NameServers] =
                    latin1(servers.join(QStringLiteral(", ")));
            m_readings.connections.push_back(connection);
        }
    }

    const ServiceObjects &m_objects;
    const QVariantMap m_modem;
    const QVariantMap m_3gpp;
    Readings m_readings;
};

} // namespace

bool ServiceObjects::operator==(const ServiceObjects &other) const
{
    return interfaces == other.interfaces && sim == other.sim && otherSims == other.otherSims &&
           bearers == other.bearers && messages == other.messages && location == other.location;
}

bool isUsable(const QVariantMap &modem)
{
    if (number(modem, "State") != Failed)
        return true;
    const int64_t reason = number(modem, "StateFailedReason");
    return reason == SimMissing || reason == SimError || reason == SimWithoutProfiles;
}

Readings convert(const ServiceObjects &objects)
{
    return Converter(objects).convert();
}
