// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Conversation.h"
#include "Measurement.h"
#include "WindowByHand.h"

#include "DiagnosticsConfigParse.h"
#include "DiagnosticsLog.h"
#include "DiagnosticsToolkit.h"
#include "DiagnosticsUILogic.h"
#include "DiagnosticsUIPlugin.h"

#include "HostCore.h"
#include "HostPlugins.h"
#include "SdkControl.h"
#include "core/CommonUtils.h"
#include "sdk/VeltDevice.h"
#include "simulated/SimulatedModem.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QRect>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTime>
#include <QXmlStreamReader>

#include <cstdio>
#include <memory>

/// In front of libcore's: the box would wait for a user.
int CommonUtils::ShowMessage(QMessageBox::Icon, QWidget *, QString, QString, QString, QString,
                             QString, bool, Qt::WindowFlags, QDialog **, QString, bool)
{
    return 1;
}

namespace {

const char LogSource[] = "../../src/DiagnosisPlugin/DiagnosticsUILogic";

void nothing() {}

QTextStream &endLine(QTextStream &stream)
{
    stream << '\n';
    stream.flush();
    return stream;
}

void deleteLeftOvers()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

// ---- One log line ----

void logLine(benchmark::State &state)
{
    for (auto _ : state)
        qDebug("%s: %s: %s: called", LOG_AT);
}

void logLineByFormatString(benchmark::State &state)
{
    for (auto _ : state)
        qDebug("%s: %s: %s: called",
               QTime::currentTime().toString(QStringLiteral("hh:mm:ss:zzz")).toLatin1().constData(),
               LogSource, __func__);
}

// ---- The configuration ----

/// A plug-in folder with a generated configuration.
class LargeConfiguration
{
public:
    LargeConfiguration(int tabs, int rows) : m_size(tabs * rows)
    {
        QByteArray xml("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<veltdoc>\n");
        for (int tab = 0; tab < tabs; ++tab) {
            xml += "    <tab name=\"Tab " + QByteArray::number(tab) +
                   "\" resourceID=\"IDS_TAB_DEVICE\" show=\"true\">\n";
            for (int row = 0; row < rows; ++row)
                xml += "        <item name=\"Row " + QByteArray::number(row) +
                       "\" resourceID=\"IDS_DIAGNOSE_DEVICE_NAME\" show=\"true\"/>\n";
            xml += "    </tab>\n";
        }
        const QString folder = m_folder.path() + QLatin1String("/plugins/DiagnosisPlugin");
        QDir().mkpath(folder);
        m_file = folder + QLatin1String("/Large.xml");
        QFile file(m_file);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot write %s", qPrintable(m_file));
        file.write(xml + "</veltdoc>\n");
    }

    int size() const { return m_size; }

    void load() const
    {
        const QString before = CommonUtils::GetPluginLibraryPath();
        HostCore::setPluginLibraryPath(m_folder.path());
        if (DiagnosticsConfigParse::GetInstance()->LoadFile(QStringLiteral("Large.xml")) != 0)
            qFatal("cannot load %s", qPrintable(m_file));
        HostCore::setPluginLibraryPath(before);
    }

