// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "config/ConfigCheck.h"

#include "config/CaptionRules.h"
#include "config/ConfigFile.h"
#include "config/ConfigSchema.h"

#include "HostCore.h"

#include <QHash>
#include <QList>
#include <QPair>
#include <QRegularExpression>
#include <QSet>
#include <QVector>

#include <libxml/parserInternals.h>
#include <libxml/xmlschemas.h>

#include <algorithm>
#include <memory>
#include <numeric>

namespace {

#if LIBXML_VERSION >= 21200
typedef const xmlError *ErrorPointer;
#else
typedef xmlErrorPtr ErrorPointer;
#endif

template <typename Object>
using Owner = std::unique_ptr<Object, void (*)(Object *)>;

/// Far more than a configuration needs, in bytes.
const qint64 LargestFile = 1 << 18;

/// What the plug-in does with something that breaks the schema. The place is that of the element or
/// attribute, or the name of the constraint.
struct Consequence
{
    const char *place;
    const char *text;
};

// clang-format off
const Consequence Consequences[] = {
    {"veltdoc/tab@name",          "All its rows show the unknown text."},
    {"veltdoc/tab@show",          "It is shown: only \"false\" hides it."},
    {"tab/item@show",             "It is shown: only \"false\" hides it."},
    {"tab/tab",                   "It ends the outer tab and is not read."},
    {"function/item@name",        "There is no such setting."},
    {"function/item@value",       "There is a Save button only where it is \"true\"."},
    {"CDMADiagnostics/item@name", "There is no such setting."},
    {"CDMADiagnostics/item@show", "The row is listed only where it contains \"true\"."},
    {"veltdoc/item",              "It is a setting of the section before it, and ignored where there is none."},
    {"common/simmsgprompt",       "Of a block the first one is read, with all its blanks."},
    {"customize/simmsgprompt",    "Of a block the first one is read, with all its blanks."},
    {"settings",                  "It replaces the earlier setting."},
    {"tabs",                      "The rows of all tabs of one name go to one page."},
    {"rows",                      "Of the rows of one name that are shown, only one is filled."},
    {"devices",                   "It replaces the earlier wording."},
};
// clang-format on

QString consequence(const QString &place)
{
    for (const Consequence &row : Consequences) {
        if (place == QLatin1String(row.place))
            return QLatin1Char(' ') + QLatin1String(row.text);
    }
    return QString();
}

/// How many characters must be inserted, removed or replaced to make one text of the other.
int distance(const QString &from, const QString &to)
{
    QVector<int> row(to.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < from.size(); ++i) {
        int diagonal = row[0]++;
        for (int j = 0; j < to.size(); ++j) {
            const int replaced = diagonal + (from[i] == to[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, diagonal + 1, row[j] + 1});
        }
    }
    return row.last();
}

QString nearestKey(const QString &key)
{
    const QStringList keys = HostCore::resourceKeys();
    return *std::min_element(keys.begin(), keys.end(), [&](const QString &a, const QString &b) {
        return distance(key, a) < distance(key, b);
    });
}

QString text(const xmlChar *characters)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(characters));
}

/// The check of a document. For each element the parser calls this class first and then the
/// validator. So the validator's errors concern the current element.
class DocumentCheck
{
public:
    DocumentCheck(const QByteArray &document, const QMap<QString, QStringList> &rowsOfTabs)
        : m_document(document), m_rowsOfTabs(rowsOfTabs)
    {
    }
    Q_DISABLE_COPY(DocumentCheck)

    void run(xmlSchemaPtr schema);
    QStringList findings() const;

private:
    typedef QPair<int, int> Position; ///< line and column, from 1

    struct Element
    {
        QString parent;
        QString name;
        int offset = 0; ///< of its '<', in bytes
        QHash<QString, QString> attributes;
        QHash<QString, int> offsets; ///< of the attributes
    };

