// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/original/original_query.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

OriginalQuestion question(const QStringList& words)
{
    OriginalQuestion made;
    for (qsizetype i = 0; i < words.size(); ++i)
        made.conditions[static_cast<std::size_t>(i)].word = words.at(i);
    return made;
}

TEST(OriginalQuestionTest, TellsWhichConditionIsMissing)
{
    struct Row
    {
        QStringList words;
        std::optional<int> missing;
    };
    const QList<Row> rows{
        {{}, 0},
        {{u" "_s, u"b"_s}, 0},
        {{u"a"_s}, std::nullopt},
        {{u"a"_s, u""_s, u"c"_s}, 1},
        {{u"a"_s, u""_s, u""_s, u"d"_s}, 2},
        {{u"a"_s, u"b"_s, u"c"_s, u"  "_s, u"e"_s}, 3},
        // The one that stands directly before a filled one is told, not the first gap.
        {{u"a"_s, u""_s, u""_s, u""_s, u"e"_s}, 3},
        {{u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s}, std::nullopt},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.words.join(u',').toStdString());
        EXPECT_EQ(question(row.words).missing(), row.missing);
    }
}

TEST(OriginalQuestionTest, APatternIsFilledByItsCodeAndAWordByItsText)
{
    OriginalQuestion made = question({u"a"_s, u"a word left behind"_s});
    made.conditions[1].kind = ConditionKind::Parsing;
    EXPECT_EQ(made.last(), 0);
    made.conditions[1].pattern = u"@n"_s;
    EXPECT_EQ(made.last(), 1);
    made.conditions[1].kind = ConditionKind::Lemma;
    made.conditions[1].word.clear();
    EXPECT_EQ(made.last(), 0);
}

} // namespace
} // namespace lumen
