// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "report/DiagnosticsReader.h"

#include "HostCore.h"

#include <QApplication>
#include <QDialog>
#include <QFormLayout>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>

namespace {

const char pagePrefix[] = "DiagnosticsUIPlugin_";
const char pageSuffix[] = "Tab";
const char labelPrefix[] = "DiagnosticsUIPlugin_label";
const char valueSuffix[] = "Value";

QTabWidget *tabsOf(const QWidget *window)
{
    return window ? window->findChild<QTabWidget *>(
                        QStringLiteral("DiagnosticsUIPlugin_tabWidgetDiag"))
                  : nullptr;
}

QFrame *boxOf(const QWidget *window)
{
    return window ? window->findChild<QFrame *>(QStringLiteral("DiagnosticsUIPlugin_frameCdmaDiag"))
                  : nullptr;
}

/// The configured name of a tab. Null if the page is not one of the plug-in's tabs.
QString tabName(const QWidget *page)
{
    const QString name = page->objectName();
    const int prefix = int(sizeof pagePrefix) - 1;
    const int suffix = int(sizeof pageSuffix) - 1;
    if (!name.startsWith(QLatin1String(pagePrefix)) || !name.endsWith(QLatin1String(pageSuffix)) ||
        name.size() < prefix + suffix)
        return QString();
    return name.mid(prefix, name.size() - prefix - suffix);
}

const QLabel *labelAt(const QFormLayout *form, int row, QFormLayout::ItemRole role)
{
    QLayoutItem *const item = form->itemAt(row, role);
    return item ? qobject_cast<const QLabel *>(item->widget()) : nullptr;
}

QList<ShownRow> rowsOf(const QWidget *page)
{
    QList<ShownRow> rows;
    const auto *const form = qobject_cast<const QFormLayout *>(page->layout());
    for (int row = 0; form && row < form->rowCount(); ++row) {
        const QLabel *const caption = labelAt(form, row, QFormLayout::LabelRole);
        const QLabel *const value = labelAt(form, row, QFormLayout::FieldRole);
        if (caption && value && caption->objectName().startsWith(QLatin1String(labelPrefix)) &&
            value->objectName() == caption->objectName() + QLatin1String(valueSuffix))
            rows.append({caption->objectName().mid(int(sizeof labelPrefix) - 1), caption->text(),
                         value->text()});
    }
    return rows;
}

} // namespace

bool ShownRow::isKnown() const
{
    return !value.isEmpty() && value != QLatin1String("not implement") &&
           value != HostCore::pluginText(QStringLiteral("IDS_MAINFRM_UNKNOWN"));
}

DiagnosticsReader::DiagnosticsReader(QWidget *window) : m_window(window) {}

DiagnosticsReader::DiagnosticsReader()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        // The host's own window is an ancestor of the same widgets.
        if (qobject_cast<QDialog *>(window) && window->isVisible() &&
            (tabsOf(window) || boxOf(window)))
            m_window = window;
    }
}

QStringList DiagnosticsReader::tabNames() const
{
    QStringList names;
    const QTabWidget *const tabs = tabsOf(m_window);
    for (int index = 0; tabs && index < tabs->count(); ++index)
        names.append(tabName(tabs->widget(index)));
    return names;
}

bool DiagnosticsReader::selectTab(const QString &name) const
{
    const int index = tabNames().indexOf(name);
    if (index < 0)
        return false;
    tabsOf(m_window)->setCurrentIndex(index);
    return true;
}

QList<ShownPage> DiagnosticsReader::pages() const
{
    QList<ShownPage> pages;
    if (const QFrame *const box = boxOf(m_window))
        pages.append({QString(), m_window->windowTitle(), rowsOf(box)});
    const QTabWidget *const tabs = tabsOf(m_window);
    for (int index = 0; tabs && index < tabs->count(); ++index) {
        const QWidget *const page = tabs->widget(index);
        pages.append({tabName(page), tabs->tabText(index), rowsOf(page)});
    }
    return pages;
}

QList<ShownPage> DiagnosticsReader::read() const
{
    visit([](const QWidget *) {});
    return pages();
}

QList<ShownPage> DiagnosticsReader::readAgain() const
{
    visit([](const QWidget *window) {
        const auto buttons = window->findChildren<QPushButton *>(
            QRegularExpression(QStringLiteral("^DiagnosticsUIPlugin_pushButton.*Refresh$")));
        for (QPushButton *const refresh : buttons)
            refresh->click();
    });
    return pages();
}

/// Calls \a each for the window of CDMA devices, or for each tab while it is shown.
void DiagnosticsReader::visit(void (*each)(const QWidget *)) const
{
    QTabWidget *const tabs = tabsOf(m_window);
    if (!tabs && m_window)
        each(m_window);
    const int shown = tabs ? tabs->currentIndex() : 0;
    for (int index = 0; tabs && index < tabs->count(); ++index) {
        tabs->setCurrentIndex(index);
        each(m_window);
    }
    if (tabs)
        tabs->setCurrentIndex(shown);
}
