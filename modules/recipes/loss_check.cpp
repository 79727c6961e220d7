// SPDX-License-Identifier: GPL-2.0-or-later
#include "recipes/loss_check.h"

#include "canon/canon_table.h"
#include "canon/verse_index.h"
#include "jet/error.h"
#include "jet/store/store_inspection.h"
#include "reference/module_stamp.h"

#include <QFileInfo>

#include <map>
#include <utility>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kShown = 5;
constexpr int kMostLossByOtherRules = 100; // one verse in so many

// The verses with words by chapter key.
using WordCounts = std::map<QString, int>;

WordCounts countsOf(const VersionText& version)
{
    WordCounts counts;
    for (const VerseText& verse : version.verses)
        if (verse.text)
            ++counts[BibleCode::GetChapKey(verse.book, verse.chapter)];
    return counts;
}

// Nothing for a file that can't be read: it is no measure, and is made anew.
WordCounts countsOf(const QString& moduleFile, const QString& table)
{
    WordCounts counts;
    try {
        readColumnPair(moduleFile, table, u"Chap"_s, u"Cont"_s,
                       [&counts](const QString& chapter, const QString& text) {
                           if (!text.isNull())
                               ++counts[chapter];
                       });
    } catch (const JetError&) {
        return {};
    }
    return counts;
}

QString listed(const QStringList& chapters)
{
    if (chapters.size() <= kShown)
        return chapters.join(u", "_s);
    return u"%1 외 %2장"_s.arg(chapters.first(kShown).join(u", "_s)).arg(chapters.size() - kShown);
}

QStringList chaptersWithoutWords(const WordCounts& counts)
{
    QStringList chapters;
    for (int book = 0; book < kBookCount; ++book)
        for (int chapter = 1; chapter <= chapterCount(book); ++chapter)
            if (const QString key = BibleCode::GetChapKey(book, chapter); !counts.contains(key))
                chapters << key;
    return chapters;
}

QStringList comparedWithFormer(const WordCounts& counts, const WordCounts& former, bool sameRules)
{
    QStringList fewer;
    QStringList gone;
    int lost = 0;
    int verses = 0;
    for (const auto& [chapter, before] : former) {
        const auto now = counts.find(chapter);
        const int left = now == counts.end() ? 0 : now->second;
        verses += before;
        lost += std::max(before - left, 0);
        if (left < before)
            (left == 0 ? gone : fewer) << chapter;
    }
    const bool tolerable = !sameRules && gone.isEmpty() && lost <= verses / kMostLossByOtherRules;
    if (lost == 0 || tolerable)
        return {};
    return {
        u"전에 만든 모듈에 있던 절 %1개가 없습니다 (%2)."_s.arg(lost).arg(listed(gone + fewer))};
}

} // namespace

QStringList lossesOf(const VersionText& version, const VersionTask& task, const QString& former)
{
    QStringList losses = version.losses;
    const WordCounts counts = countsOf(version);
    if (task.isWhole)
        if (const QStringList empty = chaptersWithoutWords(counts); !empty.isEmpty())
            losses << u"본문이 없는 장이 있습니다: %1"_s.arg(listed(empty));
    if (QFileInfo::exists(former))
        losses << comparedWithFormer(counts, countsOf(former, task.name),
                                     originLine(former, kRulesKey) ==
                                         QString::number(kBuilderVersion));
    return losses;
}

} // namespace lumen