    static DocumentCheck *from(void *self) { return static_cast<DocumentCheck *>(self); }
    static void onDoctype(void *self, const xmlChar *, const xmlChar *, const xmlChar *);
    static void onStart(void *self, const xmlChar *name, const xmlChar *, const xmlChar *, int,
                        const xmlChar **, int count, int, const xmlChar **attributes);
    static void onText(void *self, const xmlChar *characters, int length);
    static void onEnd(void *self, const xmlChar *, const xmlChar *, const xmlChar *);
    static void onSyntaxError(void *self, ErrorPointer error);
    static void onSchemaError(void *self, ErrorPointer error);

    void parse(xmlSAXHandler handler, xmlSchemaValidCtxtPtr validator);
    Position position(int offset) const;
    void add(int offset, const QString &text);
    void checkStart();
    void checkText(const QString &consequence);

    const QByteArray m_document;
    const QMap<QString, QStringList> m_rowsOfTabs;
    xmlParserCtxtPtr m_parser = nullptr;
    QList<Element> m_open;
    Element m_current;
    QString m_text;  ///< since the last tag
    int m_root = -1; ///< offset, once there is one that the plug-in reads
    CaptionRules m_captions;
    QMultiMap<Position, QString> m_findings;
    QSet<Position> m_explained; ///< where the validator has nothing to add
};

void DocumentCheck::run(xmlSchemaPtr schema)
{
    const Owner<xmlSchemaValidCtxt> validator(xmlSchemaNewValidCtxt(schema),
                                              xmlSchemaFreeValidCtxt);
    xmlSchemaSetValidStructuredErrors(validator.get(), onSchemaError, this);
    xmlSetStructuredErrorFunc(this, onSyntaxError);
    xmlSAXHandler handler{};
    handler.initialized = XML_SAX2_MAGIC;
    handler.internalSubset = onDoctype;
    parse(handler, nullptr);
    if (m_findings.isEmpty()) {
        handler.startElementNs = onStart;
        handler.characters = onText;
        handler.cdataBlock = onText;
        handler.endElementNs = onEnd;
        parse(handler, validator.get());
        if (m_root >= 0) {
            for (const CaptionRules::Text &finding : m_captions.findings(m_root))
                add(finding.offset, finding.text);
        }
    }
    xmlSetStructuredErrorFunc(nullptr, nullptr);
}

/// The validator must only get a well-formed document: it leaks elements that are not closed.
void DocumentCheck::parse(xmlSAXHandler handler, xmlSchemaValidCtxtPtr validator)
{
    const Owner<xmlParserCtxt> parser(
        xmlCreateMemoryParserCtxt(m_document.constData(), m_document.size()), xmlFreeParserCtxt);
    m_parser = parser.get();
    const xmlSAXHandlerPtr ownHandler = m_parser->sax;
    m_parser->sax = &handler;
    m_parser->userData = this;
    m_parser->replaceEntities = 1; // such as "&amp;"; a document type was refused before
    const xmlSchemaSAXPlugPtr plug =
        validator ? xmlSchemaSAXPlug(validator, &m_parser->sax, &m_parser->userData) : nullptr;
    xmlParseDocument(m_parser);
    xmlSchemaSAXUnplug(plug);
    m_parser->sax = ownHandler;
}

QStringList DocumentCheck::findings() const
{
    static const QRegularExpression lineBreaks(QStringLiteral("[\\r\\n]"));
    QStringList lines;
    for (auto finding = m_findings.cbegin(); finding != m_findings.cend(); ++finding)
        lines.append(QStringLiteral("%1:%2: %3")
                         .arg(QString::number(finding.key().first),
                              QString::number(finding.key().second),
                              QString(finding.value()).replace(lineBreaks, QStringLiteral(" "))));
    return lines;
}

DocumentCheck::Position DocumentCheck::position(int offset) const
{
    const QByteArray before = m_document.left(offset);
    const int start = before.lastIndexOf('\n') + 1;
    return {before.count('\n') + 1, QString::fromUtf8(before.mid(start)).size() + 1};
}

void DocumentCheck::add(int offset, const QString &text)
{
    m_findings.insert(position(offset), text);
    m_explained.insert(position(offset));
}

