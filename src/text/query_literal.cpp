// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/query_literal.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// One pass, so that no bracket that was added is met again.
QString bracketed(QStringView value, bool doubleQuotes)
{
    QString result;
    result.reserve(value.size() + 8);
    for (const QChar c : value) {
        if (QStringView(u"[?*#").contains(c))
            result += u'[' + QString(c) + u']';
        else if (doubleQuotes && c == u'\'')
            result += u"''"_s;
        else
            result += c;
    }
    return result;
}

} // namespace

QString EscapeLikeText(QStringView value, bool keepQuotes)
{
    return keepQuotes ? bracketed(value, true) : value.toString().remove(u'\'');
}

QString EscapeLikeKeepQuote(QStringView value)
{
    return bracketed(value, false);
}

void EscapeLikeInPlace(QString& value)
{
    value = bracketed(value, false);
}

QString EscapeSqlText(QStringView value)
{
    const auto quoted = ReplaceText(value.toString(), u"'"_s, u"''"_s);
    return ReplaceText(quoted, u"|"_s, u"' & chr(124) & '"_s).value_or(QString());
}

std::optional<QString> ReplaceText(const std::optional<QString>& text, const QString& find,
                                   const QString& replacement, Qt::CaseSensitivity compare)
{
    if (!text || find.isEmpty())
        return text;
    QString result = *text;
    result.replace(find, replacement, compare);
    return result;
}

} // namespace lumen
