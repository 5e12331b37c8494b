// SPDX-License-Identifier: MIT
#include "shell/updates/appcast.h"

#include "model/bundle_info.h"

#include <QSysInfo>
#include <QXmlStreamReader>

#include <algorithm>

namespace tarnwick {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView sparkle = u"http://www.andymatuschak.org/xml-namespaces/sparkle";
constexpr qsizetype maxTagLength = 32'768;
constexpr qsizetype maxVersionLength = 64;

struct Enclosure
{
    QString system;
    QString version;
    QString shortVersion;
    QUrl url;
    qint64 length = 0;
    QByteArray signature;
};

struct RawItem
{
    AppcastItem item;
    QString system;
    QString channel;
    QList<Enclosure> enclosures;
};

Enclosure enclosureFrom(const QXmlStreamAttributes& attributes)
{
    const auto sparkleValue = [&](QStringView name) {
        return attributes.value(sparkle.toString(), name.toString()).trimmed().toString();
    };
    return {.system = sparkleValue(u"os"),
            .version = sparkleValue(u"version"),
            .shortVersion = sparkleValue(u"shortVersionString"),
            .url = QUrl(attributes.value(u"url"_s).trimmed().toString()),
            .length = attributes.value(u"length"_s).toLongLong(),
            .signature = sparkleValue(u"edSignature").toLatin1()};
}

/// The text of an element and its descendants. QXmlStreamReader::readElementText() is recursive and
/// would overflow the stack.
QString readText(QXmlStreamReader& xml)
{
    QString text;
    for (int depth = 1; depth > 0 && !xml.atEnd();) {
        xml.readNext();
        if (xml.isStartElement())
            ++depth;
        else if (xml.isEndElement())
            --depth;
        else if (xml.isCharacters())
            text += xml.text();
    }
    return text.trimmed();
}

void readSparkleElement(QXmlStreamReader& xml, RawItem& raw)
{
    if (xml.name() == u"version")
        raw.item.version = readText(xml);
    else if (xml.name() == u"shortVersionString")
        raw.item.shortVersion = readText(xml);
    else if (xml.name() == u"releaseNotesLink")
        raw.item.notesLink = QUrl(readText(xml));
    else if (xml.name() == u"os")
        raw.system = readText(xml);
    else if (xml.name() == u"channel")
        raw.channel = readText(xml);
    else
        xml.skipCurrentElement();
}

void readPlainElement(QXmlStreamReader& xml, RawItem& raw)
{
    if (xml.name() == u"description") {
        raw.item.notesArePlainText =
            xml.attributes().value(sparkle.toString(), u"format"_s) == u"plain-text";
        raw.item.notes = readText(xml);
    } else if (xml.name() == u"enclosure") {
        raw.enclosures += enclosureFrom(xml.attributes());
        xml.skipCurrentElement();
    } else {
        xml.skipCurrentElement();
    }
}

RawItem readItem(QXmlStreamReader& xml)
{
    RawItem raw;
    while (xml.readNextStartElement()) {
        if (xml.namespaceUri() == sparkle)
            readSparkleElement(xml, raw);
        else if (xml.namespaceUri().isEmpty())
            readPlainElement(xml, raw);
        else
            xml.skipCurrentElement();
    }
    return raw;
}

bool matchesSystem(const QString& system, const QString& announced)
{
    return announced.isEmpty() || announced.compare(system, Qt::CaseInsensitive) == 0;
}

/// The item, completed from its first enclosure for the system.
std::optional<AppcastItem> itemFor(const QString& system, const RawItem& raw)
{
    if (!raw.channel.isEmpty() || !matchesSystem(system, raw.system))
        return {};

    AppcastItem item = raw.item;
    if (!raw.enclosures.isEmpty()) {
        const auto enclosure =
            std::find_if(raw.enclosures.begin(), raw.enclosures.end(),
                         [&](const Enclosure& one) { return matchesSystem(system, one.system); });
        if (enclosure == raw.enclosures.end())
            return {};
        if (item.version.isEmpty())
            item.version = enclosure->version;
        if (item.shortVersion.isEmpty())
            item.shortVersion = enclosure->shortVersion;
        item.url = enclosure->url;
        item.length = enclosure->length;
        item.signature = enclosure->signature;
    }
    for (QString* const version : {&item.version, &item.shortVersion})
        *version = printableText(version->left(maxVersionLength));
    return item.version.isEmpty() ? std::nullopt : std::optional(item);
}

/// QXmlStreamReader takes quadratic time in the number of a tag's attributes: a hundred thousand
/// take hours. Attributes contain no "<", and only in UTF-16 or UTF-32, with null bytes, is it not
/// one byte.
bool hasOverlongTag(const QByteArray& bytes)
{
    if (bytes.contains('\0'))
        return true;
    for (const QLatin1String tag : QLatin1String(bytes).tokenize(u'<')) {
        if (tag.size() > maxTagLength)
            return true;
    }
    return false;
}

/// Advances the reader to the root element. False where it is none of a feed, or entities are
/// declared, which could expand exponentially.
bool readRoot(QXmlStreamReader& xml)
{
    while (!xml.atEnd() && !xml.isStartElement()) {
        xml.readNext();
        if (xml.isDTD() && xml.text().contains(u"<!ENTITY"))
            return false;
    }
    return xml.isStartElement() && xml.name() == u"rss";
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

QStringView withoutLeadingZeros(QStringView digits)
{
    while (digits.size() > 1 && digits.front() == u'0')
        digits = digits.mid(1);
    return digits;
}

QList<QStringView> partsOf(QStringView version)
{
    QList<QStringView> parts;
    for (qsizetype begin = 0; begin < version.size();) {
        const bool isNumber = isDigit(version[begin]);
        qsizetype end = begin;
        while (end < version.size() && version[end].isLetterOrNumber() &&
               isDigit(version[end]) == isNumber)
            ++end;
        if (end > begin) {
            const QStringView part = version.mid(begin, end - begin);
            parts += isNumber ? withoutLeadingZeros(part) : part;
        }
        begin = std::max(end, begin + 1);
    }
    return parts;
}

std::weak_ordering compareParts(QStringView left, QStringView right)
{
    const bool leftIsNumber = isDigit(left.front());
    const bool rightIsNumber = isDigit(right.front());
    if (leftIsNumber != rightIsNumber)
        return leftIsNumber <=> rightIsNumber;
    if (leftIsNumber && left.size() != right.size())
        return left.size() <=> right.size();
    return left.compare(right, Qt::CaseInsensitive) <=> 0;
}

} // namespace

std::weak_ordering compareVersions(QStringView left, QStringView right)
{
    const QList<QStringView> leftParts = partsOf(left);
    const QList<QStringView> rightParts = partsOf(right);
    for (qsizetype i = 0; i < std::max(leftParts.size(), rightParts.size()); ++i) {
        const auto order = compareParts(leftParts.value(i, u"0"), rightParts.value(i, u"0"));
        if (order != std::weak_ordering::equivalent)
            return order;
    }
    return std::weak_ordering::equivalent;
}

QString appcastSystem()
{
    const QString kernel = QSysInfo::kernelType();
    return kernel == u"darwin" ? QStringLiteral("macos") : kernel;
}

std::optional<QList<AppcastItem>> parseAppcast(const QByteArray& bytes, const QString& system)
{
    QXmlStreamReader xml(bytes);
    if (hasOverlongTag(bytes) || !readRoot(xml))
        return {};

    QList<AppcastItem> items;
    bool isEmpty = true;
    while (xml.readNextStartElement()) {
        if (xml.name() != u"channel") {
            xml.skipCurrentElement();
            continue;
        }
        while (xml.readNextStartElement()) {
            if (xml.name() != u"item") {
                xml.skipCurrentElement();
                continue;
            }
            isEmpty = false;
            if (const auto item = itemFor(system, readItem(xml)))
                items += *item;
        }
    }
    while (!xml.atEnd())
        xml.readNext();
    return xml.hasError() || isEmpty ? std::nullopt : std::optional(items);
}

std::optional<AppcastItem> newestItem(const QList<AppcastItem>& items, const QString& buildNumber)
{
    const auto newest = std::max_element(
        items.begin(), items.end(), [](const AppcastItem& left, const AppcastItem& right) {
            return std::is_lt(compareVersions(left.version, right.version));
        });
    if (newest == items.end() || std::is_lteq(compareVersions(newest->version, buildNumber)))
        return {};
    return *newest;
}

} // namespace tarnwick
