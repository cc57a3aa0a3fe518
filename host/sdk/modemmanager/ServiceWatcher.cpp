// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ServiceWatcher.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include <algorithm>

using ModemService::Status;

namespace {

const char servicePrefix[] = "org.freedesktop.ModemManager1.";
const QString service = QStringLiteral("org.freedesktop.ModemManager1");
const QString servicePath = QStringLiteral("/org/freedesktop/ModemManager1");
const QString busName = QStringLiteral("libsdk");
const char objectManager[] = "org.freedesktop.DBus.ObjectManager";
const char properties[] = "org.freedesktop.DBus.Properties";

const unsigned signalPeriod = 5; // s
const int collectTime = 100;     // ms; changes come in groups
const int detailTime = 2000;     // ms

QVariant toPlain(const QDBusArgument &argument);

QVariant toPlain(const QVariant &value)
{
    if (value.userType() == qMetaTypeId<QDBusArgument>()) {
        // QDBusArgument takes reading from an object that is not const for writing.
        const QDBusArgument argument = value.value<QDBusArgument>();
        return toPlain(argument);
    }
    if (value.userType() == qMetaTypeId<QDBusVariant>())
        return toPlain(value.value<QDBusVariant>().variant());
    if (value.userType() == qMetaTypeId<QDBusObjectPath>())
        return value.value<QDBusObjectPath>().path();
    return value;
}

QVariant toPlain(const QDBusArgument &argument)
{
    switch (argument.currentType()) {
    case QDBusArgument::ArrayType: {
        QVariantList list;
        argument.beginArray();
        while (!argument.atEnd())
            list << toPlain(argument);
        argument.endArray();
        return list;
    }
    case QDBusArgument::StructureType: {
        QVariantList list;
        argument.beginStructure();
        while (!argument.atEnd())
            list << toPlain(argument);
        argument.endStructure();
        return list;
    }
    case QDBusArgument::MapType: {
        QVariantMap map;
        argument.beginMap();
        while (!argument.atEnd()) {
            argument.beginMapEntry();
            const QString key = toPlain(argument).toString();
            map[key] = toPlain(argument);
            argument.endMapEntry();
        }
        argument.endMap();
        return map;
    }
    default:
        return toPlain(argument.asVariant());
    }
}

/// Modems are numbered in the order of their arrival.
int pathNumber(const QString &path)
{
    return path.section(QLatin1Char('/'), -1).toInt();
}

QString identity(const QVariantMap &modem)
{
    const QString equipment = modem.value(QLatin1String("EquipmentIdentifier")).toString();
    return equipment.isEmpty() ? modem.value(QLatin1String("DeviceIdentifier")).toString()
                               : equipment;
}

} // namespace

/// One reading of all objects, which takes several calls.
struct ServiceWatcher::Reading
{
    Status status = Status::Present;
    bool confirmed = true;
    ServiceModem::Clock::time_point answered; ///< when the objects came
    int outstanding = 0;                      ///< calls
    QString path;                             ///< the modem's
    ServiceObjects objects;

    QVariant modem(const char *property) const
    {
        return objects.interfaces.value(QStringLiteral("Modem")).value(QLatin1String(property));
    }
};

ServiceWatcher::ServiceWatcher(int index, const ServiceTiming &timing, const Report &report)
    : m_index(index), m_timing(timing), m_report(report), m_bus(busName)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(collectTime);
    connect(&m_soon, &QTimer::timeout, this, &ServiceWatcher::read);
    connect(&m_poll, &QTimer::timeout, this, &ServiceWatcher::read);
    m_poll.start(m_timing.poll);
    read();
}

// The connection stays open for the next watcher: Qt crashes when one is closed while calls are
// under way.
ServiceWatcher::~ServiceWatcher() = default;

