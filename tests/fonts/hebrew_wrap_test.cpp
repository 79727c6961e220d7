// SPDX-License-Identifier: GPL-2.0-or-later
#include "fonts/drawn_text.h"
#include "text/original/hebrew_division.h"
#include "text/original/original_unicode.h"

#include <QFont>
#include <QTextLayout>

#include <array>
#include <random>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr std::array kWidths{2200, 3000, 4100, 5700, 9000}; // twips
constexpr double kPixelsPerTwip = 96.0 / 1440.0;
constexpr int kHalfPoints = 28;
constexpr QStringView kMarks = u";#&*i2314ou5`~";

// Words of every letter with every kind of mark, drawn by lot, so that all neighbours occur.
QString madeUpVerse(int words)
{
    std::mt19937 random(7);
    const auto pick = [&random](QStringView from) {
        return from[qsizetype(random() % std::size_t(from.size()))];
    };
    QString text;
    for (int word = 0; word < words; ++word) {
        if (word > 0)
            text += word % 5 == 0 ? u'-' : u' ';
        if (word % 11 == 3)
            text += u'[';
        const std::size_t letters = 1 + random() % 3;
        for (std::size_t i = 0; i < letters; ++i) {
            text += pick(u"abgdhwzxjyklmnsepcqrvt67890");
            if (random() % 4 == 0)
                text += pick(u"`~");
            if (random() % 3 == 0)
                text += u'5';
            if (random() % 5 != 0)
                text += pick(u";#&*i2314ou");
        }
        if (word % 11 == 3)
            text += u']';
    }
    return reversedHebrew(text + u':');
}

using HebrewWrapTest = BuiltFontsTest;

TEST_F(HebrewWrapTest, NoDividedLineBeginsWithAMarkInReadingOrder)
{
    const QString verse = madeUpVerse(600);
    FontLineBreaker breaker(kPixelsPerTwip);
    for (const int width : kWidths) {
        SCOPED_TRACE(width);
        const QStringList lines = hebrewLines(verse, {u"OrvaneHeb"_s, kHalfPoints, width}, breaker);
        ASSERT_GT(lines.size(), 20);
        for (const QString& line : lines) {
            const QString read = reversedHebrew(line);
            EXPECT_FALSE(kMarks.contains(read[0])) << read.toStdString();
        }
    }
}

} // namespace
} // namespace lumen
