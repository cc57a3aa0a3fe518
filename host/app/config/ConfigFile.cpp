// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "config/ConfigFile.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace {

const qint64 LargestForPlugin = 16 << 20; // bytes

/// Why a file of this name is not opened; empty if it is.
QString refusal(const QString &fileName, qint64 largest)
{
    const QFileInfo file(fileName);
    if (file.exists() && !file.isFile())
        return QStringLiteral("not a regular file");
    if (file.size() > largest)
        return QStringLiteral("larger than %1 bytes").arg(largest);
    return QString();
}

/// As ConfigFile::problem(); if there is none, with the content.
QString problemOf(const QString &fileName, QByteArray *content)
{
    if (!QFileInfo::exists(fileName))
        return QStringLiteral("missing");
    QString error;
    if (!ConfigFile::read(fileName, LargestForPlugin, content, &error))
        return QStringLiteral("cannot be read: ") + error;
    return QString();
}

} // namespace

bool ConfigFile::read(const QString &fileName, qint64 largest, QByteArray *content, QString *error)
{
    *error = refusal(fileName, largest);
    if (!error->isEmpty())
        return false;
    QFile file(fileName);
    if (file.open(QIODevice::ReadOnly)) {
        *content = file.read(largest);
        if (file.error() == QFileDevice::NoError)
            return true;
    }
    *error = file.errorString();
    return false;
}

QString ConfigFile::problem(const QString &fileName)
{
    QByteArray content;
    return problemOf(fileName, &content);
}

QString ConfigFile::description(const QString &fileName)
{
    QByteArray content;
    const QString problem = problemOf(fileName, &content);
    if (!problem.isEmpty())
        return problem;
    const QByteArray sum = QCryptographicHash::hash(content, QCryptographicHash::Sha256);
    QString description = QStringLiteral("SHA-256 ") + QLatin1String(sum.toHex());
    QXmlStreamReader reader(content);
    while (!reader.atEnd())
        reader.readNext();
    if (reader.hasError())
        description += QStringLiteral(", broken at line %1, column %2")
                           .arg(reader.lineNumber())
                           .arg(reader.columnNumber());
    return description;
}
