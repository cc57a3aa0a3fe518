// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "window/MainWindow.h"

#include "HostCore.h"
#include "SdkControl.h"
#include "modem/ModemSource.h"
#include "window/Diagnostics.h"

#include <QCheckBox>
#include <QClipboard>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFontInfo>
#include <QFormLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

namespace {

QLabel *newLabel(const char *name)
{
    auto *const label = new QLabel;
    label->setObjectName(QLatin1String("MainWindow_label") + QLatin1String(name));
    label->setTextFormat(Qt::PlainText); // names from the air must not be read as markup
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    // So that Latin texts stay beside their captions in windows from right to left.
    label->setAlignment(QStyle::visualAlignment(QGuiApplication::layoutDirection(), Qt::AlignLeft) |
                        Qt::AlignAbsolute | Qt::AlignTop);
    return label;
}

QPushButton *newButton(const char *name, const QString &text)
{
    auto *const button = new QPushButton(text);
    button->setObjectName(QLatin1String("MainWindow_pushButton") + QLatin1String(name));
    return button;
}

QString sdkText(TextValue value)
{
    return QString::fromStdString(SdkControl::text(value));
}

/// The texts that are not empty, or the unknown text.
QString joined(QStringList texts)
{
    texts.removeAll(QString());
    return texts.isEmpty() ? HostCore::pluginText(QStringLiteral("IDS_MAINFRM_UNKNOWN"))
                           : texts.join(QStringLiteral(", "));
}

} // namespace

MainWindow::MainWindow(const ModemSource &modem, Diagnostics &diagnostics)
    : m_modem(modem), m_diagnostics(diagnostics), m_verdict(newLabel("Verdict")),
      m_description(newLabel("Description")), m_state(newLabel("State")),
      m_network(newLabel("Network")), m_signal(newLabel("Signal")), m_message(newLabel("Message")),
      m_plugIn(newButton("PlugIn", tr("&Plug in"))), m_unplug(newButton("Unplug", tr("&Unplug"))),
      m_hideIdentifiers(new QCheckBox(tr("&Hide identifiers")))
{
    setWindowTitle(tr("Diagnosis host"));
    setObjectName(QStringLiteral("MainWindow"));
    QFont large = font();
    large.setPixelSize(fontInfo().pixelSize() * 5 / 4);
    large.setBold(true);
    m_verdict->setFont(large);
    m_hideIdentifiers->setObjectName(QStringLiteral("MainWindow_checkBoxHideIdentifiers"));
    m_hideIdentifiers->setToolTip(
        tr("Reports do not tell what identifies the device, its user or its place."));
    m_hideIdentifiers->setChecked(true);

    QLabel *const fallback = newLabel("Fallback");
    fallback->setText(modem.fallback() + QLatin1Char(' ') +
                      tr("A simulated modem takes its place."));
    QLabel *const name = newLabel("Name");
    name->setText(modem.isSimulated() ? tr("%1 (simulated)").arg(modem.name()) : modem.name());

    auto *const form = new QFormLayout;
    form->addRow(tr("Modem"), name);
    form->addRow(tr("Description"), m_description);
    form->addRow(tr("State"), m_state);
    form->addRow(tr("Network"), m_network);
    form->addRow(tr("Signal"), m_signal);

    auto *const plugging = new QHBoxLayout;
    plugging->addStretch();
    plugging->addWidget(m_plugIn);
    plugging->addWidget(m_unplug);

    QPushButton *const open = newButton("Diagnostics", tr("&Diagnostics"));
    QPushButton *const copy = newButton("CopyReport", tr("&Copy report"));
    QPushButton *const save = newButton("SaveReport", tr("&Save report…"));
    auto *const buttons = new QHBoxLayout;
    buttons->addWidget(open);
    buttons->addStretch();
    buttons->addWidget(copy);
    buttons->addWidget(save);

    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(12);
    layout->addWidget(fallback);
    layout->addWidget(m_verdict);
    layout->addLayout(form);
    layout->addLayout(plugging);
    layout->addStretch();
    layout->addWidget(m_hideIdentifiers);
    layout->addLayout(buttons);
    layout->addWidget(m_message);
    m_message->setMinimumHeight(fontMetrics().height());
    fallback->setVisible(!modem.fallback().isEmpty());
    m_plugIn->setVisible(modem.isSimulated()); // a real modem comes and goes by itself
    m_unplug->setVisible(modem.isSimulated());
    resize(460, sizeHint().height());

    connect(open, &QPushButton::clicked, this, &MainWindow::openDiagnostics);
    connect(copy, &QPushButton::clicked, this, &MainWindow::copyReport);
    connect(save, &QPushButton::clicked, this, &MainWindow::chooseReportFile);
    connect(m_plugIn, &QPushButton::clicked, this, &MainWindow::plug);
    connect(m_unplug, &QPushButton::clicked, this, &MainWindow::unplug);
    connect(&m_monitor, &ModemMonitor::changed, this, &MainWindow::showModem);
    showModem();
}

