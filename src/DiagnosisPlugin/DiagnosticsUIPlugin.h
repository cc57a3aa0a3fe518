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

    int ShowWindow(QWidget *parent, QRect &rect) override;
    int DoModal() override;
    void Hide() override;
    void FitSize(QRect &rect) override;
    bool IsReady() override;
    /// May rely on nothing but the host's libraries. Gets the query layer, and with it the
    /// configuration, and registers with the device.
    int Init() override;
    int GetPluginType() override;
    QString GetCLSID() override;
    int GetVersion() override;
    QString GetPluginName() override;
    bool IsAllowRelease() override;
    void Release() override;
    int GetLastError() override;
    /// Takes the callbacks back from the device and gives back what Init() and the CDMA window
    /// took.
    void OnDestroy() override;
    int Notify(unsigned int code, unsigned int argument1, unsigned int argument2) override;
    int QueryInterface(int identifier, QObject **object) override;
    bool ChangeLang(const QString &language) override;

    /// The display text of a row, by the configured names of its tab and itself, read afresh.
    /// \a value comes in null and is never left empty as long as the unknown text is not.
    void getValueLabelVal(QString tabName, QString itemName, QString *value);
    QString getDeviceNetTabItemValue(QString itemName);
    QString getNetSetTabItemValue(QString itemName);
    QString getNetSetTabItemValueVer2(QString itemName);
    QString getSimTabItemValue(QString itemName);

    /// Writes the report, every shown row read afresh, and tells of its success: 0, 3 when the file
    /// cannot be opened, 13 without a window or after the end.
    int saveToFile(QString path);

    /// The text of a resource key. Hand the key over as QString or QLatin1String: a plain literal
    /// would choose the toolkit's tr(), which does not ask the host.
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
    // The widgets belong to the window, which can go at any time: those that are used after it was
    // built are guarded.
    QPointer<ExtendDialog> m_pdialogDiagnostics;
    QPointer<QWidget> m_pwidgetDiagnostic;
    QVBoxLayout *m_pvboxLayoutMain;
    QHBoxLayout *m_phboxLayoutTop;
    QHBoxLayout *m_phboxLayoutBottom;
    QPointer<QTabWidget> m_ptabWidgetDiag;
    QPushButton *m_ppushButtonSave;
    QPushButton *m_ppushButtonCancel;
    QPushButton *m_ppushButtonRefresh;
    int *m_pTabFilled; ///< by index of the tab widget: 1 once the tab needs no reading any more
    int m_iTabFilledCount;
};

#endif
