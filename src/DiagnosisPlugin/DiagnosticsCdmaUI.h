// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef DIAGNOSTICSCDMAUI_H
#define DIAGNOSTICSCDMAUI_H

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

class DiagnosticsConfigParse;
class DiagnosticsUILogic;
class ExtendDialog;
class QFrame;
class QHBoxLayout;
class QPushButton;
class QVBoxLayout;
class QWidget;

/// The fixed diagnostics window of CDMA devices. Its rows are chosen once, from the device's state
/// and the settings when the object is created; their values are read afresh each time.
///
/// An uncounted singleton. Used on the GUI thread.
class DiagnosticsCdmaUI : public QObject
{
    Q_OBJECT

public:
    static DiagnosticsCdmaUI *CreateInstance();
    static void DestroyInstance();

    /// Builds and shows a window; returns false if it cannot be built. An earlier window stays, but
    /// the pointers to it are dropped.
    bool ShowCdmaDiagWidget(QWidget *parent);
    bool visible();
    bool CloseCdmaDiagWidget();

    /// The value of a row by its resource key.
    QString getLabelValue(QString key);
    /// The same, with the unknown text for an empty one.
    QString getLabelValuebyName(QString key);

    /// See DiagnosticsUIPlugin::tr().
    QString tr(QString key);

private Q_SLOTS:
    void onCancelClicked();
    void onSaveClicked();
    void onRefreshClicked();
    void onDlgClose();

private:
    DiagnosticsCdmaUI();
    ~DiagnosticsCdmaUI() override;
    Q_DISABLE_COPY(DiagnosticsCdmaUI)

    int createCdmaDialog(QWidget *parent);
    int createCdmaLabels();
    int populateList();
    void changeSimString();
    int saveFile(QString fileName);

    static DiagnosticsCdmaUI *m_pDiagCDMAInstance;

    DiagnosticsUILogic *m_pLogic;
    DiagnosticsConfigParse *m_pConfigParse;
    // The widgets belong to the window, which can be deleted at any time: the pointers that are
    // used after it was built are guarded.
    QPointer<ExtendDialog> m_pdialogCdmaDiagnostics;
    QPointer<QWidget> m_pwidgetCdmaDiagnostic;
    QVBoxLayout *m_pvboxLayoutCdmaMain;
    QHBoxLayout *m_phboxLayoutCdmaTop;
    QHBoxLayout *m_phboxLayoutCdmaBottom;
    QFrame *m_pframeCdmaDiag;
    QPushButton *m_ppushButtonCdmaSave;
    QPushButton *m_ppushButtonCdmaCancel;
    QPushButton *m_ppushButtonCdmaRefresh;
    QStringList *m_plistCdma; ///< resource keys of the rows
    int m_bPesn;
    int m_iRowCount;
    QHash<QString, QString> *m_pHashSetting; ///< owned by the store
};

#endif
