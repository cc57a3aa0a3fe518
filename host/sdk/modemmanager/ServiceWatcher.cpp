// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ServiceWatcher.h"

#include <QDBusArgument>
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
const int farewellTime = 500;    // ms

const QString signalInterface = QStringLiteral("Modem.Signal");
const QString locationInterface = QStringLiteral("Modem.Location");

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
    bool confirmed = false;                   ///< a call was answered
    ServiceModem::Clock::time_point answered; ///< last
    int outstanding = 0;                      ///< calls
    QString path;                             ///< the modem's
    ServiceObjects objects;

    QVariant modem(const char *property) const
    {
        return objects.interfaces.value(QStringLiteral("Modem")).value(QLatin1String(property));
    }
    void confirm()
    {
        confirmed = true;
        answered = ServiceModem::Clock::now();
    }
    unsigned signalRate() const
    {
        return objects.interfaces.value(signalInterface).value(QStringLiteral("Rate")).toUInt();
    }
};

ServiceWatcher::ServiceWatcher(int index, const ServiceTiming &timing, const Report &report,
                               const std::function<void()> &readAgain)
    : m_index(index), m_timing(timing), m_report(report), m_readAgain(readAgain), m_bus(busName)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(collectTime);
    connect(&m_soon, &QTimer::timeout, this, &ServiceWatcher::read);
    connect(&m_poll, &QTimer::timeout, this, &ServiceWatcher::poll);
    m_poll.start(m_timing.poll);
    m_expiry.setSingleShot(true);
    m_expiry.setTimerType(Qt::PreciseTimer);
    m_expiry.setInterval(m_timing.confirmation);
    connect(&m_expiry, &QTimer::timeout, this, [this] {
        m_last.reset();
        m_report(Status::NotAnswering, nullptr, true);
    });
    m_expiry.start();
    read();
}

// The connection stays open for the next watcher: Qt crashes when one is closed while calls are
// under way.
ServiceWatcher::~ServiceWatcher()
{
    // If the service does not answer, the signal stays on.
    const unsigned rate = m_last ? m_last->signalRate() : 0;
    const bool isOurs = rate == signalPeriod || rate == 0; // the rate that was set may come later
    if (m_last && !m_signalPath.isEmpty() && m_last->path == m_signalPath && isOurs &&
        !m_signalRefused)
        m_bus.call(signalSetup(m_signalPath, 0), QDBus::Block, farewellTime);
}

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
    const auto connectSignal = [this](const char *interface, const char *signal, const char *slot) {
        m_bus.connect(service, QString(), QLatin1String(interface), QLatin1String(signal), this,
                      slot);
    };
    connectSignal(properties, "PropertiesChanged", SLOT(onPropertiesChanged(QDBusMessage)));
    connectSignal(objectManager, "InterfacesAdded", SLOT(readSoon()));
    connectSignal(objectManager, "InterfacesRemoved", SLOT(readSoon()));
    forget();
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
    m_reading.reset();
    forget();
    if (newOwner.isEmpty())
        m_report(Status::NoService, nullptr, false);
    else
        readSoon();
}

/// What is kept is of the service before. A new one numbers its objects anew.
void ServiceWatcher::forget()
{
    m_last.reset();
    m_messages.clear();
    m_signalPath.clear();
}

void ServiceWatcher::onPropertiesChanged(const QDBusMessage &message)
{
    const QString interface = message.arguments().value(0).toString();
    if (m_reading || !m_last || message.path() != m_last->path ||
        interface != QLatin1String(servicePrefix) + signalInterface) {
        readSoon();
        return;
    }
    // The signal changes every few seconds, and no other value with it.
    const auto reading = std::make_shared<Reading>(*m_last);
    reading->confirm();
    reading->objects.interfaces[signalInterface].insert(
        toPlain(message.arguments().value(1)).toMap());
    finish(reading);
}

