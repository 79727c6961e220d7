// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/basic_text.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TEST(BasicText, ValReadsTheNumericHead)
{
    struct Row
    {
        QString text;
        double value;
    };
    const Row rows[] = {
        {u""_s, 0},          {u"abc"_s, 0},     {u"12절"_s, 12}, {u" 1 6 15 x"_s, 1615},
        {u"-3.5kg"_s, -3.5}, {u".5"_s, 0.5},    {u"+7"_s, 7},    {u"1.2.3"_s, 1.2},
        {u"2e3"_s, 2000},    {u"2D-1"_s, 0.2},  {u"3e"_s, 3},    {u"&HFF00"_s, 65280},
        {u"&o17"_s, 15},     {u"&H"_s, 0},      {u"-"_s, 0},     {u"5-7"_s, 5},
        {u"1,000"_s, 1},     {u"\t\r\n8"_s, 8}, {u"inf"_s, 0},   {u"16711680"_s, 16711680},
        {u"１２"_s, 0},
    };
    for (const Row& row : rows)
        EXPECT_DOUBLE_EQ(Val(row.text), row.value) << row.text.toStdString();
}

TEST(BasicText, NumbersAreWrittenInTheirThreeForms)
{
    struct Row
    {
        double number;
        QString plain;
        QString str;
    };
    const Row rows[] = {
        {0, u"0"_s, u" 0"_s},
        {50, u"50"_s, u" 50"_s},
        {-7, u"-7"_s, u"-7"_s},
        {0.5, u"0.5"_s, u" .5"_s},
        {-0.25, u"-0.25"_s, u"-.25"_s},
        {0.1 + 0.2, u"0.3"_s, u" .3"_s},
        {0.00002, u"0.00002"_s, u" .00002"_s},
        {1.0 / 30000, u"3.33333333333333E-05"_s, u" 3.33333333333333E-05"_s},
        {123456789012345, u"123456789012345"_s, u" 123456789012345"_s},
        {1e15, u"1E+15"_s, u" 1E+15"_s},
        {16711680, u"16711680"_s, u" 16711680"_s},
        {13.33333, u"13.33333"_s, u" 13.33333"_s},
        {1e-120, u"1E-120"_s, u" 1E-120"_s},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.plain.toStdString());
        EXPECT_EQ(numberText(row.number), row.plain);
        EXPECT_EQ(Str(row.number), row.str);
        EXPECT_EQ(trimmedNumber(row.number), row.str.trimmed());
        EXPECT_NEAR(Val(row.str), row.number, 1e-14 * std::abs(row.number));
    }
}

TEST(BasicText, DatesHaveOneFormAndAreReadTolerantly)
{
    EXPECT_EQ(dateText(QDate(2003, 4, 9)), u"2003-04-09"_s);
    EXPECT_EQ(dateText(QDate()), QString());
    EXPECT_EQ(dateFromText(u"2003-04-09"), QDate(2003, 4, 9));
    EXPECT_EQ(dateFromText(u" 2003. 4. 9 "), QDate(2003, 4, 9));
    for (const QString& text : {u""_s, u"2003-02-30"_s, u"2003-04"_s, u"a-b-c"_s, u"1-2-3-4"_s})
        EXPECT_EQ(dateFromText(text), std::nullopt) << text.toStdString();
}

} // namespace
} // namespace lumen
