// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The loadable module as a foreign host sees it: symbols, casts, virtual tables, life.

#include "TestSupport.h"

#include "SdkControl.h"
#include "interfaces/INotify.h"
#include "interfaces/IUIPlugin.h"
#include "modem/HostPlugins.h"

#include <QLibrary>
#include <QMetaMethod>
#include <QProcess>
#include <QRect>
#include <QWidget>
#include <QtTest>

#include <cstddef>
#include <thread>

using namespace TestSupport;

namespace {

/// Calls a virtual function by its slot, the two of the destructor counted. A result that is an
/// object comes back as from a free function: the caller's place for it goes before the object.
template <typename Result, typename... Arguments>
Result callSlot(void *view, int slot, Arguments... arguments)
{
    void **table = *static_cast<void ***>(view);
    return reinterpret_cast<Result (*)(void *, Arguments...)>(table[slot])(view, arguments...);
}

} // namespace

class ModuleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void exportedSymbols();
    void verificationData();
    void oneObject();
    void casts();
    void slotsOfTheTables();
    void interfacesOfTheHost();
    void metaObject();
    void eventsFromAnotherThread();
    void unloadAfterTheWindowClosed();

private:
    QObject *instance()
    {
        auto entry = reinterpret_cast<QObject *(*)()>(m_library.resolve("qt_plugin_instance"));
        return entry ? entry() : nullptr;
    }

    LogCapture *m_log = nullptr;
    ConfiguredHost *m_host = nullptr;
    QLibrary m_library{MODULE_FILE};
};

void ModuleTest::init()
{
    m_log = new LogCapture;
    m_host = new ConfiguredHost;
    attachModem("wcdma");
    QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
}

void ModuleTest::cleanup()
{
    delete instance();
    QVERIFY(m_library.unload());
    delete m_host;
    delete m_log;
}

void ModuleTest::exportedSymbols()
{
    QProcess nm;
    nm.start("nm", {"-D", "--defined-only", "-j", MODULE_FILE});
    QVERIFY(nm.waitForFinished());
    QStringList symbols =
        QString::fromLatin1(nm.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    symbols.sort();
    symbols.replaceInStrings("metadata_v2", "metadata"); // Qt 6
    QCOMPARE(symbols, list("qt_plugin_instance|qt_plugin_query_metadata|"
                           "qt_plugin_query_verification_data"));
}

void ModuleTest::verificationData()
{
    auto query =
        reinterpret_cast<const char *(*)()>(m_library.resolve("qt_plugin_query_verification_data"));
    QVERIFY(query);
    const QList<QByteArray> lines = QByteArray(query()).split('\n');
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.at(0), QByteArray("pattern=QT_PLUGIN_VERIFICATION_DATA"));
    QCOMPARE(lines.at(1), QByteArray("version=4.6.2"));
    QCOMPARE(lines.at(2), QByteArray("debug=false"));
    QVERIFY2(lines.at(3).startsWith("buildkey=" + QSysInfo::buildCpuArchitecture().toLatin1()) &&
                 lines.at(3).endsWith(" full-config qt-" QT_STRINGIFY(QT_VERSION_MAJOR)),
             lines.at(3).constData());
}

void ModuleTest::oneObject()
{
    QPointer<QObject> first = instance();
    QVERIFY(first);
    QCOMPARE(instance(), first.data());
    QVERIFY(!first->parent());
    delete first;
    QVERIFY(instance()); // a new one
    QCOMPARE(m_log->takeLog(), QStringList());
}

