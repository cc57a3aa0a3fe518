// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef WINDOWBYHAND_H
#define WINDOWBYHAND_H

#include <QString>
#include <QStringList>
#include <QVector>

class Conversation;
class ExtendDialog;
class QLabel;
class QTabWidget;
class QWidget;

/// What a diagnostics window shows, read from one that has visited all its tabs.
struct WindowContent
{
    struct Row
    {
        QString captionName;
        QString caption;
        QString value;
    };
    struct Tab
    {
        QString pageName;
        QString title;
        QVector<Row> rows;
    };

    explicit WindowContent(const QWidget *window);

    QString title;
    QStringList buttons;
    QVector<Tab> tabs;
};

/// The same window put together by hand: the same widgets in the same order, but all texts and
/// labels are at hand. Tabs are filled when they are visited.
class WindowByHand
{
public:
    /// \a conversations are those of the tabs, that of the first one with all that opening takes.
    WindowByHand(QWidget *parent, const WindowContent &content,
                 const QVector<Conversation> &conversations);
    ~WindowByHand();

    QTabWidget *tabs() const { return m_tabs; }

private:
    void fill(int tab);

    const WindowContent &m_content;
    const QVector<Conversation> &m_conversations;
    QVector<QVector<QLabel *>> m_values;
    ExtendDialog *m_dialog;
    QTabWidget *m_tabs;
};

#endif