// A document type may define entities of any content and length.
void DocumentCheck::onDoctype(void *self, const xmlChar *, const xmlChar *, const xmlChar *)
{
    DocumentCheck *const check = from(self);
    const int end = int(xmlByteConsumed(check->m_parser));
    check->add(check->m_document.lastIndexOf('<', end - 1),
               QStringLiteral("A document type declaration has no use here. Nothing behind it was "
                              "checked."));
    xmlStopParser(check->m_parser);
}

void DocumentCheck::onStart(void *self, const xmlChar *name, const xmlChar *, const xmlChar *, int,
                            const xmlChar **, int count, int, const xmlChar **attributes)
{
    DocumentCheck *const check = from(self);
    // The parser has read the attributes, and these cannot contain '<'.
    const int end = int(xmlByteConsumed(check->m_parser));
    Element element;
    element.parent = check->m_open.isEmpty() ? QString() : check->m_open.last().name;
    element.name = text(name);
    element.offset = check->m_document.lastIndexOf('<', end - 1);
    for (int index = 0; index < count; ++index) {
        const xmlChar **const attribute = attributes + 5 * index;
        const auto *const value = reinterpret_cast<const char *>(attribute[3]);
        element.attributes.insert(text(attribute[0]),
                                  QString::fromUtf8(value, int(attribute[4] - attribute[3])));
    }
    static const QRegularExpression written(
        QStringLiteral("([^\\s=\"']+)\\s*=\\s*(\"[^\"]*\"|'[^']*')"));
    // One character for each byte, whatever the encoding, so that offsets fit.
    auto match = written.globalMatch(
        QString::fromLatin1(check->m_document.mid(element.offset, end - element.offset)));
    while (match.hasNext()) {
        const QRegularExpressionMatch attribute = match.next();
        element.offsets.insert(attribute.captured(1), element.offset + attribute.capturedStart());
    }
    check->m_current = element;
    check->m_text.clear();
    check->checkStart();
    check->m_open.append(element);
}

void DocumentCheck::onText(void *self, const xmlChar *characters, int length)
{
    DocumentCheck *const check = from(self);
    check->m_current = check->m_open.last();
    check->m_text += QString::fromUtf8(reinterpret_cast<const char *>(characters), length);
}

void DocumentCheck::onEnd(void *self, const xmlChar *, const xmlChar *, const xmlChar *)
{
    DocumentCheck *const check = from(self);
    check->m_current = check->m_open.takeLast();
    if (check->m_current.name == QLatin1String("simmsgprompt"))
        check->m_captions.addWording(check->m_text, check->m_current.offset,
                                     check->m_current.parent == QLatin1String("common"));
}

void DocumentCheck::onSyntaxError(void *self, ErrorPointer error)
{
    DocumentCheck *const check = from(self);
    if (!check->m_findings.isEmpty())
        return; // a consequence of the first error
    check->m_findings.insert({error->line, error->int2},
                             QString::fromUtf8(error->message).trimmed() +
                                 QStringLiteral(". The plug-in reads nothing behind it."));
}

void DocumentCheck::onSchemaError(void *self, ErrorPointer error)
{
    DocumentCheck *const check = from(self);
    const Element &element = check->m_current;
    QString message = QString::fromUtf8(error->message).trimmed();
    static const QRegularExpression attributePart(
        QStringLiteral("^Element '.*', attribute '(.*?)': "));
    static const QRegularExpression constraintPart(
        QStringLiteral("identity-constraint '(.*)'\\.$"));
    static const QRegularExpression facetPart(QStringLiteral("\\[facet '\\w+'\\] "));
    const QString attribute = attributePart.match(message).captured(1);
    const QString constraint = constraintPart.match(message).captured(1);
    const Position position = check->position(element.offsets.value(attribute, element.offset));
    // A wrong attribute is reported twice: the second error says that constraints ignore it.
    if ((error->code == XML_SCHEMAV_CVC_IDC && constraint.isEmpty()) ||
        check->m_explained.contains(position))
        return;
    QString place = element.parent + QLatin1Char('/') + element.name;
    if (!attribute.isEmpty())
        place += QLatin1Char('@') + attribute;
    message.remove(facetPart);
    message += consequence(constraint.isEmpty() ? place : constraint);
    if (!check->m_findings.contains(position, message)) // a text in pieces has one error for each
        check->m_findings.insert(position, message);
}

