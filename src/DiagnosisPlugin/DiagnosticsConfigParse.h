// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef DIAGNOSTICSCONFIGPARSE_H
#define DIAGNOSTICSCONFIGPARSE_H

#include <QHash>
#include <QList>
#include <QString>
#include <QXmlStreamReader>

// After Qt's header, which in Qt 4 can rename the class to this name.
typedef QXmlStreamReader QCoreXmlStreamReader;

/// One configured row.
struct TabItem
{
    QString name;       ///< chooses the value, and names the row's labels
    QString resourceID; ///< resource key of the caption
    int show;           ///< 0 hides the row
};

/// One configured tab. All copies share one row list, which the configuration store deletes: no
/// copy may outlive the store.
struct TabDetails
{
    QString name;          ///< chooses the table of values, and names the tab's page
    QString resourceID;    ///< resource key of the caption
    int show;              ///< 0 hides the tab
    QList<TabItem> *items; ///< in the order of the file, never null
};

/// The content of DiagnosisConfig.xml: the tabs with their rows, the settings and the
/// customization. The store is filled once and then only read. It owns the containers that it hands
/// out.
///
/// A counted singleton: each GetInstance() counts one reference, and only the DestroyInstance()
/// that finds the count at 0 deletes the object. Used on the GUI thread.
class DiagnosticsConfigParse
{
public:
    static DiagnosticsConfigParse *GetInstance();
    static void DestroyInstance();

    /// Adds the content of a file in the plug-in's folder. Returns 0 on success, and 3 if the file
    /// cannot be opened or has an error; what was read before the error is kept.
    unsigned int LoadFile(QString fileName);

    /// All three are null after ReleaseData().
    QList<TabDetails> *GetTabInformation();
    QHash<QString, QString> *GetSettingInformation();
    QHash<QString, QString> *GetDeviceCustomizationInformation();

    void ReleaseData();

private:
    DiagnosticsConfigParse();
    ~DiagnosticsConfigParse();
    Q_DISABLE_COPY(DiagnosticsConfigParse)

    bool readFile(QCoreXmlStreamReader &reader);
    void populateHash(QCoreXmlStreamReader &reader);
    void readTabInfo(QCoreXmlStreamReader &reader);
    QString getCustomizeName();

    static DiagnosticsConfigParse *m_pInstance;
    static int m_iInstanceCount;

    QList<TabDetails> *m_listDiagTab;
    QHash<QString, QString> *m_pHashSetting;
    QString m_strKey;
    QString m_strValue;
    QString m_strSection;
    /// "true" while a customization block applies and its simmsgprompt has not been read.
    QString m_strCustomizeActive;
    QString m_strReserved;
    QHash<QString, QString> *m_pHashCustomization;
};

#endif
