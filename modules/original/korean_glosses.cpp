// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/korean_glosses.h"

namespace lumen {

using namespace Qt::StringLiterals;

void KoreanGlosses::add(bool isGreek, int strong, const QStringList& words, Source source)
{
    (isGreek ? m_greek : m_hebrew).insert(strong, {words, source});
    m_hasDerived = m_hasDerived || source == Source::Derived;
}

const KoreanGlosses::Entry* KoreanGlosses::find(bool isGreek, int strong) const
{
    const auto& entries = isGreek ? m_greek : m_hebrew;
    const auto found = entries.constFind(strong);
    return found == entries.constEnd() ? nullptr : &*found;
}

QStringList KoreanGlosses::words(bool isGreek, int strong) const
{
    const Entry* entry = find(isGreek, strong);
    return entry ? entry->words : QStringList();
}

bool KoreanGlosses::isDerived(bool isGreek, int strong) const
{
    const Entry* entry = find(isGreek, strong);
    return entry && entry->source == Source::Derived;
}

QString KoreanGlosses::originLine() const
{
    const QString hand = u"자주 나오는 낱말의 우리말 대표값은 손으로 적은 것"_s;
    if (!m_hasDerived)
        return hand + u", 다른 낱말은 비어 있음"_s;
    return hand + u", 다른 낱말은 개역한글 본문과 원어 본문을 낱말끼리 맞추어 끌어낸 것"_s;
}

Result<KoreanGlosses> koreanGlosses(const OriginalText& text, const QStringList& koreanFiles)
{
    Q_UNUSED(text)
    Q_UNUSED(koreanFiles)
    return KoreanGlosses();
}

} // namespace lumen
