// SPDX-License-Identifier: GPL-2.0-or-later
#include "fonts/drawn_text.h"
#include "text/original/original_unicode.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

using GreekFontTest = BuiltFontsTest;

void expectDrawnAsInSource(const QString& codes)
{
    EXPECT_EQ(drawnOutlines(u"OrvaneGrk"_s, codes),
              drawnOutlines(u"Galatia SIL"_s, greekToUnicode(codes)))
        << codes.toStdString();
}

TEST_F(GreekFontTest, EveryComposedLetterIsDrawnAsInTheSource)
{
    int composed = 0;
    const auto check = [&composed](char16_t first, char16_t last) {
        for (char16_t unit = first; unit <= last; ++unit) {
            const QString letter{QChar(unit)};
            const FontCodes coded = greekToCodes(letter);
            // Letters with a length sign, and signs alone, have no code.
            if (!coded.unknown.isEmpty() || coded.codes.size() < 2 || !QChar(unit).isLetter())
                continue;
            expectDrawnAsInSource(coded.codes);
            ++composed;
        }
    };
    check(0x0386, 0x03CE);
    check(0x1F00, 0x1FFC);
    EXPECT_EQ(composed, 225);
}

TEST_F(GreekFontTest, EveryCodeIsDrawnByTheFontItself)
{
    const QStringList box = drawnOutlines(u"OrvaneGrk"_s, u"J"_s);
    ASSERT_EQ(box.size(), 1);
    const QString boxed = u"JV089!\"#$%&*+/<=>?@\\^_`{|}~"_s;
    for (char16_t code = u'!'; code <= u'~'; ++code) {
        const QStringList drawn = drawnOutlines(u"OrvaneGrk"_s, QChar(code));
        EXPECT_EQ(drawn.count(u"not drawn by the font"_s), 0) << char(code);
        EXPECT_EQ(drawn == box, boxed.contains(QChar(code))) << char(code);
    }
}

} // namespace
} // namespace lumen
