// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// A plug-in that behaves as a definition says. What the host does to it is counted in properties of
// the application, which outlives it.

#include "interfaces/INotify.h"
#include "interfaces/IUIPlugin.h"

#include <QCoreApplication>
#include <QVariant>

namespace {

void count(const char *what)
{
    qApp->setProperty(what, qApp->property(what).toInt() + 1);
}

} // namespace

#ifdef WRONG_INTERFACE

class TestPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.velt.IUIPlugin")

public:
    ~TestPlugin() override { count("deleted"); }
};

#else

#ifdef HALF_INTERFACE
#define TEST_INTERFACES IBasePlugin IUIPlugin
#else
#define TEST_INTERFACES IBasePlugin IUIPlugin INotify
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
#ifdef INIT_FAILS
        return qApp->property("ready").toInt();
#else
        return 1;
#endif
    }
    int ShowWindow(QWidget *, QRect &) override
    {
        return qApp->property("opens").toInt();
    }
    int Notify(unsigned int code, unsigned int argument1, unsigned int argument2) override
    {
        if (code == 4100 && argument1 == 0 && argument2 == 0)
            count("notified");
        return 0;
    }
    void OnDestroy() override
    {
        count("destroyed");
    }

    void Release() override {}
    int GetLastError() override
    {
        return 0;
    }
    int GetPluginType() override
    {
        return 0;
    }
    QString GetCLSID() override
    {
        return QString();
    }
    int GetVersion() override
    {
        return 0;
    }
    QString GetPluginName() override
    {
        return QString();
    }
    bool IsAllowRelease() override
    {
        return false;
    }
    int QueryInterface(int, QObject **) override
    {
        return 0;
    }
    int DoModal() override
    {
        return 0;
    }
    void Hide() override {}
    void FitSize(QRect &) override {}
    bool IsReady() override
    {
        return false;
    }
    bool ChangeLang(const QString &) override
    {
        return false;
    }
};

#endif

#include "TestPlugin.moc"