void ServiceWatcher::poll()
{
    if (m_reading)
        return;
    if (!m_last || m_last->objects.location.isEmpty()) {
        read();
        return;
    }
    m_changed = false;
    m_reading = std::make_shared<Reading>(*m_last);
    m_reading->confirmed = false;
    askLocation(m_reading);
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
        m_report(Status::NoBus, nullptr, false);
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
        if (!error.isValid()) {
            reading->confirm();
            take(toPlain(reply.arguments().value(0)));
        } else if (error.type() == QDBusError::ServiceUnknown ||
                   error.name() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner")) {
            reading->status = Status::NoService;
        } else if (error.type() == QDBusError::Disconnected ||
                   error.type() == QDBusError::NoServer) {
            reading->status = Status::NoBus;
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
    QStringList failed;
    QStringList paths = objects.keys();
    std::sort(paths.begin(), paths.end(), [](const QString &left, const QString &right) {
        return pathNumber(left) < pathNumber(right);
    });
    for (const QString &path : paths) {
        const QVariantMap modem = modemAt(path);
        if (!modem.isEmpty())
            (isUsable(modem) ? usable : failed) << path;
    }
    const QStringList modems = usable + failed;
    const auto isKnown = [&](const QString &path) {
        return !m_identity.isEmpty() && identity(modemAt(path)) == m_identity;
    };
    // Where several modems have the same identity, the one with the same path is taken.
    auto known = std::find(modems.cbegin(), modems.cend(), m_path);
    if (known == modems.cend() || !isKnown(m_path))
        known = std::find_if(modems.cbegin(), modems.cend(), isKnown);
    reading->path = known != modems.cend() ? *known : modems.value(m_index);
    m_path = reading->path;
    if (reading->path.isEmpty())
        return;

    const QVariantMap interfaces = objects[reading->path].toMap();
    for (auto i = interfaces.begin(); i != interfaces.end(); ++i) {
        if (i.key().startsWith(QLatin1String(servicePrefix)))
            reading->objects.interfaces[i.key().mid(sizeof servicePrefix - 1)] = i->toMap();
    }
    if (m_identity.isEmpty() && reading->modem("State").toInt() > ModemService::Initialising)
        m_identity = identity(modemAt(reading->path));
    askDetails(reading);
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
    for (const QString &path : reading->modem("SimSlots").toStringList()) {
        if (path.size() > 1 && path != sim)
            askProperties(reading, path, "Sim", [&objects, path](const QVariantMap &values) {
                objects.otherSims[path] = values;
            });
    }
    if (objects.interfaces.contains(locationInterface))
        askLocation(reading);

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

void ServiceWatcher::askLocation(const ReadingPointer &reading)
{
    ServiceObjects &objects = reading->objects;
    ask(reading, reading->path, "org.freedesktop.ModemManager1.Modem.Location", "GetLocation", {},
        [&objects](const QVariant &location) { objects.location = location.toMap(); });
}

QDBusMessage ServiceWatcher::signalSetup(const QString &path, unsigned period) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        service, path, QLatin1String(servicePrefix) + signalInterface, QStringLiteral("Setup"));
    message.setArguments({period});
    return message;
}

/// Asks the service to read the signal, once for each modem that is switched on. No other request
/// changes anything in the service.
void ServiceWatcher::setUpSignal(const Reading &reading)
{
    if (reading.signalRate() != 0)
        return;
    if (reading.modem("State").toInt() < ModemService::Enabled) {
        m_signalPath.clear();
    } else if (reading.path != m_signalPath &&
               !reading.objects.interfaces.value(signalInterface).isEmpty()) {
        m_signalPath = reading.path;
        m_signalRefused = false;
        auto *call = new QDBusPendingCallWatcher(
            m_bus.asyncCall(signalSetup(reading.path, signalPeriod)), this);
        connect(call, &QDBusPendingCallWatcher::finished, this, [=] {
            call->deleteLater();
            m_signalRefused = call->isError();
            if (m_signalRefused)
                readSoon();
        });
    }
}

void ServiceWatcher::finish(const ReadingPointer &reading)
{
    m_reading.reset();
    if (reading->status != Status::Present) {
        m_last.reset();
        m_report(reading->status, nullptr, false);
    } else if (reading->confirmed) {
        reading->objects.messages = m_messages.values();
        const bool changed =
            !m_last || m_last->path != reading->path || !(m_last->objects == reading->objects);
        m_last = reading;
        std::shared_ptr<ServiceModem> modem;
        if (!reading->path.isEmpty()) {
            setUpSignal(*reading);
            Readings readings = convert(reading->objects);
            readings.awaitsSignal =
                reading->path == m_signalPath && !m_signalRefused && !readings.hasSignal;
            modem = std::make_shared<ServiceModem>(reading->path, readings, reading->answered,
                                                   std::chrono::milliseconds(m_timing.confirmation),
                                                   m_readAgain);
        }
        m_report(modem ? Status::Present : Status::NoModem, modem, changed);
        m_expiry.start();
    } else if (m_last) {
        // The location alone was not told: the other values need to be confirmed in another way.
        m_last.reset();
        read();
        return;
    }
    if (m_changed)
        readSoon();
}