void ModuleTest::casts()
{
    QObject *object = instance();
    const char *plugin = static_cast<char *>(object->qt_metacast("IUIPlugin"));
    const char *notify = static_cast<char *>(object->qt_metacast("INotify"));
    QVERIFY(plugin && notify && plugin != notify);
    QCOMPARE(object->qt_metacast("DiagnosticsUIPlugin"), static_cast<void *>(object));
    QCOMPARE(static_cast<char *>(object->qt_metacast("com.velt.IBasePlugin")), plugin);
    QCOMPARE(static_cast<char *>(object->qt_metacast("com.velt.IUIPlugin")), plugin);
    QCOMPARE(static_cast<char *>(object->qt_metacast("com.velt.INotify")), notify);
    QCOMPARE(object->qt_metacast("QObject"), static_cast<void *>(object));
    QVERIFY(!object->qt_metacast("IBasePlugin"));
    QVERIFY(!object->qt_metacast("com.velt.IStatusBarUI"));
    QVERIFY(!object->qt_metacast(nullptr));
    QCOMPARE(reinterpret_cast<const char *>(qobject_cast<IUIPlugin *>(object)), plugin);
    QCOMPARE(reinterpret_cast<const char *>(qobject_cast<INotify *>(object)), notify);
}

void ModuleTest::slotsOfTheTables()
{
    QObject *object = instance();
    void *plugin = object->qt_metacast("IUIPlugin");
    const QString name = "DiagnosticsUIPlugin";

    callSlot<void>(plugin, 2);                      // Release
    QCOMPARE(callSlot<int>(plugin, 3), 0);          // GetLastError
    QCOMPARE(callSlot<int>(plugin, 5), 0);          // GetPluginType
    QVERIFY(callSlot<QString>(plugin, 6).isNull()); // GetCLSID
    QCOMPARE(callSlot<int>(plugin, 7), 0);          // GetVersion
    QCOMPARE(callSlot<QString>(plugin, 8), name);   // GetPluginName
    QCOMPARE(callSlot<bool>(plugin, 9), false);     // IsAllowRelease
    QObject untouched;
    QObject *output = &untouched;
    QCOMPARE((callSlot<int, int, QObject **>(plugin, 10, 4100, &output)), 0); // QueryInterface
    QCOMPARE(output, &untouched);

    QRect rect(1, 2, 3, 4);
    // ShowWindow, which before Init shows nothing
    QCOMPARE((callSlot<int, QWidget *, QRect *>(plugin, 11, nullptr, &rect)), 0);
    QCOMPARE(callSlot<int>(plugin, 12), 0);     // DoModal
    callSlot<void>(plugin, 13);                 // Hide
    callSlot<void, QRect *>(plugin, 14, &rect); // FitSize
    QCOMPARE(rect, QRect(1, 2, 3, 4));
    QCOMPARE(callSlot<bool>(plugin, 15), false); // IsReady
    const QString empty("");
    const QString german = "de";
    QCOMPARE((callSlot<bool, const QString *>(plugin, 16, &empty)), false); // ChangeLang
    QCOMPARE((callSlot<bool, const QString *>(plugin, 16, &german)), true);

    void *notify = object->qt_metacast("INotify");
    QCOMPARE((callSlot<int, unsigned, unsigned, unsigned>(notify, 2, 4100, 0, 0)), 0);
    const QString at = "TIME: ../../src/DiagnosisPlugin/DiagnosticsUIPlugin: ";
    QCOMPARE(m_log->takeLog(), QStringList({at + "ShowWindow: called", at + "Notify: called"}));

    QCOMPARE(callSlot<int>(plugin, 4), 1); // Init
    QVERIFY(m_log->takeLog().contains(at + "Init: called"));
    IDestroyEvent *destroy = qobject_cast<IBasePlugin *>(object);
    callSlot<void>(destroy, 2); // OnDestroy
    QVERIFY(m_log->takeLog().last().contains("DestroyInstance"));

    // The object's own table goes on behind QObject's in the order of the class.
    const int own = 2 + 10;                      // two destructors and ten functions of QObject
    QCOMPARE(callSlot<int>(object, own + 1), 0); // DoModal
    QCOMPARE(callSlot<int>(object, own + 6), 0); // GetPluginType
    QCOMPARE(callSlot<QString>(object, own + 9), name);                           // GetPluginName
    QCOMPARE((callSlot<bool, const QString *>(object, own + 16, &german)), true); // ChangeLang
}