    /// What the reader cannot do without: each tag, and the three attributes of tabs and rows.
    void walk() const
    {
        QFile file(m_file);
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
            qFatal("cannot read %s", qPrintable(m_file));
        QXmlStreamReader reader(&file);
        while (!reader.atEnd()) {
            if (!reader.readNextStartElement())
                continue;
            const QXmlStreamAttributes attributes = reader.attributes();
            for (const char *name : {"name", "resourceID", "show"})
                benchmark::DoNotOptimize(attributes.value(QLatin1String(name)).toString());
        }
    }

private:
    QTemporaryDir m_folder;
    QString m_file;
    int m_size;
};

/// Gives back all that was taken, so that the next measurement begins anew; a release without an
/// object does nothing.
void releaseAll()
{
    for (int reference = 0; reference < 4; ++reference)
        DiagnosticsUILogic::Destroy();
    for (int reference = 0; reference < 4; ++reference)
        DiagnosticsConfigParse::DestroyInstance();
}

std::function<void(benchmark::State &)> loading(int tabs, int rows, bool perRow)
{
    const auto configuration = std::make_shared<LargeConfiguration>(tabs, rows);
    const double parts = perRow ? configuration->size() : 1;
    return [=](benchmark::State &state) {
        timed(
            state, nothing, [&] { configuration->load(); }, releaseAll, parts);
    };
}

std::function<void(benchmark::State &)> walking(int tabs, int rows)
{
    const auto configuration = std::make_shared<LargeConfiguration>(tabs, rows);
    return [=](benchmark::State &state) {
        timed(
            state, nothing, [&] { configuration->walk(); }, nothing);
    };
}

// ---- One getter ----

void getter(benchmark::State &state)
{
    DiagnosticsUILogic *logic = DiagnosticsUILogic::GetInstance();
    for (auto _ : state)
        benchmark::DoNotOptimize(logic->GetIMEI());
    releaseAll();
}

void getterByHand(benchmark::State &state)
{
    for (auto _ : state) {
        qDebug("%s: %s: %s: called", LOG_AS("GetIMEI"));
        char imei[VELT_SIZE_IMEI + 1] = "";
        qDebug("=======> %s: %s: %s: CallingVELT_DevSrv_GetImeiInfo: %s", LOG_AS("GetIMEI"), imei);
        const VELT_ERROR result = VELT_DevSrv_GetImeiInfo(imei);
        qDebug("<======= %s: %s: %s: VELT_DevSrv_GetImeiInfo returned: %s, %li:", LOG_AS("GetIMEI"),
               imei, result);
        qDebug("%s: %s: %s: Calling VELT_DevSrv_GetImeiInfo success: %s, %li:", LOG_AS("GetIMEI"),
               imei, result);
        benchmark::DoNotOptimize(QString::fromLatin1(imei));
    }
}

// ---- The window and the export ----

/// The plug-in, started, with all that it did in one round with the window.
class Rounds
{
public:
    Rounds() : m_export(m_folder.path() + QLatin1String("/export.txt"))
    {
        m_plugin.Init();
        Conversation opening = Conversation::record([this] { open(); });
        m_conversations.append(opening);
        QTabWidget *tabs = productTabs();
        for (int index = 1; index < tabs->count(); ++index)
            m_conversations.append(Conversation::record([=] { tabs->setCurrentIndex(index); }));
        m_content = std::make_unique<WindowContent>(tabs->window());
        for (const TabDetails &tab : *DiagnosticsConfigParse::GetInstance()->GetTabInformation()) {
            for (const TabItem &item : *tab.items)
                m_readings.append(Conversation::record([&] {
                    QString value;
                    m_plugin.getValueLabelVal(tab.name, item.name, &value);
                }));
        }
        close();
    }
    ~Rounds()
    {
        m_plugin.OnDestroy();
        releaseAll();
    }

    void open()
    {
        QRect rect;
        if (m_plugin.ShowWindow(&m_parent, rect) != 1)
            qFatal("the window does not open");
    }
    void close()
    {
        m_plugin.Notify(NOTIFY_CLOSE_WINDOWS, 0, 0);
        deleteLeftOvers();
    }
    QTabWidget *productTabs() const { return m_parent.findChild<QTabWidget *>(); }

    void openByHand()
    {
        m_byHand = std::make_unique<WindowByHand>(&m_parent, *m_content, m_conversations);
    }
    void closeByHand()
    {
        m_byHand.reset();
        deleteLeftOvers();
    }
    QTabWidget *tabsByHand() const { return m_byHand->tabs(); }

    void save() { m_plugin.saveToFile(m_export); }

