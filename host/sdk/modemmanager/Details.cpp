// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Conversion.h"
#include "Properties.h"

#include <QStringList>

#include <vector>

using ModemService::Detail;
using ModemService::DetailKind;

namespace {

// ---- The names that the service's own tools show, by number from 0 or by bit; "-" for none ----

const char states[] = "failed - initializing locked disabled disabling enabling enabled searching "
                      "registered disconnecting connecting connected";
const int64_t firstState = -1; // failed
const char failedReasons[] =
    "- unknown sim-missing sim-error unknown-capabilities esim-without-profiles";
const char powerStates[] = "- off low on";
const char locks[] =
    "- none sim-pin sim-pin2 sim-puk sim-puk2 ph-sp-pin ph-sp-puk ph-net-pin ph-net-puk ph-sim-pin "
    "ph-corp-pin ph-corp-puk ph-fsim-pin ph-fsim-puk ph-netsub-pin ph-netsub-puk";
const char registrations[] =
    "idle home searching denied - roaming home-sms-only roaming-sms-only emergency-only "
    "home-csfb-not-preferred roaming-csfb-not-preferred attached-rlos";
const char packetServices[] = "- detached attached";
const char simTypes[] = "- physical esim";
const char addressMethods[] = "- ppp static dhcp";

// Bits.
const char capabilities[] = "pots cdma-evdo gsm-umts lte - iridium 5gnr tds";
const char modes[] = "cs 2g 3g 4g 5g";
const char technologies[] = "pots gsm gsm-compact gprs edge umts hsdpa hsupa hspa hspa-plus 1xrtt "
                            "evdo0 evdoa evdob lte 5gnr lte-cat-m lte-nb-iot";
const char addressFamilies[] = "ipv4 ipv6 ipv4v6 non-ip";
const uint anyBits = 0xFFFFFFFF;

const char firstBands[] = "- egsm dcs pcs g850 utran-1 utran-3 utran-4 utran-6 utran-5 utran-8 "
                          "utran-9 utran-2 utran-7 g450 g480 g750 g380 g410 g710 g810";
const struct
{
    int64_t first;
    int64_t last;
    const char *prefix;
    int64_t zero; ///< the number of the band 0
} bandRanges[] = {{31, 115, "eutran-", 30},
                  {128, 132, "cdma-bc", 128},
                  {134, 148, "cdma-bc", 129},
                  {210, 232, "utran-", 200},
                  {301, 561, "ngran-", 300}};
const int64_t anyBand = 256;

// ---- Showing one property: empty if its value is not known ----

const QString noName = QStringLiteral("-");

QStringList split(const char *names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '));
}

template <const char *names, int64_t first = 0>
QString named(const QVariant &value)
{
    int64_t number = 0;
    if (!readNumber(value, number))
        return QString();
    static const QStringList all = split(names);
    if (number < first || number - first >= all.size())
        return QString::number(number);
    const QString &name = all[static_cast<int>(number - first)];
    return name == noName ? QString() : name;
}

template <const char *names>
QString flagged(const QVariant &value)
{
    int64_t number = 0;
    if (!readNumber(value, number) || number < 0 || number > anyBits)
        return QString();
    if (number == anyBits)
        return QStringLiteral("any");
    static const QStringList all = split(names);
    QStringList set;
    for (int bit = 0; bit < 32; ++bit) {
        const QString name = all.value(bit, noName);
        if (number >> bit & 1)
            set << (name == noName ? QStringLiteral("0x") + QString::number(1u << bit, 16) : name);
    }
    return set.join(QStringLiteral(", "));
}

QString band(const QVariant &value)
{
    int64_t number = 0;
    if (!readNumber(value, number))
        return QString();
    for (const auto &range : bandRanges) {
        if (number >= range.first && number <= range.last)
            return QLatin1String(range.prefix) + QString::number(number - range.zero);
    }
    return number == anyBand ? QStringLiteral("any") : named<firstBands>(value);
}

QString bands(const QVariant &value)
{
    QStringList shown;
    for (const QVariant &one : toList(value))
        shown << band(one);
    shown.removeAll(QString());
    return shown.mid(0, 100).join(QStringLiteral(", "));
}

QString modeCombination(const QVariant &value)
{
    const QVariantList pair = toList(value);
    const QString allowed = flagged<modes>(pair.value(0));
    const QString preferred = flagged<modes>(pair.value(1));
    return preferred.isEmpty() ? allowed : allowed + QStringLiteral("; preferred ") + preferred;
}

QString tries(const QVariant &value)
{
    const uint unknown = 999;
    QMap<int, QString> shown;
    const QVariantMap left = value.toMap();
    for (auto lock = left.begin(); lock != left.end(); ++lock) {
        int64_t count = 0;
        const QString name = named<locks>(lock.key().toInt());
        if (readNumber(*lock, count) && count >= 0 && count < unknown && !name.isEmpty())
            shown[lock.key().toInt()] = QStringLiteral("%1 (%2)").arg(name).arg(count);
    }
    return QStringList(shown.values()).join(QStringLiteral(", "));
}

QString plainNumber(const QVariant &value)
{
    int64_t number = 0;
    return readNumber(value, number) && number >= 0 ? QString::number(number) : QString();
}

QString withUnit(const QString &number, const char *unit)
{
    return number.isEmpty() ? number : number + QLatin1Char(' ') + QLatin1String(unit);
}

QString seconds(const QVariant &value)
{
    return withUnit(plainNumber(value), "s");
}

QString bytes(const QVariant &value)
{
    return withUnit(plainNumber(value), "bytes");
}

/// Of a pair, whose second tells whether it is recent. 0 may also stand for no reading.
QString percentage(const QVariant &value)
{
    int64_t number = 0;
    const bool isKnown = readNumber(toList(value).value(0), number) && number > 0 && number <= 100;
    return isKnown ? QString::number(number) + QStringLiteral(" %") : QString();
}

/// To one decimal place, where there is one.
QString level(const QVariant &value)
{
    double level = 0;
    return readLevel(value, level) ? QString::number(qRound(level * 10) / 10.0) : QString();
}

QString decibels(const QVariant &value)
{
    return withUnit(level(value), "dB");
}

QString power(const QVariant &value)
{
    return withUnit(level(value), "dBm");
}

/// Of an error's name and message.
QString message(const QVariant &value)
{
    return toText(toList(value).value(1));
}

QString yesNo(const QVariant &value)
{
    if (value.userType() != QMetaType::Bool)
        return QString();
    return value.toBool() ? QStringLiteral("yes") : QStringLiteral("no");
}

QString address(const QVariant &value)
{
    const QVariantMap configuration = value.toMap();
    const QString address = text(configuration, "address");
    const QString prefix = plainNumber(property(configuration, "prefix"));
    return address.isEmpty() || prefix.isEmpty() ? address : address + QLatin1Char('/') + prefix;
}

// ---- The tables: one row per property ----

struct Row
{
    const char *name;
    const char *property; ///< a value of a dictionary after its name and '/'
    QString (*show)(const QVariant &);
    DetailKind kind;
};

// clang-format off
const std::vector<Row> modemRows = {
    {"State", "State", named<states, firstState>, DetailKind::Plain},
    {"Failed reason", "StateFailedReason", named<failedReasons>, DetailKind::Plain},
    {"Power", "PowerState", named<powerStates>, DetailKind::Plain},
    {"Unlock required", "UnlockRequired", named<locks>, DetailKind::Plain},
    {"Unlock tries", "UnlockRetries", tries, DetailKind::Plain},
    {"Manufacturer", "Manufacturer", toText, DetailKind::Plain},
    {"Firmware revision", "Revision", toText, DetailKind::Plain},
    {"Equipment identifier", "EquipmentIdentifier", toText, DetailKind::Device},
    {"Capabilities", "CurrentCapabilities", flagged<capabilities>, DetailKind::Plain},
    {"Modes", "CurrentModes", modeCombination, DetailKind::Plain},
    {"Bands", "CurrentBands", bands, DetailKind::Plain},
    {"Access technologies", "AccessTechnologies", flagged<technologies>, DetailKind::Plain},
    {"Signal quality", "SignalQuality", percentage, DetailKind::Plain},
};
const std::vector<Row> networkRows = {
    {"Registration", "RegistrationState", named<registrations>, DetailKind::Plain},
    {"Rejection cause", "NetworkRejection/error", plainNumber, DetailKind::Plain},
    {"Packet service", "PacketServiceState", named<packetServices>, DetailKind::Plain},
    {"Operator code", "OperatorCode", toText, DetailKind::Plain},
};
const std::vector<Row> signalRows = {
    {"RSSI", "rssi", power, DetailKind::Plain},
    {"RSRP", "rsrp", power, DetailKind::Plain},
    {"RSRQ", "rsrq", decibels, DetailKind::Plain},
    {"SNR", "snr", decibels, DetailKind::Plain},
    {"SINR", "sinr", decibels, DetailKind::Plain},
    {"RSCP", "rscp", power, DetailKind::Plain},
    {"Ec/Io", "ecio", decibels, DetailKind::Plain},
    {"Io", "io", power, DetailKind::Plain},
};
const std::vector<Row> simRows = {
    {"Active", "Active", yesNo, DetailKind::Plain},
    {"Type", "SimType", named<simTypes>, DetailKind::Plain},
    {"ICCID", "SimIdentifier", toText, DetailKind::User},
    {"EID", "Eid", toText, DetailKind::User},
    {"IMSI", "Imsi", toText, DetailKind::User},
    {"Operator code", "OperatorIdentifier", toText, DetailKind::Plain},
    {"Operator name", "OperatorName", toText, DetailKind::Plain},
};
const std::vector<Row> bearerRows = {
    {"Connected", "Connected", yesNo, DetailKind::Plain},
    {"Interface", "Interface", toText, DetailKind::Plain},
    {"APN", "Properties/apn", toText, DetailKind::Plain},
    {"Address family", "Properties/ip-type", flagged<addressFamilies>, DetailKind::Plain},
    {"IPv4 method", "Ip4Config/method", named<addressMethods>, DetailKind::Plain},
    {"IPv4 address", "Ip4Config", address, DetailKind::Address},
    {"IPv6 method", "Ip6Config/method", named<addressMethods>, DetailKind::Plain},
    {"IPv6 address", "Ip6Config", address, DetailKind::Address},
    {"Time", "Stats/duration", seconds, DetailKind::Plain},
    {"Received", "Stats/rx-bytes", bytes, DetailKind::Plain},
    {"Sent", "Stats/tx-bytes", bytes, DetailKind::Plain},
    {"Last error", "ConnectionError", message, DetailKind::Plain},
};
const struct
{
    const char *property;
    const char *group;
} signalGroups[] = {
    {"Gsm", "GSM"}, {"Umts", "UMTS"}, {"Lte", "LTE"}, {"Nr5g", "5G"}, {"Cdma", "CDMA"}, {"Evdo", "EV-DO"},
};
// clang-format on

class Collector
{
public:
    explicit Collector(const ServiceObjects &objects)
        : m_objects(objects), m_modem(objects.interfaces.value(QStringLiteral("Modem")))
    {
    }