/// Those that the plug-in calls, as another host's plug-ins have them.
void ModuleTest::interfacesOfTheHost()
{
    static_assert(offsetof(NetProfileSettings, apn) == 8 * sizeof(QString) &&
                      sizeof(NetProfileSettings) == 19 * sizeof(QString),
                  "the access point's name is the ninth of 19 texts");
    StatusBar statusBar;
    DialupService dialup;
    ConnectionSettings connections;
    QString text;
    void *view = static_cast<IStatusBarUI *>(&statusBar);
    QCOMPARE((callSlot<int, QString *>(view, 2, &text)), 0); // IGetServiceName
    QCOMPARE(text, QString("Test Net One"));
    QCOMPARE((callSlot<int, QString *>(view, 3, &text)), 0); // IGetNetworkType
    QCOMPARE(text, QString("UMTS"));
    view = static_cast<IDialupUIService *>(&dialup);
    QCOMPARE((callSlot<int, QString *>(view, 2, &text)), 0); // IGetProfileName
    NetProfileSettings settings;
    view = static_cast<INetConnectSetting *>(&connections);
    QCOMPARE((callSlot<int, QString *, NetProfileSettings *>(view, 2, &text, &settings)), 0);
    QCOMPARE(settings.apn, QString("internet.example"));
}

void ModuleTest::metaObject()
{
    QObject *object = instance();
    const QMetaObject *meta = object->metaObject();
    QCOMPARE(meta->className(), "DiagnosticsUIPlugin");
    QCOMPARE(meta->superClass()->className(), "QObject");
    QCOMPARE(meta->propertyCount(), meta->propertyOffset());
    QStringList methods;
    for (int index = meta->methodOffset(); index < meta->methodCount(); ++index) {
        QCOMPARE(meta->method(index).methodType(), QMetaMethod::Slot);
        QCOMPARE(meta->method(index).access(), QMetaMethod::Private);
        methods.append(QString::fromLatin1(meta->method(index).methodSignature()));
    }
    QCOMPARE(methods.join(' '),
             QString("onTabChange(int) onButtonCancelClicked() onButtonSaveClicked() "
                     "onButtonRefreshClicked() onDeviceAvailable() "
                     "onDeviceUnavailable() onDlgClose()"));
}

void ModuleTest::eventsFromAnotherThread()
{
    SdkControl::raiseEvent(6601); // before Init: nobody listens
    QVERIFY(SdkControl::waitForEvents(10000));
    settle();
    auto *plugin = qobject_cast<IUIPlugin *>(instance());
    QCOMPARE(plugin->Init(), 1);
    m_log->takeLog();

    std::thread other([] {
        for (int round = 0; round < 50; ++round)
            SdkControl::raiseEvent(round % 2 ? 6000 : 6601);
    });
    other.join();
    QVERIFY(SdkControl::waitForEvents(10000));
    const QStringList delivered = m_log->takeLog();
    QCOMPARE(delivered.filter("Dev Evenet(6601)").size(), 25);
    QCOMPARE(delivered.filter("onDevice").size(), 0); // only queued so far
    settle();
    const QStringList reached = m_log->takeLog().filter("onDevice");
    QCOMPARE(reached.size(), 50);
    QVERIFY(reached.at(0).contains("onDeviceUnavailable"));
    QVERIFY(reached.at(49).contains("onDeviceAvailable"));

    SdkControl::raiseEvent(6601);
    plugin->OnDestroy(); // with an event on its way
    settle();
    m_log->takeLog();
    SdkControl::raiseEvent(6601);
    QVERIFY(SdkControl::waitForEvents(10000));
    settle();
    QCOMPARE(m_log->takeLog(), QStringList());
}

void ModuleTest::unloadAfterTheWindowClosed()
{
    QWidget hostWindow;
    auto *plugin = qobject_cast<IUIPlugin *>(instance());
    QCOMPARE(plugin->Init(), 1);
    QRect rect;
    QCOMPARE(plugin->ShowWindow(&hostWindow, rect), 1);
    QPointer<QWidget> window = diagnosticsWindow();
    QVERIFY(window);
    window->close();
    delete instance(); // before the window's deferred deletion
    QVERIFY(m_library.unload());
    settle();
    QVERIFY(!window);
    QVERIFY(m_library.load());
}

QTEST_MAIN(ModuleTest)
#include "module.moc"