bool ServiceWatcher::connectBus()
{
    if (m_owner && m_bus.isConnected())
        return true;
    m_owner.reset();
    if (!m_bus.isConnected()) {
        QDBusConnection::disconnectFromBus(busName);
        m_bus = QDBusConnection::connectToBus(QDBusConnection::SystemBus, busName);
    }
    if (!m_bus.isConnected())
        return false;
    const auto connectSignal = [this](const char *interface, const char *signal) {
        m_bus.connect(service, QString(), QLatin1String(interface), QLatin1String(signal), this,
                      SLOT(readSoon()));
    };
    connectSignal(properties, "PropertiesChanged");
    connectSignal(objectManager, "InterfacesAdded");
    connectSignal(objectManager, "InterfacesRemoved");
    // What is kept is of the service on the bus before.
    m_messages.clear();
    m_signalAsked.invalidate();
    m_owner = std::make_unique<QDBusServiceWatcher>(service, m_bus,
                                                    QDBusServiceWatcher::WatchForOwnerChange);
    connect(m_owner.get(), &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &newOwner) {
                onServiceOwnerChanged(newOwner);
            });
    return true;
}

void ServiceWatcher::onServiceOwnerChanged(const QString &newOwner)
{
    // A new service numbers its objects anew.
    m_reading.reset();
    m_messages.clear();
    m_signalAsked.invalidate();
    if (newOwner.isEmpty())
        m_report(Status::NoService, nullptr);
    else
        readSoon();
}

void ServiceWatcher::readSoon()
{
    if (m_reading)
        m_changed = true;
    else if (!m_soon.isActive())
        m_soon.start();
}

void ServiceWatcher::read()
{
    if (m_reading)
        return;
    if (!connectBus()) {
        m_report(Status::NoBus, nullptr);
        return;
    }
    m_changed = false;
    const auto reading = m_reading = std::make_shared<Reading>();
    ask(reading, servicePath, objectManager, "GetManagedObjects", {},
        [=](const QVariant &objects) { choose(reading, objects.toMap()); });
}

void ServiceWatcher::ask(const ReadingPointer &reading, const QString &path, const char *interface,
                         const char *method, const QVariantList &arguments, const TakeReply &take)
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, QLatin1String(interface),
                                                          QLatin1String(method));
    message.setArguments(arguments);
    message.setAutoStartService(false);
    ++reading->outstanding;
    // Without the objects there is no reading; without a detail its values are missing.
    const bool isDetail = !reading->path.isEmpty();
    const int patience = isDetail ? qMin(detailTime, m_timing.confirmation) : m_timing.confirmation;
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(message, patience), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [=] {
        call->deleteLater();
        if (m_reading != reading)
            return;
        const QDBusMessage reply = call->reply();
        const QDBusError error(reply);
        if (!isDetail)
            reading->answered = ServiceModem::Clock::now();
        if (!error.isValid()) {
            take(toPlain(reply.arguments().value(0)));
        } else if (error.type() == QDBusError::ServiceUnknown ||
                   error.name() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner")) {
            reading->status = Status::NoService;
        } else if (error.type() == QDBusError::Disconnected ||
                   error.type() == QDBusError::NoServer) {
            reading->status = Status::NoBus;
        } else if (!isDetail) {
            reading->confirmed = false;
        } // Else an object has just gone, or has no such value now.
        if (--reading->outstanding == 0)
            finish(reading);
    });
}

void ServiceWatcher::askProperties(const ReadingPointer &reading, const QString &path,
                                   const char *interface,
                                   const std::function<void(const QVariantMap &)> &take)
{
    const QString name = QLatin1String(servicePrefix) + QLatin1String(interface);
    ask(reading, path, properties, "GetAll", {name},
        [=](const QVariant &values) { take(values.toMap()); });
}

