// SPDX-License-Identifier: MIT
#include "shell/updates/appcast.h"

#include "shell/updates/version_comparison.h"

#include <QSysInfo>
#include <QXmlStreamReader>

#include <algorithm>

namespace tarnwick {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView sparkle = u"http://www.andymatuschak.org/xml-namespaces/sparkle";
constexpr qsizetype longestTag = 32'768;
constexpr qsizetype longestVersion = 64;

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
    const auto own = [&](QStringView name) {
        return attributes.value(sparkle.toString(), name.toString()).trimmed().toString();
    };
    return {.system = own(u"os"),
            .version = own(u"version"),
            .shortVersion = own(u"shortVersionString"),
            .url = QUrl(attributes.value(u"url"_s).trimmed().toString()),
            .length = attributes.value(u"length"_s).toLongLong(),
            .signature = own(u"edSignature").toLatin1()};
}

/// The text of an element and of all in it. The reader's own function calls itself for each level,
/// so that many levels would end the process.
QString textOf(QXmlStreamReader& xml)
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
        raw.item.version = textOf(xml);
    else if (xml.name() == u"shortVersionString")
        raw.item.shortVersion = textOf(xml);
    else if (xml.name() == u"releaseNotesLink")
        raw.item.notesLink = QUrl(textOf(xml));
    else if (xml.name() == u"os")
        raw.system = textOf(xml);
    else if (xml.name() == u"channel")
        raw.channel = textOf(xml);
    else
        xml.skipCurrentElement();
}

void readPlainElement(QXmlStreamReader& xml, RawItem& raw)
{
    if (xml.name() == u"description") {
        raw.item.notesArePlainText =
            xml.attributes().value(sparkle.toString(), u"format"_s) == u"plain-text";
        raw.item.notes = textOf(xml);
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

bool isFor(const QString& system, const QString& announced)
{
    return announced.isEmpty() || announced.compare(system, Qt::CaseInsensitive) == 0;
}

/// The item with the first enclosure for the system filled in.
std::optional<AppcastItem> itemFor(const QString& system, const RawItem& raw)
{
    if (!raw.channel.isEmpty() || !isFor(system, raw.system))
        return {};

    AppcastItem item = raw.item;
    if (!raw.enclosures.isEmpty()) {
        const auto enclosure =
            std::find_if(raw.enclosures.begin(), raw.enclosures.end(),
                         [&](const Enclosure& one) { return isFor(system, one.system); });
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
    item.version.truncate(longestVersion);
    item.shortVersion.truncate(longestVersion);
    return item.version.isEmpty() ? std::nullopt : std::optional(item);
}

/// The reader compares each attribute of a tag with all others: some hundred thousand would keep it
/// busy for hours. No attribute has a "<" in it, and with a zero a text could hide its own.
bool hasEndlessTag(const QByteArray& bytes)
{
    if (bytes.contains('\0'))
        return true;
    for (const QLatin1String piece : QLatin1String(bytes).tokenize(u'<')) {
        if (piece.size() > longestTag)
            return true;
    }
    return false;
}

/// Leaves the reader at the root element. Entities are refused: a feed has no use for them, and a
/// few lines of them expand to gigabytes.
bool enterFeed(QXmlStreamReader& xml)
{
    while (!xml.atEnd() && !xml.isStartElement()) {
        xml.readNext();
        if (xml.isDTD() && xml.text().contains(u"<!ENTITY"))
            return false;
    }
    return xml.isStartElement() && xml.name() == u"rss";
}

} // namespace

QString appcastSystem()
{
    const QString kernel = QSysInfo::kernelType();
    return kernel == u"darwin" ? QStringLiteral("macos") : kernel;
}

std::optional<QList<AppcastItem>> parseAppcast(const QByteArray& bytes, const QString& system)
{
    QXmlStreamReader xml(bytes);
    if (hasEndlessTag(bytes) || !enterFeed(xml))
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