bool MainWindow::openDiagnostics()
{
    const bool opened = m_diagnostics.open(this);
    m_message->setText(opened ? QString() : tr("The diagnostics window could not be opened."));
    return opened;
}

bool MainWindow::event(QEvent *event)
{
    const bool handled = QWidget::event(event);
    // Texts that need another line get it.
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize)
        setMinimumHeight(layout()->totalHeightForWidth(width()));
    return handled;
}

void MainWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    // In that half of the screen where reading begins, so that the diagnostics window has the
    // other.
    const QRect available = screen()->availableGeometry();
    const QPoint aside((isRightToLeft() ? width() : -width()) / 2, 0);
    HostCore::placeFrame(this, available, available.center() + aside);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    m_diagnostics.close();
    QWidget::closeEvent(event);
}

void MainWindow::plug()
{
    SdkControl::plug();
    showModem(); // a modem whose functions all fail raises no events
    m_unplug->setFocus();
}

void MainWindow::unplug()
{
    SdkControl::unplug();
    showModem();
    m_plugIn->setFocus();
}

void MainWindow::copyReport()
{
    const QByteArray text = report(false);
    if (text.isNull())
        return;
    QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
    m_message->setText(tr("The report was copied."));
}

void MainWindow::chooseReportFile()
{
    auto *const dialog = new QFileDialog(this, tr("Save report"), QStringLiteral("report.txt"),
                                         tr("Text (*.txt)") + QStringLiteral(";;JSON (*.json)"));
    dialog->setObjectName(QStringLiteral("MainWindow_fileDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("txt"));
    connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString &filter) {
        const bool isJson = filter.startsWith(QLatin1String("JSON"));
        dialog->setDefaultSuffix(isJson ? QStringLiteral("json") : QStringLiteral("txt"));
    });
    connect(dialog, &QFileDialog::fileSelected, this, &MainWindow::saveReport);
    dialog->open();
}

void MainWindow::saveReport(const QString &fileName)
{
    const QByteArray text = report(fileName.endsWith(QLatin1String(".json"), Qt::CaseInsensitive));
    QString error;
    if (text.isNull())
        return;
    m_message->setText(Report::write(text, fileName, &error)
                           ? tr("The report was saved.")
                           : tr("The report was not saved: %1").arg(error));
}

QByteArray MainWindow::report(bool asJson)
{
    Report::Content content;
    if (!m_diagnostics.read(Diagnostics::Immediate, &content)) {
        m_message->setText(tr("The diagnostics window could not be opened."));
        return QByteArray();
    }
    const Report report(content,
                        m_hideIdentifiers->isChecked() ? Report::Masked : Report::Unmasked);
    return asJson ? report.json() : report.text().toUtf8();
}

void MainWindow::showModem()
{
    const bool plugged = SdkControl::isPlugged();
    const ModemState state = m_modem.state();
    QStringList levels;
    for (const RadioLevel &level : state.levels)
        levels.append(level.text());
    m_verdict->setText(Verdict(state).text);
    m_description->setText(joined({sdkText(TextValue::Description)}));
    const bool isStateKnown = state.service == ModemService::Status::Detached ||
                              state.service == ModemService::Status::NoModem ||
                              state.service == ModemService::Status::Present;
    m_state->setText(joined({!isStateKnown ? QString()
                             : plugged     ? tr("Plugged in")
                                           : tr("Unplugged")}));
    m_network->setText(joined(
        plugged ? QStringList({sdkText(TextValue::ServiceName), sdkText(TextValue::NetworkType)})
                : QStringList()));
    m_signal->setText(joined(levels));
    m_plugIn->setEnabled(!plugged);
    m_unplug->setEnabled(plugged);
}
