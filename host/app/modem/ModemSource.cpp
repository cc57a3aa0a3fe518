// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "modem/ModemSource.h"

#include "SdkControl.h"
#include "modemmanager/ModemService.h"
#include "simulated/SimulatedModem.h"

#include <QDir>
#include <QFile>

namespace {

const QString serviceName = QStringLiteral("modemmanager");
const QString automatic = QStringLiteral("auto");
const QString simulatedDefault = QStringLiteral("wcdma");

/// How long the program waits for the service's first answer at the start.
const int firstAnswer = 1000; // ms

} // namespace

ModemSource::ModemSource(const QString &folder)
    : m_folder(folder), m_index(0), m_simulated(true), m_hanging(false)
{
}

ModemSource::~ModemSource()
{
    detach();
}

bool ModemSource::detach()
{
    if (!ModemService::detach())
        m_hanging = true;
    SdkControl::attach(nullptr);
    return !m_hanging;
}

QStringList ModemSource::names() const
{
    QStringList names =
        QDir(m_folder).entryList({QStringLiteral("*.ini")}, QDir::Files, QDir::Name);
    names.replaceInStrings(QStringLiteral(".ini"), QString());
    return names + QStringList({serviceName, automatic});
}

bool ModemSource::attach(const QString &name, QString *error)
{
    if (name == automatic) {
        ModemService::attach();
        m_simulated = !ModemService::isPresent(firstAnswer);
        if (m_simulated) {
            m_fallback = serviceProblem();
            detach();
            return attachSimulated(simulatedDefault, error);
        }
        m_name = serviceName;
        return true;
    }
    if (name.section(QLatin1Char(':'), 0, 0) != serviceName)
        return attachSimulated(name, error);

    bool isNumber = true;
    const QString number = name.section(QLatin1Char(':'), 1);
    const int index = name == serviceName ? 0 : number.toInt(&isNumber);
    if (!isNumber || index < 0) {
        *error = QStringLiteral("\"%1\" is not the number of a modem, which is 0 for the first")
                     .arg(number);
        return false;
    }
    m_index = index;
    ModemService::attach(index);
    ModemService::isPresent(firstAnswer); // so that the first window has values
    m_simulated = false;
    m_name = name;
    return true;
}

bool ModemSource::attachSimulated(const QString &name, QString *error)
{
    if (!names().contains(name)) {
        *error = QStringLiteral("unknown modem \"%1\", known are: %2")
                     .arg(name, names().join(QLatin1String(", ")));
        return false;
    }
    const QString file = m_folder + QLatin1Char('/') + name + QLatin1String(".ini");
    std::string reason;
    const auto modem = SimulatedModem::load(QFile::encodeName(file).toStdString(), &reason);
    if (!modem) {
        *error = QString::fromStdString(reason);
        return false;
    }
    SdkControl::attach(modem, modem->results());
    m_simulated = true;
    m_name = name + QStringLiteral(" (simulated)");
    return true;
}

QString ModemSource::description() const
{
    return QString::fromStdString(SdkControl::text(TextValue::Description));
}

QString ModemSource::serviceProblem() const
{
    switch (ModemService::status()) {
    case ModemService::Status::NoBus:
        return QStringLiteral("The system's message bus does not answer.");
    case ModemService::Status::NoService:
        return QStringLiteral("ModemManager is not running.");
    case ModemService::Status::NotAnswering:
        return QStringLiteral("ModemManager has not answered for 15 seconds.");
    case ModemService::Status::Starting:
        return QStringLiteral(
            "Neither the system's message bus nor ModemManager has answered yet.");
    case ModemService::Status::NoModem:
        return m_index == 0
                   ? QStringLiteral("ModemManager knows no usable modem.")
                   : QStringLiteral("ModemManager knows no usable modem with the number %1.")
                         .arg(m_index);
    case ModemService::Status::Detached:
    case ModemService::Status::Present:
        break;
    }
    return QString();
}

QString ModemSource::problem() const
{
    return m_fallback.isEmpty()
               ? serviceProblem()
               : m_fallback + QStringLiteral(" A simulated modem takes its place.");
}
