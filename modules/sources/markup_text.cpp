// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/markup_text.h"

#include <QRegularExpression>
#include <QStringList>

#include <array>
#include <utility>

namespace lumen {

using namespace Qt::StringLiterals;

QString plainLines(QString markup)
{
    static const QRegularExpression breaks(
        u"<(?:lb|/?p|/?row|/?item|/?list|/?title|/?table|div)\\b[^>]*>"_s);
    static const QRegularExpression cell(u"</cell>\\s*<cell>"_s);
    static const QRegularExpression mark(u"<[^>]*>"_s);
    constexpr std::array kEntities{std::pair{u"&lt;", u"<"}, std::pair{u"&gt;", u">"},
                                   std::pair{u"&quot;", u"\""}, std::pair{u"&apos;", u"'"},
                                   std::pair{u"&amp;", u"&"}};
    markup.replace(u'\n', u' ');
    markup.replace(cell, u" "_s).replace(breaks, u"\n"_s).remove(mark);
    for (const auto& [entity, sign] : kEntities)
        markup.replace(QString::fromUtf16(entity), QString::fromUtf16(sign));
    QStringList lines;
    for (const QString& line : markup.split(u'\n'))
        if (const QString text = line.simplified(); !text.isEmpty())
            lines << text;
    return lines.join(u'\n');
}

} // namespace lumen
