// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "core/Change.h"
#include "HostCore.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTranslator>
#include <QXmlStreamReader>

#include <memory>

namespace {

struct Language
{
    QTranslator host;
    QTranslator qt;
};

std::unique_ptr<Language> s_language;

const QTranslator &english()
{
    static QTranslator translator;
    static const bool loaded = translator.load(QStringLiteral(":/diagnosis-host/english.qm"));
    Q_ASSERT(loaded);
    Q_UNUSED(loaded)
    return translator;
}

} // namespace

QString Change::tr(const QString &key, const QString &context)
{
    // QCoreApplication::translate() would return an unknown key as its own text.
    const QByteArray source = key.toUtf8();
    const QByteArray where = context.toUtf8();
    const QString text =
        s_language ? s_language->host.translate(where.constData(), source.constData()) : QString();
    return text.isEmpty() ? english().translate(where.constData(), source.constData()) : text;
}

bool HostCore::setLanguage(const QString &folder, const QString &language)
{
    if (!languages(folder).contains(language))
        return false;
    auto loaded = std::make_unique<Language>();
    if (!loaded->host.load(QStringLiteral("%1/host_%2.qm").arg(folder, language)))
        return false;
    QCoreApplication::installTranslator(&loaded->host);
    if (loaded->qt.load(QStringLiteral("qtbase_%1").arg(language), QStringLiteral(QT_TRANSLATIONS)))
        QCoreApplication::installTranslator(&loaded->qt);
    s_language = std::move(loaded);
    return true;
}

QStringList HostCore::languages(const QString &folder)
{
    QStringList names;
    for (const QString &file : QDir(folder).entryList(QDir::Files, QDir::Name)) {
        if (file.startsWith(QLatin1String("host_")) && file.endsWith(QLatin1String(".qm")))
            names.append(file.mid(5, file.size() - 8));
    }
    return names;
}

QString HostCore::systemLanguage(const QString &folder)
{
    const QString system = QLocale::system().name(); // "zh_CN", "de_AT"
    for (const QString &name : {system, system.section(QLatin1Char('_'), 0, 0)}) {
        if (languages(folder).contains(name))
            return name;
    }
    return QStringLiteral("en");
}

QString HostCore::pluginText(const QString &key)
{
    return Change::tr(key, QStringLiteral("DiagnosisPlugin"));
}

QStringList HostCore::resourceKeys()
{
    QFile file(QStringLiteral(":/diagnosis-host/english.ts"));
    file.open(QIODevice::ReadOnly);
    QXmlStreamReader reader(&file);
    QStringList keys;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement &&
            reader.name() == QLatin1String("source"))
            keys.append(reader.readElementText());
    }
    return keys;
}
