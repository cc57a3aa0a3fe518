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

// How long the start may wait for the service's first answer, ms.
const int windowStart = 1000;
const int longestStart = 1500;

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
    QStringList names;
    for (const QFileInfo &file : QDir(m_folder).entryInfoList(QDir::Files, QDir::Name)) {
        if (file.suffix() == QLatin1String("ini"))
            names.append(file.completeBaseName());
    }
    return names + QStringList({serviceName, automatic});
}

bool ModemSource::attach(const QString &name, Absence absence, QString *error)
{
    const bool isAutomatic = name == automatic;
    if (!isAutomatic && name.section(QLatin1Char(':'), 0, 0) != serviceName)
        return attachSimulated(name, error);

    bool isNumber = true;
    const QString number = name.section(QLatin1Char(':'), 1);
    m_index = name.contains(QLatin1Char(':')) ? number.toInt(&isNumber) : 0;
    if (!isNumber || m_index < 0) {
        *error = QStringLiteral("\"%1\" is not the number of a modem, which is 0 for the first")
                     .arg(number);
        return false;
    }
    ModemService::attach(m_index);
    ModemService::isPresent(absence == Reported ? longestStart : windowStart);
    const ModemService::Status status = ModemService::status();
    const bool isAbsent = status == ModemService::Status::NoBus ||
                          status == ModemService::Status::NoService ||
                          status == ModemService::Status::NoModem;
    if (isAutomatic && isAbsent && absence == Replaced) {
        m_fallback = verdict().text;
        detach();
        return attachSimulated(simulatedDefault, error);
    }
    m_simulated = false;
    m_name = isAutomatic ? serviceName : name;
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
    m_name = name;
    return true;
}

QString ModemSource::description() const
{
    return QString::fromStdString(SdkControl::text(TextValue::Description));
}
