// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "window/Diagnostics.h"

#include "HostCore.h"
#include "SdkControl.h"
#include "config/ConfigFile.h"
#include "interfaces/INotify.h"
#include "interfaces/IUIPlugin.h"
#include "modem/ModemSource.h"
#include "window/PluginLoader.h"

#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace {

const int LongestWaitForSignal = 3000; // ms

/// The functions that failed since the record of calls began, each once.
QList<Report::Failure> takeFailures()
{
    QList<Report::Failure> failures;
    for (const SdkControl::RecordedCall &call : SdkControl::recordedCalls()) {
        const QString function = QString::fromStdString(call.function);
        const bool isListed = std::any_of(
            failures.cbegin(), failures.cend(),
            [&function](const Report::Failure &each) { return each.function == function; });
        if (call.result != VELT_SUCCESS && !isListed)
            failures.append({function, call.result});
    }
    SdkControl::stopRecording();
    return failures;
}

/// The larger part of the screen beside a window.
QRect besides(const QWidget *window)
{
    const QRect screen = window->screen()->availableGeometry();
    QRect left = window->frameGeometry();
    QRect right = left;
    right.setLeft(right.right() + 1);
    right.setRight(screen.right());
    left.setRight(left.left() - 1);
    left.setLeft(screen.left());
    return left.width() > right.width() ? left : right;
}

} // namespace

Diagnostics::Diagnostics(const ModemSource &modem, const PluginLoader &plugin,
                         const QString &configuration, const QString &language)
    : m_modem(modem), m_plugin(plugin), m_configuration(configuration), m_language(language)
{
}

Diagnostics::~Diagnostics()
{
    close();
}

bool Diagnostics::open(const QWidget *hostWindow)
{
    if (QWidget *const opened = DiagnosticsReader().window()) {
        opened->raise();
        opened->activateWindow();
        return true;
    }
    if (hostWindow) {
        // What the diagnostics window blocks are the windows that it belongs to: m_place alone.
        m_place.winId();
        m_place.windowHandle()->setScreen(hostWindow->screen());
        m_place.setGeometry(besides(hostWindow));
    }
    QRect offered = m_place.geometry();
    return m_plugin.plugin()->ShowWindow(&m_place, offered) == 1;
}

void Diagnostics::close()
{
    m_plugin.notify()->Notify(NOTIFY_CLOSE_WINDOWS, 0, 0);
}

bool Diagnostics::read(Wait wait, Report::Content *content)
{
    content->lacksSignal =
        wait == AwaitSignal && !ModemService::waitForSignal(LongestWaitForSignal);
    SdkControl::startRecording();
    if (DiagnosticsReader().window()) {
        content->pages = DiagnosticsReader().readAgain();
    } else {
        HostCore::setDialogsUnseen(true);
        const bool opened = open();
        content->pages = DiagnosticsReader().read();
        close();
        HostCore::setDialogsUnseen(false);
        if (!opened) {
            SdkControl::stopRecording();
            return false;
        }
    }
    content->failures = takeFailures();
    content->details = ModemService::details();
    content->verdict = m_modem.verdict();
    content->configuration = ConfigFile::description(m_configuration);
    content->language = m_language;
    content->modem = m_modem.name();
    if (m_modem.isSimulated())
        content->modem += QLatin1String(" (simulated)");
    return true;
}
