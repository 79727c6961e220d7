// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/sword/markup_scanner.h"

#include "sources/sword/osis_collector.h"

#include <QRegularExpression>
#include <QString>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

QString decodedEntity(QStringView name)
{
    if (name == u"amp")
        return u"&"_s;
    if (name == u"lt")
        return u"<"_s;
    if (name == u"gt")
        return u">"_s;
    if (name == u"quot")
        return u"\""_s;
    if (name == u"apos")
        return u"'"_s;
    if (!name.startsWith(u'#'))
        return {};
    const bool hexadecimal = name.mid(1).startsWith(u'x', Qt::CaseInsensitive);
    bool isNumber = false;
    const uint code = name.mid(hexadecimal ? 2 : 1).toUInt(&isNumber, hexadecimal ? 16 : 10);
    const char32_t character = code;
    return isNumber && code > 0 && code <= 0x10FFFF ? QString::fromUcs4(&character, 1) : QString();
}

QString decoded(QStringView text)
{
    QString result;
    qsizetype from = 0;
    for (;;) {
        const qsizetype start = text.indexOf(u'&', from);
        const qsizetype end = start < 0 ? -1 : text.indexOf(u';', start);
        if (end < 0)
            break;
        const QString character = decodedEntity(text.mid(start + 1, end - start - 1));
        // What is no entity stays: a lone "&" is a sign of the text.
        const qsizetype next = character.isEmpty() ? start + 1 : end + 1;
        result += text.mid(from, start - from);
        result += character.isEmpty() ? u"&"_s : character;
        from = next;
    }
    result += text.mid(from);
    return result;
}

QString plainText(QStringView text)
{
    QString result = decoded(text);
    if (result.contains(u'\\')) {
        static const QRegularExpression leftMarker(uR"(\\\+?[a-z]+[0-9]*(\*|\s|$))"_s);
        result.remove(leftMarker);
    }
    return result;
}

QStringView attributeValue(QStringView attributes, QStringView name)
{
    qsizetype at = 0;
    while ((at = attributes.indexOf(name, at)) >= 0) {
        const QStringView rest = attributes.mid(at + name.size());
        const bool whole = at > 0 && attributes[at - 1].isSpace();
        at += name.size();
        if (!whole || rest.size() < 2 || rest[0] != u'=' || (rest[1] != u'"' && rest[1] != u'\''))
            continue;
        const qsizetype end = rest.indexOf(rest[1], 2);
        return end < 0 ? QStringView() : rest.mid(2, end - 2);
    }
    return {};
}

void scanTag(QStringView tag, OsisCollector& collector)
{
    if (tag.startsWith(u'/')) {
        collector.end(tag.mid(1).trimmed());
        return;
    }
    const bool empty = tag.endsWith(u'/');
    if (empty)
        tag.chop(1);
    qsizetype nameEnd = 0;
    while (nameEnd < tag.size() && !tag[nameEnd].isSpace())
        ++nameEnd;
    const QStringView name = tag.left(nameEnd);
    const QStringView attributes = tag.mid(nameEnd);
    collector.start(name, [attributes](QStringView attribute) {
        return attributeValue(attributes, attribute);
    });
    if (empty)
        collector.end(name);
}

} // namespace

void scanMarkup(QStringView markup, OsisCollector& collector)
{
    qsizetype from = 0;
    while (from < markup.size()) {
        const qsizetype start = markup.indexOf(u'<', from);
        const qsizetype end = start < 0 ? -1 : markup.indexOf(u'>', start);
        const qsizetype textEnd = end < 0 ? markup.size() : start;
        if (textEnd > from)
            collector.characters(plainText(markup.mid(from, textEnd - from)));
        if (end < 0)
            break;
        scanTag(markup.mid(start + 1, end - start - 1), collector);
        from = end + 1;
    }
}

} // namespace lumen
