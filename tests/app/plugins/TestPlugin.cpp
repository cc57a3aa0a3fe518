// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// A plug-in whose faults are compile definitions. It counts the host's calls in properties of the
// application, which outlives it.

#include "interfaces/INotify.h"
#include "interfaces/IUIPlugin.h"

#include <QCoreApplication>
#include <QVariant>

#include <cstdlib>

#if defined(WRONG_INTERFACE)
#define TEST_INTERFACES IBasePlugin
#elif defined(HALF_INTERFACE)
#define TEST_INTERFACES IBasePlugin IUIPlugin
#else
#define TEST_INTERFACES IBasePlugin IUIPlugin INotify
#endif

#ifdef INIT_FAILS
const char initResult[] = "ready";
#else
const char initResult[] = "";
#endif

class TestPlugin : public QObject, public IUIPlugin, public INotify
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.velt.IUIPlugin")
    Q_INTERFACES(TEST_INTERFACES)

public:
    ~TestPlugin() override { count("deleted"); }

    int Init() override
    {
#ifdef ABORTS
        qWarning("diagnosis-host: a warning");
        qDebug("the last line");
        std::abort();
#endif
        return *initResult ? qApp->property(initResult).toInt() : 1;
    }
    int ShowWindow(QWidget *, QRect &) override { return qApp->property("opens").toInt(); }
    int Notify(unsigned int code, unsigned int argument1, unsigned int argument2) override
    {
        count(code == 4100 && argument1 == 0 && argument2 == 0 ? "notified" : "misinformed");
        return 0;
    }
    void OnDestroy() override { count("destroyed"); }

    void Release() override {}
    int GetLastError() override { return 0; }
    int GetPluginType() override { return 0; }
    QString GetCLSID() override { return QString(); }
    int GetVersion() override { return 0; }
    QString GetPluginName() override { return QString(); }
    bool IsAllowRelease() override { return false; }
    int QueryInterface(int, QObject **) override { return 0; }
    int DoModal() override { return 0; }
    void Hide() override {}
    void FitSize(QRect &) override {}
    bool IsReady() override { return false; }
    bool ChangeLang(const QString &) override { return false; }

private:
    static void count(const char *what)
    {
        qApp->setProperty(what, qApp->property(what).toInt() + 1);
    }
};

#include "TestPlugin.moc"