    std::vector<Detail> collect()
    {
        add("Modem", modemRows, m_modem);
        add("Network", networkRows, m_objects.interfaces.value(QStringLiteral("Modem.Modem3gpp")));
        addCell();
        const QVariantMap signal = m_objects.interfaces.value(QStringLiteral("Modem.Signal"));
        for (const auto &group : signalGroups)
            add(group.group, signalRows, property(signal, group.property).toMap());
        addSims();
        int bearer = 0;
        for (const QVariantMap &properties : m_objects.bearers)
            add("Bearer " + std::to_string(++bearer), bearerRows, properties);
        return m_details;
    }

private:
    void add(const std::string &group, const char *name, const QString &value, DetailKind kind)
    {
        if (!value.isEmpty())
            m_details.push_back({group, name, value.toStdString(), kind});
    }

    void add(const std::string &group, const std::vector<Row> &rows, const QVariantMap &properties)
    {
        for (const Row &row : rows) {
            const QStringList path = QString::fromLatin1(row.property).split(QLatin1Char('/'));
            QVariant value = properties.value(path[0]);
            if (path.size() > 1)
                value = value.toMap().value(path[1]);
            add(group, row.name, row.show(value), row.kind);
        }
    }

    /// Adds the cell's identity, with the parts that it has in the network of the modem.
    void addCell()
    {
        const Cell cell = toCell(m_objects.location);
        const auto place = [this](const char *name, const QString &value) {
            add("Cell", name, value, DetailKind::Place);
        };
        place("LAC", cell.locationArea);
        place("TAC", cell.trackingArea);
        place("Cell identity", cell.identity);

        const uint64_t identity = cell.identity.toULongLong(nullptr, 16);
        const uint64_t greatest = 0xFFFFFFF; // 28 bits
        const int64_t technology = number(m_modem, "AccessTechnologies");
        if (technology == AccessAny || identity == 0 || identity > greatest)
            return;
        if (technology & AccessLte) {
            place("eNodeB", QString::number(identity >> 8));
            place("Cell", QString::number(identity & 0xFF));
        } else if (technology & AccessUmts) {
            // Some modems tell the cell without its RNC.
            if (identity > 0xFFFF)
                place("RNC", QString::number(identity >> 16));
            place("Cell", QString::number(identity & 0xFFFF));
        } else if (technology & AccessGsm) {
            place("Cell", QString::number(identity));
        }
    }

    /// Adds the SIM of each slot or, if the service knows no slots, the one SIM.
    void addSims()
    {
        const QStringList simSlots = property(m_modem, "SimSlots").toStringList();
        if (simSlots.isEmpty())
            add("SIM", simRows, m_objects.sim);
        const QString active = text(m_modem, "Sim");
        for (int slot = 0; slot < simSlots.size(); ++slot) {
            const std::string group = "SIM slot " + std::to_string(slot + 1);
            const QString &path = simSlots[slot];
            if (path.size() <= 1)
                add(group, "State", QStringLiteral("empty"), DetailKind::Plain);
            else
                add(group, simRows,
                    path == active ? m_objects.sim : m_objects.otherSims.value(path));
        }
    }

    const ServiceObjects &m_objects;
    const QVariantMap m_modem;
    std::vector<Detail> m_details;
};

} // namespace

std::vector<Detail> convertDetails(const ServiceObjects &objects)
{
    return Collector(objects).collect();
}
