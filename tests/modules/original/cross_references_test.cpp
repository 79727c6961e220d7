// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"
#include "reference/cross_references.h"

#include <gtest/gtest.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

using Targets = std::set<PlaceOrder>;

// Chapter lists with nothing in them up to the wanted one.
QString chapters(int count, const QString& last)
{
    QString result = u"[\"x\"]"_s;
    for (int chapter = 1; chapter < count; ++chapter)
        result += u", [[\"%1\"]]"_s.arg(chapter);
    return result + u", "_s + last;
}

QString verses(int count, const QString& last)
{
    QString result = u"[\"n\"]"_s;
    for (int verse = 1; verse < count; ++verse)
        result += u", []"_s;
    return u"["_s + result + u", "_s + last + u"]"_s;
}

TEST(CrossReferences, StandUnderTheKeysOfTheKoreanText)
{
    const SourceFiles files;
    const QString script =
        u"const s = { gen: [%1], \"1sa\": [%2], sng: [%3], \"3jn\": [%4] }, c = [1]; export {s}"_s
            .arg(chapters(1,
                          verses(1, u"[\"exo 20:11\", \"1sa 30:31\", \"2co 13:14\", \"exo 20:11\", "
                                    "\"tob 1:1\", \"gen 99:1\", \"gen 1:1\"]"_s)),
                 chapters(30, verses(31, u"[\"gen 1:2\"]"_s)),
                 chapters(6, verses(13, u"[\"gen 1:3\"]"_s)),
                 chapters(1, verses(13, u"[\"3jn 1:14\"]"_s)));
    const auto read = readCrossReferences(files.write(u"crossref.js"_s, script));
    ASSERT_TRUE(read.ok()) << read.failure().detail.toStdString();
    const auto& targets = read.value().targets;
    EXPECT_EQ(targets.at({0, 1, 1}), (Targets{{1, 20, 11}, {8, 30, 30}, {46, 13, 13}}));
    EXPECT_EQ(targets.at({8, 30, 30}), (Targets{{0, 1, 2}}));
    EXPECT_EQ(targets.at({21, 6, 13}), targets.at({21, 6, 14}));
    EXPECT_EQ(targets.at({63, 1, 13}), (Targets{{63, 1, 14}}));
    EXPECT_EQ(targets.count({8, 30, 31}), 0u);
    EXPECT_EQ(read.value().outside, 2);
}

TEST(CrossReferences, OfAnotherShapeAreDamaged)
{
    const SourceFiles files;
    for (const QString& script :
         {u"nothing"_s, u"const s = { gen: [[ }, c = ["_s, u"const s = { gen: [] }, c = []"_s}) {
        SCOPED_TRACE(script.toStdString());
        const auto read = readCrossReferences(files.write(u"crossref.js"_s, script));
        ASSERT_FALSE(read.ok());
        EXPECT_EQ(read.failure().kind, FailureKind::Damaged);
    }
    EXPECT_EQ(readCrossReferences(files.path(u"none.js"_s)).failure().kind, FailureKind::NotFound);
}

} // namespace
} // namespace lumen
