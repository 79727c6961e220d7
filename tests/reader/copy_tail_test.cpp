// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/copy_tail.h"

#include <gtest/gtest.h>

#include <ostream>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

CopySource genesis(const QString& range)
{
    return {{u"개역한글"_s, u"KJV"_s}, u"창세기"_s, u"창"_s, u"1"_s, range};
}

TEST(CopyTailTest, EachOptionChangesItsPartAlone)
{
    struct Row
    {
        CopyOptions options; // addIndex, addVersion, fullName, formalSep, parenthesis, crLf
        const char16_t* tail;
        const char16_t* range = u"1-3";
    };
    const Row rows[] = {
        {{}, u" (개역한글/KJV 창1:1~3)"},
        {{false, true, true, true, true, true}, u""},
        {{true, false, false, false, true, false}, u" (창1:1~3)"},
        {{true, false, true, false, true, false}, u" (창세기 1:1~3)"},
        {{true, true, true, true, true, false}, u" (개역한글/KJV 창세기 1장 1~3절)"},
        {{true, false, false, true, true, false}, u" (창 1장 1~3절)"},
        {{true, false, false, false, true, true}, u"(창1:1~3)"},
        {{true, false, false, false, false, false}, u" 창1:1~3"},
        {{true, false, false, false, false, true}, u"창1:1~3"},
        {{true, false, false, false, false, true}, u"창1:31", u"31"},
        {{true, false, false, false, false, true}, u"창1:31", u"31-31"},
        {{true, false, false, false, false, true}, u"창1:1~11", u"1-11"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(QString::fromUtf16(row.tail).toStdString());
        EXPECT_EQ(GetCopyTailIndex(row.options, genesis(QString::fromUtf16(row.range))),
                  QString::fromUtf16(row.tail));
    }
}

TEST(CopyTailTest, TheLineBreakComesWithATailOnly)
{
    CopyOptions options{true, false, false, false, true, true};
    EXPECT_EQ(copyEnding(options, genesis(u"1"_s)), u"\r\n(창1:1)"_s);
    options.addIndex = false;
    EXPECT_EQ(copyEnding(options, genesis(u"1"_s)), QString());
}

} // namespace
} // namespace lumen
