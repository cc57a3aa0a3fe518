// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef SERVICEWATCHER_H
#define SERVICEWATCHER_H

#include "ModemService.h"
#include "ServiceModem.h"
#include "ServiceTiming.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>

class QDBusServiceWatcher;

/// Reads the service's objects at once, after each change and every few seconds in between, and
/// reports each reading. Lives in a thread of its own. All its calls to the service are
/// asynchronous.
class ServiceWatcher : public QObject
{
    Q_OBJECT

public:
    /// Takes the modem, if there is one.
    using Report = std::function<void(ModemService::Status, std::shared_ptr<ServiceModem>)>;

    /// \a index is the number of the modem to take among the usable ones.
    ServiceWatcher(int index, const ServiceTiming &timing, const Report &report);
    ~ServiceWatcher() override;

private slots:
    /// Reads all objects. Does nothing while a reading runs.
    void read();
    void readSoon();

private:
    struct Reading;
    using ReadingPointer = std::shared_ptr<Reading>;
    /// Takes the first argument of a reply, in plain types.
    using TakeReply = std::function<void(const QVariant &)>;

    bool connectBus();
    void onServiceOwnerChanged(const QString &newOwner);
    void ask(const ReadingPointer &reading, const QString &path, const char *interface,
             const char *method, const QVariantList &arguments, const TakeReply &take);
    void askProperties(const ReadingPointer &reading, const QString &path, const char *interface,
                       const std::function<void(const QVariantMap &)> &take);
    void choose(const ReadingPointer &reading, const QVariantMap &objects);
    void askDetails(const ReadingPointer &reading);
    void setUpSignal(const Reading &reading);
    void finish(const ReadingPointer &reading);

    const int m_index;
    const ServiceTiming m_timing;
    const Report m_report;
    QDBusConnection m_bus;
    std::unique_ptr<QDBusServiceWatcher> m_owner;
    QTimer m_poll;
    QTimer m_soon;
    ReadingPointer m_reading;              ///< the one that is running
    bool m_changed = false;                ///< since it began
    QString m_identity;                    ///< of the modem that was taken first
    QString m_path;                        ///< of the modem that was taken last
    QElapsedTimer m_signalAsked;           ///< since the signal was last set up
    QMap<QString, QVariantMap> m_messages; ///< by path; a stored message does not change
};

#endif