    void saveByHand()
    {
        for (const char *function : {"saveToFile", "GetTabInformation"})
            qDebug("%s: %s: %s: called", LOG_AS(function));
        QFile file(m_export);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
            qFatal("cannot write %s", qPrintable(m_export));
        QTextStream stream(&file);
        setUtf8(stream);
        auto reading = m_readings.cbegin();
        for (const WindowContent::Tab &tab : m_content->tabs) {
            stream << tab.title << endLine;
            for (const WindowContent::Row &row : tab.rows) {
                reading++->repeat();
                stream << row.caption << " " << row.value << endLine;
            }
            stream << endLine;
        }
        qDebug("%s: %s: %s: file writing success", LOG_AS("saveToFile"));
    }

private:
    QTemporaryDir m_folder;
    QString m_export;
    QWidget m_parent;
    DiagnosticsUIPlugin m_plugin;
    QVector<Conversation> m_conversations;
    QVector<Conversation> m_readings; ///< of each row
    std::unique_ptr<WindowContent> m_content;
    std::unique_ptr<WindowByHand> m_byHand;
};

void visitAll(QTabWidget *tabs)
{
    for (int index = 1; index < tabs->count(); ++index)
        tabs->setCurrentIndex(index);
    tabs->setCurrentIndex(0);
}

// ---- Events ----

const int eventsAtOnce = 100;

/// What the plug-in does with an event, without a plug-in around it.
class BareObject : public QObject
{
    Q_OBJECT

public:
    static int callback(int event, void *)
    {
        qDebug("%s: %s: %s:  Entered", LOG_AS("OnDevEvents"));
        qDebug("%s: %s: %s:  Dev Evenet(%d)", LOG_AS("OnDevEvents"), event);
        Q_EMIT sender->arrived();
        qDebug("%s: %s: %s:  Exit", LOG_AS("OnDevEvents"));
        return 1;
    }
    static BareObject *sender;

public Q_SLOTS:
    void onArrived() { qDebug("%s: %s: %s: called", LOG_AS("onDeviceAvailable")); }

Q_SIGNALS:
    void arrived();
};

BareObject *BareObject::sender = nullptr;

/// Raises events in the SDK and waits until the last of them has reached its slot.
void raise(const std::function<bool()> &allReached)
{
    for (int event = 0; event < eventsAtOnce; ++event)
        SdkControl::raiseEvent(VELT_EVENT_DEV_ARRIVAL);
    while (!allReached())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void events(benchmark::State &state)
{
    DiagnosticsUIPlugin plugin;
    plugin.Init();
    // Behind the plug-in's own connection, so that its slot has run.
    int received = 0;
    QObject::connect(
        DiagnosticsUILogic::GetInstance(), &DiagnosticsUILogic::DeviceAvailable, &plugin,
        [&received] { ++received; }, Qt::QueuedConnection);
    DiagnosticsUILogic::Destroy();
    timed(
        state, [&] { received = 0; }, [&] { raise([&] { return received == eventsAtOnce; }); },
        nothing, eventsAtOnce);
}

void eventsByHand(benchmark::State &state)
{
    BareObject sender;
    BareObject receiver;
    int received = 0;
    BareObject::sender = &sender;
    QObject::connect(&sender, SIGNAL(arrived()), &receiver, SLOT(onArrived()));
    QObject::connect(
        &sender, &BareObject::arrived, &receiver, [&received] { ++received; },
        Qt::QueuedConnection);
    VELT_DevSrv_RegisterDevMgrCallback(BareObject::callback);
    timed(
        state, [&] { received = 0; }, [&] { raise([&] { return received == eventsAtOnce; }); },
        nothing, eventsAtOnce);
    VELT_DevSrv_UnRegisterDevMgrCallback(BareObject::callback);
}

std::vector<Measurement> measurements()
{
    const auto visit = [](benchmark::State &state) {
        Rounds rounds;
        timed(
            state, [&] { rounds.open(); }, [&] { visitAll(rounds.productTabs()); },
            [&] { rounds.close(); });
    };
    const auto visitByHand = [](benchmark::State &state) {
        Rounds rounds;
        timed(
            state, [&] { rounds.openByHand(); }, [&] { visitAll(rounds.tabsByHand()); },
            [&] { rounds.closeByHand(); });
    };
    const auto open = [](benchmark::State &state) {
        Rounds rounds;
        timed(
            state, nothing, [&] { rounds.open(); }, [&] { rounds.close(); });
    };
    const auto openByHand = [](benchmark::State &state) {
        Rounds rounds;
        timed(
            state, nothing, [&] { rounds.openByHand(); }, [&] { rounds.closeByHand(); });
    };
    const auto save = [](benchmark::State &state) {
        Rounds rounds;
        rounds.open();
        timed(
            state, nothing, [&] { rounds.save(); }, nothing);
    };
    const auto saveByHand = [](benchmark::State &state) {
        Rounds rounds;
        timed(
            state, nothing, [&] { rounds.saveByHand(); }, nothing);
    };
    return {
        {"one log line", "ns", 0.4, 0, logLine, logLineByFormatString},
        {"load a configuration of 10 x 1,000 rows", "ms", 1.2, 10, loading(10, 1000, false),
         walking(10, 1000)},
        {"growth: a row of 100,000 against one of 1,000", "ns", 1.1, 3, loading(100, 1000, true),
         loading(1, 1000, true)},
        {"one getter", "ns", 1.1, 0, getter, getterByHand},
        {"visit every tab", "us", 1.15, 50, visit, visitByHand},
        {"open the window", "us", 1.15, 50, open, openByHand},
        {"export", "us", 1.15, 300, save, saveByHand},
        {"SDK event to slot", "ns", 1.2, 50, events, eventsByHand},
    };
}

/// The lines are written as ever, to nowhere.
void dropLog(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    qInstallMessageHandler(dropLog);
    std::string error;
    const auto modem = SimulatedModem::load(BENCH_DATA_DIR "/modems/wcdma.ini", &error);
    if (!modem)
        qFatal("%s", error.c_str());
    // The mode that the first visit of Network status leaves the device in.
    SdkControl::attach(modem);
    modem->setValue("network/csReportMode", "2");
    HostCore::setPluginLibraryPath(QStringLiteral(BENCH_LIBRARY_DIR));
    HostCore::setSettingsFile(QStringLiteral(BENCH_DATA_DIR "/host.ini"));
    HostCore::setLanguage(QStringLiteral(BENCH_DATA_DIR "/translations"), QStringLiteral("en"));
    HostCore::applyLook(application);
    const HostPlugins hostPlugins;
    return printTable(argc, argv, measurements());
}

#include "inside.moc"
