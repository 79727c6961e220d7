// SPDX-License-Identifier: GPL-2.0-or-later
#include "fonts/drawn_text.h"
#include "text/original/original_unicode.h"

#include <QFile>
#include <QFont>
#include <QRawFont>
#include <QSet>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr QStringView kLetters = u"abgdhwzxjyklmnsepcqrvt67890";
constexpr QStringView kVowels = u";#&*i2314ou=<";
constexpr QStringView kMarks = u";#&*i2314ou=<5`~";

using HebrewFontTest = BuiltFontsTest;

// Stored: the marks of a letter stand before it, the one nearest to it last.
void expectDrawnAsInSource(const QString& stored)
{
    EXPECT_EQ(drawnOutlines(u"OrvaneHeb"_s, stored),
              drawnOutlines(u"Ezra SIL"_s, hebrewToUnicode(stored)))
        << stored.toStdString();
}

TEST_F(HebrewFontTest, EachMarkStandsOnEachLetterWhereTheSourceHasIt)
{
    for (const QChar letter : kLetters) {
        expectDrawnAsInSource(letter);
        expectDrawnAsInSource(u'5' + QString(letter));
        for (const QChar vowel : kVowels) {
            expectDrawnAsInSource(QString(vowel) + letter);
            expectDrawnAsInSource(QString(vowel) + u'5' + letter);
        }
    }
}

TEST_F(HebrewFontTest, SecondVowelMovesTheHiriqToTheLeft)
{
    // Before a patah it stands as in the source, where a letter follows.
    expectDrawnAsInSource(u"7i1l"_s);
    const auto leftmost = [](const QString& stored) {
        return drawnEdges(u"OrvaneHeb"_s, stored).left;
    };
    EXPECT_LT(leftmost(u"i1l"_s), leftmost(u"1l"_s));
    EXPECT_LT(leftmost(u"i4l"_s), leftmost(u"4l"_s));
}

TEST_F(HebrewFontTest, DottedCircleCarriesEveryMark)
{
    const DrawnEdges circle = drawnEdges(u"OrvaneHeb"_s, u"^"_s);
    const QStringList alone = drawnOutlines(u"OrvaneHeb"_s, u"^"_s);
    for (const QChar mark : kMarks) {
        SCOPED_TRACE(QString(mark).toStdString());
        const QString text = mark + u"^"_s;
        EXPECT_EQ(drawnOutlines(u"OrvaneHeb"_s, text).size(), alone.size() + 1);
        const DrawnEdges both = drawnEdges(u"OrvaneHeb"_s, text);
        EXPECT_GE(both.left, 0.0);
        EXPECT_LE(both.right, circle.right + 20);
    }
}

TEST_F(HebrewFontTest, EveryCodeIsDrawnByTheFontItself)
{
    const QStringList box = drawnOutlines(u"OrvaneHeb"_s, u"A"_s);
    ASSERT_EQ(box.size(), 1);
    const QString signs = kLetters.toString() + u"-:[]/"_s;
    for (char16_t code = u'!'; code <= u'~'; ++code) {
        SCOPED_TRACE(char(code));
        const QString text{QChar(code)};
        const QStringList pointed = drawnOutlines(u"OrvaneHeb"_s, text);
        const QStringList consonant = drawnOutlines(u"OrvaneHebC"_s, text);
        EXPECT_EQ(pointed.count(u"not drawn by the font"_s), 0);
        // Codes without a sign show an empty box.
        const bool isSign = signs.contains(QChar(code));
        const bool isMark = kMarks.contains(QChar(code)) || code == u'^';
        EXPECT_EQ(pointed == box, !isSign && !isMark);
        EXPECT_EQ(consonant == box, !isSign);
        if (isSign) {
            EXPECT_EQ(consonant, pointed);
        }
    }
}

TEST_F(HebrewFontTest, FontsMayBeEmbeddedAndBearNoReservedName)
{
    for (const QString& family : {u"OrvaneHeb"_s, u"OrvaneHebC"_s, u"OrvaneGrk"_s}) {
        SCOPED_TRACE(family.toStdString());
        const QRawFont font = QRawFont::fromFont(QFont(family));
        ASSERT_EQ(font.familyName(), family);
        const QByteArray os2 = font.fontTable("OS/2");
        EXPECT_EQ(os2.mid(8, 2), QByteArray(2, '\0')) << "fsType";
        const QByteArray names = font.fontTable("name");
        QByteArray license;
        for (const char c : QByteArrayView("SIL OPEN FONT LICENSE Version 1.1"))
            license += QByteArray(1, '\0') + c;
        EXPECT_TRUE(names.contains(license));
    }
    QFile terms(builtFontFolder() + u"/OFL.txt"_s);
    ASSERT_TRUE(terms.open(QIODevice::ReadOnly));
    const QByteArray text = terms.readAll();
    EXPECT_EQ(text.count("SIL OPEN FONT LICENSE Version 1.1"), 2) << "one for each source font";
    EXPECT_TRUE(QFile::exists(builtFontFolder() + u"/FONTLOG.txt"_s));
}

} // namespace
} // namespace lumen
