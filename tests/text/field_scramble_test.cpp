// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/codepage949.h"
#include "text/field_scramble.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace lumen::DES {
namespace {

TEST(FieldScramble, EveryUnitSurvivesTheRoundTripBothWays)
{
    QString all;
    for (int unit = 0; unit < 0x10000; ++unit)
        all.append(QChar(static_cast<char16_t>(unit)));
    EXPECT_EQ(UnscrambleField(ScrambleField(all)), all);
    EXPECT_EQ(ScrambleField(UnscrambleField(all)), all);
}

TEST(FieldScramble, BlocksMoveToTheirPlaces)
{
    struct Row
    {
        QString plain;
        QString stored;
    };
    const Row rows[] = {
        // First and last characters of the five blocks, in both columns.
        {u"가덥"_s, u"치힝"_s},
        {u"덧벗"_s, u"벙엎"_s},
        {u"벙엎"_s, u"가덥"_s},
        {u"에층"_s, u"덧벗"_s},
        {u"치힝"_s, u"에층"_s},
        // First and last codes of the three runs.
        {u"!?"_s, u"_}"_s},
        {u"@^"_s, u"!?"_s},
        {u"A"_s, u"\""_s},
        {u"_}"_s, u"@^"_s},
        {u"z"_s, u"["_s},
        // Outside the blocks: blank, line ends, tilde, Hanja, jamo, symbols, other scripts.
        {u" \t\r\n~\u007F"_s, u" \t\r\n~\u007F"_s},
        {u"神ㄱ※\u05D0\u03B1é"_s, u"神ㄱ※\u05D0\u03B1é"_s},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.plain.toStdString());
        EXPECT_EQ(ScrambleField(row.plain), row.stored);
        EXPECT_EQ(UnscrambleField(row.stored), row.plain);
    }
}

} // namespace
} // namespace lumen::DES
