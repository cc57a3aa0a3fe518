// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef DIAGNOSTICSUIPLUGIN_H
#define DIAGNOSTICSUIPLUGIN_H

#include "DiagnosticsToolkit.h"

#include "interfaces/INotify.h"
#include "interfaces/IUIPlugin.h"

#include <QObject>
#include <QPointer>
#include <QString>

class DiagnosticsCdmaUI;
class DiagnosticsConfigParse;
class DiagnosticsUILogic;
class ExtendDialog;
class QHBoxLayout;
class QPushButton;
class QTabWidget;
class QVBoxLayout;
struct TabDetails;

/// The plug-in object: its life in the host, and the configured, tabbed diagnostics window.
///
/// The virtual functions stand in the order of the virtual table that hosts expect. The object is
/// used on the GUI thread; the device's events reach its slots through queued connections.
class DiagnosticsUIPlugin : public QObject, public IUIPlugin, public INotify
{
    Q_OBJECT
    DIAGNOSTICS_PLUGIN_METADATA
    Q_INTERFACES(IBasePlugin IUIPlugin INotify)

public:
    /// One row of the value dispatch.
    struct ValueRow;

    DiagnosticsUIPlugin();
    ~DiagnosticsUIPlugin() override;

    /// Relies on Init(): without the query layer it returns 0. Asks the device for its type, and
    /// shows the window for that type. The window belongs to \a parent, and the host may close or
    /// delete it at any time.
    int ShowWindow(QWidget *parent, QRect &rect) override;
    int DoModal() override;
    void Hide() override;
    void FitSize(QRect &rect) override;
    bool IsReady() override;
    /// Relies on the host's libraries only. Gets the query layer, which loads the configuration,
    /// and registers with the device.
    int Init() override;
    int GetPluginType() override;
    QString GetCLSID() override;
    int GetVersion() override;
    QString GetPluginName() override;
    bool IsAllowRelease() override;
    void Release() override;
    int GetLastError() override;
    /// Unregisters from the device and releases what Init() and ShowWindow() got. May be
    /// called at any time; windows that are open stay open.
    void OnDestroy() override;
    /// May be called at any time: without a window it does nothing. NOTIFY_CLOSE_WINDOWS closes the
    /// tabbed window that was shown last. If the CDMA window is visible, closes it and releases its
    /// object.
    int Notify(unsigned int code, unsigned int argument1, unsigned int argument2) override;
    int QueryInterface(int identifier, QObject **object) override;
    bool ChangeLang(const QString &language) override;

    /// Reads the value of a row, by the configured names of its tab and of the row, and sets
    /// *value, which must be a null string, to its display text. An empty text becomes the unknown
    /// text.
    void getValueLabelVal(QString tabName, QString itemName, QString *value);
    QString getDeviceNetTabItemValue(QString itemName);
    QString getNetSetTabItemValue(QString itemName);
    QString getNetSetTabItemValueVer2(QString itemName);
    QString getSimTabItemValue(QString itemName);

    /// Reads every shown row afresh and writes the report. Shows a message and returns 0 on
    /// success; returns 3 if the file cannot be opened, and 13 without a window or after
    /// OnDestroy().
    int saveToFile(QString path);

    /// The text of a resource key. Pass the key as QString or QLatin1String: a string literal would
    /// choose Qt's own tr(), which does not ask the host.
    QString tr(QString key);

private Q_SLOTS:
    void onTabChange(int index);
    void onButtonCancelClicked();
    void onButtonSaveClicked();
    void onButtonRefreshClicked();
    void onDeviceAvailable();
    void onDeviceUnavailable();
    void onDlgClose();

private:
    Q_DISABLE_COPY(DiagnosticsUIPlugin)

    void destroy();

    int createWcdmaDialog(QWidget *parent);
    int createDiagWidget(QWidget *parent);
    int createLayout();
    int dynamicTabCreation();
    int createTab(TabDetails *tab);
    int applyDeviceCustomization();

    bool isMarkable(int index) const;
    void showRows(const TabDetails &tab, QPointer<QWidget> page);
    QString valueOf(const ValueRow *row);

    DiagnosticsUILogic *m_pLogic;
    DiagnosticsConfigParse *m_pConfigParse;
    DiagnosticsCdmaUI *m_pCdmaUI;
    int m_bDeviceAvailable;
    // The widgets belong to the window, which can be deleted at any time: the pointers that are
    // used after it was built are guarded.
    QPointer<ExtendDialog> m_pdialogDiagnostics;
    QPointer<QWidget> m_pwidgetDiagnostic;
    QVBoxLayout *m_pvboxLayoutMain;
    QHBoxLayout *m_phboxLayoutTop;
    QHBoxLayout *m_phboxLayoutBottom;
    QPointer<QTabWidget> m_ptabWidgetDiag;
    QPushButton *m_ppushButtonSave;
    QPushButton *m_ppushButtonCancel;
    QPushButton *m_ppushButtonRefresh;
    int *m_pTabFilled; ///< by index of the tab widget: 1 if the tab need not be read again
    int m_iTabFilledCount;
};

#endif