void ServiceWatcher::choose(const ReadingPointer &reading, const QVariantMap &objects)
{
    const QString modemInterface = service + QLatin1String(".Modem");
    const auto modemAt = [&](const QString &path) {
        return objects[path].toMap().value(modemInterface).toMap();
    };
    QStringList usable;
    for (const QString &path : objects.keys()) {
        const QVariantMap modem = modemAt(path);
        if (!modem.isEmpty() && isUsable(modem))
            usable << path;
    }
    std::sort(usable.begin(), usable.end(), [](const QString &left, const QString &right) {
        return pathNumber(left) < pathNumber(right);
    });
    const auto isKnown = [&](const QString &path) {
        return !m_identity.isEmpty() && identity(modemAt(path)) == m_identity;
    };
    // Where several modems have the same identity, the one with the same path is taken.
    auto known = std::find(usable.cbegin(), usable.cend(), m_path);
    if (known == usable.cend() || !isKnown(m_path))
        known = std::find_if(usable.cbegin(), usable.cend(), isKnown);
    reading->path = known != usable.cend() ? *known : usable.value(m_index);
    m_path = reading->path;
    if (reading->path.isEmpty())
        return;

    const QVariantMap interfaces = objects[reading->path].toMap();
    for (auto i = interfaces.begin(); i != interfaces.end(); ++i) {
        if (i.key().startsWith(QLatin1String(servicePrefix)))
            reading->objects.interfaces[i.key().mid(sizeof servicePrefix - 1)] = i->toMap();
    }
    if (m_identity.isEmpty() && reading->modem("State").toInt() > ModemInitialising)
        m_identity = identity(modemAt(reading->path));
    askDetails(reading);
    setUpSignal(*reading);
}

void ServiceWatcher::askDetails(const ReadingPointer &reading)
{
    ServiceObjects &objects = reading->objects;
    const QString sim = reading->modem("Sim").toString();
    if (sim.size() > 1)
        askProperties(reading, sim, "Sim",
                      [&objects](const QVariantMap &values) { objects.sim = values; });
    const QStringList bearers = reading->modem("Bearers").toStringList();
    for (const QString &path : bearers)
        askProperties(reading, path, "Bearer",
                      [&objects](const QVariantMap &values) { objects.bearers << values; });
    if (objects.interfaces.contains(QStringLiteral("Modem.Location")))
        ask(reading, reading->path, "org.freedesktop.ModemManager1.Modem.Location", "GetLocation",
            {}, [&objects](const QVariant &location) { objects.location = location.toMap(); });

    const QStringList messages = objects.interfaces.value(QStringLiteral("Modem.Messaging"))
                                     .value(QLatin1String("Messages"))
                                     .toStringList();
    QMap<QString, QVariantMap> kept;
    for (const QString &path : messages) {
        if (m_messages.value(path).value(QLatin1String("Storage")).toUInt() != 0)
            kept[path] = m_messages[path];
        else
            askProperties(reading, path, "Sms",
                          [=](const QVariantMap &values) { m_messages[path] = values; });
    }
    m_messages = kept;
}

/// Asks the service to read the signal. No other request changes anything in the service.
void ServiceWatcher::setUpSignal(const Reading &reading)
{
    const QString interface = QStringLiteral("Modem.Signal");
    const QVariantMap signal = reading.objects.interfaces.value(interface);
    if (signal.isEmpty() || signal.value(QLatin1String("Rate")).toUInt() != 0 ||
        reading.modem("State").toInt() < ModemEnabled)
        return;
    if (m_signalAsked.isValid() && !m_signalAsked.hasExpired(1000 * signalPeriod))
        return;
    m_signalAsked.start();
    QDBusMessage message = QDBusMessage::createMethodCall(
        service, reading.path, QLatin1String(servicePrefix) + interface, QStringLiteral("Setup"));
    message.setArguments({signalPeriod});
    m_bus.send(message);
}

void ServiceWatcher::finish(const ReadingPointer &reading)
{
    m_reading.reset();
    if (reading->status != Status::Present) {
        m_report(reading->status, nullptr);
    } else if (reading->confirmed) {
        std::shared_ptr<ServiceModem> modem;
        if (!reading->path.isEmpty()) {
            reading->objects.messages = m_messages.values();
            modem = std::make_shared<ServiceModem>(
                reading->path, convert(reading->objects),
                reading->answered + std::chrono::milliseconds(m_timing.confirmation));
        }
        m_report(modem ? Status::Present : Status::NoModem, modem);
    }
    if (m_changed)
        readSoon();
}
