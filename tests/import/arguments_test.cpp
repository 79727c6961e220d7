// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/arguments.h"

#include <gtest/gtest.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

TEST(ArgumentsTest, OptionsStandAnywhereAndInBothForms)
{
    const auto parsed = parseArguments({u"a"_s, u"--only"_s, u"101,102"_s, u"--out=/x=y"_s,
                                        u"--quiet"_s, u"b"_s, u"--"_s, u"--only"_s},
                                       {u"only"_s, u"out"_s}, {u"quiet"_s});
    ASSERT_TRUE(parsed);
    const Arguments& arguments = parsed.value();
    EXPECT_EQ(arguments.positional, (QStringList{u"a"_s, u"b"_s, u"--only"_s}));
    EXPECT_EQ(arguments.value(u"only"_s), u"101,102"_s);
    EXPECT_EQ(arguments.value(u"out"_s), u"/x=y"_s);
    EXPECT_TRUE(arguments.has(u"quiet"_s));
    EXPECT_EQ(arguments.value(u"absent"_s, u"fallback"_s), u"fallback"_s);
}

TEST(ArgumentsTest, MistakesAreNamed)
{
    const auto detail = [](const QStringList& args) {
        const auto parsed = parseArguments(args, {u"only"_s}, {u"quiet"_s});
        return parsed ? u"no failure"_s : parsed.failure().detail;
    };
    EXPECT_EQ(detail({u"--colour"_s}), u"알 수 없는 선택 사항입니다: --colour"_s);
    EXPECT_EQ(detail({u"--quiet=yes"_s}), u"알 수 없는 선택 사항입니다: --quiet=yes"_s);
    EXPECT_EQ(detail({u"--only"_s}), u"--only 뒤에 값이 없습니다."_s);
}

} // namespace
} // namespace lumen
