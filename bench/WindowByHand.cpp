// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "WindowByHand.h"

#include "Conversation.h"
#include "core/CommonUtils.h"
#include "core/ExtendDialog.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

WindowContent::WindowContent(const QWidget *window) : title(window->windowTitle())
{
    for (const char *name : {"Save", "Refresh", "Cancel"}) {
        const auto *button = window->findChild<QPushButton *>(
            QLatin1String("DiagnosticsUIPlugin_pushButton") + QLatin1String(name));
        buttons.append(button->text());
    }
    const auto *pages = window->findChild<QTabWidget *>();
    for (int index = 0; index < pages->count(); ++index) {
        Tab tab{pages->widget(index)->objectName(), pages->tabText(index), {}};
        const auto *form = static_cast<QFormLayout *>(pages->widget(index)->layout());
        const auto label = [form](int row, QFormLayout::ItemRole role) {
            return static_cast<QLabel *>(form->itemAt(row, role)->widget());
        };
        for (int row = 0; row < form->rowCount(); ++row) {
            const QLabel *caption = label(row, QFormLayout::LabelRole);
            tab.rows.append({caption->objectName(), caption->text(),
                             label(row, QFormLayout::FieldRole)->text()});
        }
        tabs.append(tab);
    }
}

WindowByHand::WindowByHand(QWidget *parent, const WindowContent &content,
                           const QVector<Conversation> &conversations)
    : m_content(content), m_conversations(conversations),
      m_dialog(new ExtendDialog(parent, Qt::WindowCloseButtonHint, 1))
{
    auto *widget = new QWidget(m_dialog);
    m_dialog->AddMainWidget(widget);
    m_tabs = new QTabWidget(widget);
    auto *cancel = new QPushButton(widget);
    auto *refresh = new QPushButton(widget);
    widget->setObjectName(QStringLiteral("widget"));
    m_tabs->setObjectName(QStringLiteral("tabs"));
    cancel->setObjectName(QStringLiteral("cancel"));
    refresh->setObjectName(QStringLiteral("refresh"));
    m_tabs->setMaximumSize(450, 365);

    QVector<QWidget *> pages;
    for (const WindowContent::Tab &tab : content.tabs) {
        pages.append(new QWidget(m_tabs));
        pages.last()->setObjectName(tab.pageName);
        m_tabs->addTab(pages.last(), tab.title);
    }
    for (int index = 0; index < pages.size(); ++index) {
        QWidget *page = pages.at(index);
        auto *form = new QFormLayout(page);
        m_values.append(QVector<QLabel *>());
        for (const WindowContent::Row &row : content.tabs.at(index).rows) {
            auto *caption = new QLabel(page);
            auto *value = new QLabel(page);
            caption->setText(row.caption);
            caption->setFixedWidth(185);
            caption->setObjectName(row.captionName);
            value->setObjectName(row.captionName + QLatin1String("Value"));
            value->setTextFormat(Qt::PlainText);
            value->setTextInteractionFlags(Qt::TextSelectableByMouse);
            value->setWordWrap(true);
            caption->setBuddy(value);
            form->addRow(caption, value);
            m_values.last().append(value);
        }
    }
    fill(0);

    auto *save = new QPushButton(widget);
    save->setObjectName(QStringLiteral("save"));
    save->setText(content.buttons.at(0));
    refresh->setText(content.buttons.at(1));
    cancel->setText(content.buttons.at(2));
    for (QPushButton *button : {save, refresh, cancel})
        QObject::connect(button, &QPushButton::clicked, m_dialog, &QDialog::close);
    QObject::connect(m_dialog, &ExtendDialog::dlgCloseEvent, m_dialog, &QObject::deleteLater);
    QObject::connect(m_tabs, &QTabWidget::currentChanged, m_dialog,
                     [this](int index) { fill(index); });

    auto *main = new QVBoxLayout;
    auto *top = new QHBoxLayout;
    auto *bottom = new QHBoxLayout;
    main->setObjectName(QStringLiteral("main"));
    top->setObjectName(QStringLiteral("top"));
    bottom->setObjectName(QStringLiteral("bottom"));
    main->addLayout(top);
    main->addLayout(bottom);
    widget->setLayout(main);
    top->addWidget(m_tabs);
    bottom->setSpacing(0);
    bottom->addWidget(save);
    bottom->addSpacing(26);
    bottom->addWidget(refresh);
    bottom->addSpacing(26);
    bottom->addWidget(cancel);
    bottom->setContentsMargins(0, 0, 15, 0);
    bottom->setAlignment(Qt::AlignRight);
    QWidget::setTabOrder(save, refresh);
    QWidget::setTabOrder(refresh, cancel);
    cancel->setFocus(Qt::OtherFocusReason);

    m_dialog->setWindowTitle(content.title);
    m_dialog->setWindowModality(Qt::WindowModal);
    m_dialog->setFixedSize(460, 426);
    m_dialog->setVisible(true);
    CommonUtils::MoveCentre(m_dialog);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
}

WindowByHand::~WindowByHand()
{
    delete m_dialog;
}

void WindowByHand::fill(int tab)
{
    m_conversations.at(tab).repeat();
    for (int row = 0; row < m_values.at(tab).size(); ++row)
        m_values.at(tab).at(row)->setText(m_content.tabs.at(tab).rows.at(row).value);
}
