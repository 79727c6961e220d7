// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/verses/search_scope.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

QString scopeTail(SearchKind kind, const QString& tag)
{
    const auto row = std::ranges::find_if(
        kScopes, [&](const ScopeRow& scope) { return !scope.tag.isEmpty() && scope.tag == tag; });
    if (row == kScopes.end())
        return u" and "_s + bookListTerm(tag) + u"  order by index"_s;
    return (kind == SearchKind::Easy ? row->easyTail : row->powerTail).toString();
}

} // namespace

QString bookListTerm(const QString& tag)
{
    QStringList terms;
    for (const QString& book : tag.split(u','))
        terms << u"index like '??"_s + book + u":*'"_s;
    return u"("_s + terms.join(u" or "_s) + u")"_s;
}

QString scopedQuery(SearchKind kind, const QString& table, const QString& criterion,
                    const QString& tag)
{
    Q_ASSERT(tag != kScopeTagWithin);
    // Put together piece by piece: QString::arg would take "%1" out of a searched word.
    const QString head = u"select Chap, Verse, Cont, index from ["_s + table + u"] where "_s;
    if (tag == kScopeTagAll)
        return head + criterion + u" order by index"_s;
    return head + u"("_s + criterion + u")"_s + scopeTail(kind, tag);
}

} // namespace lumen