/// Checks rules about the current element that the schema cannot express.
void DocumentCheck::checkStart()
{
    const auto attribute = [this](const char *name) {
        return m_current.attributes.value(QLatin1String(name));
    };
    const auto isShown = [](const Element &element) {
        return element.attributes.value(QStringLiteral("show")) != QLatin1String("false");
    };
    const auto offset = [this](const char *name) {
        return m_current.offsets.value(QLatin1String(name), m_current.offset);
    };
    if (m_current.parent.isEmpty()) {
        if (m_current.name == QLatin1String("veltdoc"))
            m_root = m_current.offset;
        else
            add(m_current.offset, QStringLiteral("The document must be a <veltdoc>. What stands "
                                                 "outside one is not read."));
    } else if (m_current.name == QLatin1String("tab")) {
        if (m_current.parent == QLatin1String("veltdoc") && isShown(m_current)) {
            m_captions.addTab(attribute("resourceID"), offset("resourceID"));
            checkText(
                QStringLiteral("The tab has no title, and stays blank unless it is the first."));
        }
    } else if (m_current.name == QLatin1String("item")) {
        if (m_current.parent == QLatin1String("tab") && isShown(m_open.last()) &&
            isShown(m_current))
            checkText(QStringLiteral("The row has no caption."));
        const QString tab = m_open.last().attributes.value(QStringLiteral("name"));
        const QStringList rows = m_rowsOfTabs.value(tab);
        const QString row = attribute("name");
        if (m_current.parent == QLatin1String("tab") && !rows.isEmpty() && !row.isNull() &&
            !rows.contains(row))
            add(offset("name"),
                QStringLiteral("The tab \"%1\" has no row \"%2\", which shows the unknown "
                               "text. It has: %3.")
                    .arg(tab, row, rows.join(QLatin1String(", "))));
    } else if (m_current.name == QLatin1String("common")) {
        if (m_captions.hasWording())
            add(m_current.offset,
                QStringLiteral("Its wording replaces all earlier ones, for every device."));
    }
}

/// Checks that the resource key of the current element has a text.
void DocumentCheck::checkText(const QString &consequence)
{
    const QString attribute = QStringLiteral("resourceID");
    const QString key = m_current.attributes.value(attribute);
    if (!key.isEmpty() && HostCore::pluginText(key).isEmpty())
        add(m_current.offsets.value(attribute),
            QStringLiteral("There is no text for \"%1\". %2 The nearest key is \"%3\".")
                .arg(key, consequence, nearestKey(key)));
}

/// Keeps the parser from loading other files, or anything from the network.
xmlParserInputPtr loadNothing(const char *, const char *, xmlParserCtxtPtr)
{
    return nullptr;
}

bool readFile(const QString &fileName, QByteArray *content, QString *error)
{
    QString reason;
    if (ConfigFile::read(fileName, LargestFile, content, &reason))
        return true;
    *error = QStringLiteral("cannot read %1: %2").arg(fileName, reason);
    return false;
}

} // namespace

bool ConfigCheck::run(const QString &fileName, const QString &schemaFile, QStringList *findings,
                      QString *error)
{
    QByteArray document;
    QByteArray schemaText;
    if (!readFile(fileName, &document, error) || !readFile(schemaFile, &schemaText, error))
        return false;
    if (document.isEmpty()) { // the parser does not accept it
        findings->append(QStringLiteral("1:1: The file is empty."));
        return true;
    }
    xmlSetExternalEntityLoader(loadNothing);
    const Owner<xmlSchemaParserCtxt> reader(
        xmlSchemaNewMemParserCtxt(schemaText.constData(), schemaText.size()),
        xmlSchemaFreeParserCtxt);
    const Owner<xmlSchema> schema(xmlSchemaParse(reader.get()), xmlSchemaFree);
    if (!schema) {
        *error = QStringLiteral("the schema %1 is broken").arg(schemaFile);
        return false;
    }
    DocumentCheck check(document, ConfigSchema::rowsOfTabs(schemaText));
    check.run(schema.get());
    *findings = check.findings();
    return true;
}
