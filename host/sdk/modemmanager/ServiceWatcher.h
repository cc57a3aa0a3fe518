// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef SERVICEWATCHER_H
#define SERVICEWATCHER_H

#include "ModemService.h"
#include "ServiceModem.h"
#include "ServiceTiming.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>

class QDBusServiceWatcher;

/// Reads the service's objects at once and after each change that the service signals, and reports
/// each reading. In between it asks every few seconds for the location alone, of whose changes the
/// service sends no signal; the answer confirms the other values. Lives in a thread of its own. Its
/// calls to the service are asynchronous, but for the last one.
class ServiceWatcher : public QObject
{
    Q_OBJECT

public:
    /// Takes the modem, if there is one, and whether it tells anything else than before. The status
    /// NotAnswering ends the time for which the modem before counts.
    using Report =
        std::function<void(ModemService::Status, std::shared_ptr<ServiceModem>, bool changed)>;

    /// \a index is the number of the modem to take, the usable ones first. \a readAgain calls
    /// read() from any thread.
    ServiceWatcher(int index, const ServiceTiming &timing, const Report &report,
                   const std::function<void()> &readAgain);
    ~ServiceWatcher() override;

public slots:
    /// Reads all objects. Does nothing while a reading runs.
    void read();

private slots:
    void readSoon();
    void onPropertiesChanged(const QDBusMessage &message);

private:
    struct Reading;
    using ReadingPointer = std::shared_ptr<Reading>;
    /// Takes the first argument of a reply, in plain types.
    using TakeReply = std::function<void(const QVariant &)>;

    bool connectBus();
    void onServiceOwnerChanged(const QString &newOwner);
    void poll();
    void forget();
    void ask(const ReadingPointer &reading, const QString &path, const char *interface,
             const char *method, const QVariantList &arguments, const TakeReply &take);
    void askProperties(const ReadingPointer &reading, const QString &path, const char *interface,
                       const std::function<void(const QVariantMap &)> &take);
    void choose(const ReadingPointer &reading, const QVariantMap &objects);
    void askDetails(const ReadingPointer &reading);
    void askLocation(const ReadingPointer &reading);
    void setUpSignal(const Reading &reading);
    QDBusMessage signalSetup(const QString &path, unsigned period) const;
    void finish(const ReadingPointer &reading);

    const int m_index;
    const ServiceTiming m_timing;
    const Report m_report;
    const std::function<void()> m_readAgain;
    QDBusConnection m_bus;
    std::unique_ptr<QDBusServiceWatcher> m_owner;
    QTimer m_poll;
    QTimer m_soon;
    QTimer m_expiry;          ///< ends when the last reading no longer counts
    ReadingPointer m_reading; ///< the one that is running
    ReadingPointer m_last;    ///< null if the service has not confirmed it
    bool m_changed = false;   ///< since it began
    QString m_identity;       ///< of the modem that was taken first
    QString m_path;           ///< of the modem that was taken last
    QString m_signalPath;     ///< of the modem whose signal libsdk asked for
    bool m_signalRefused = false;
    QMap<QString, QVariantMap> m_messages; ///< by path; a stored message does not change
};

#endif
