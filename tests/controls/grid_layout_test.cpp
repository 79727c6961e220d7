// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/grid/grid_layout.h"
#include "platform/controls/twips.h"
#include "text/original/hebrew_division.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

QFont korean()
{
    return QFont(u"NanumGothic"_s, 10);
}

// How many lines another part of the toolkit makes of the text in the same room.
int linesInDocument(const QString& text, const QFont& font, int width)
{
    QTextDocument document;
    document.setDocumentMargin(0);
    document.setDefaultFont(font);
    document.setPlainText(text);
    document.setTextWidth(width - kCellMarginLeft - kCellMarginRight);
    return qRound(document.size().height() / QFontMetricsF(font).lineSpacing());
}

TEST(RowHeightsTest, ACellIsAsHighAsItsLines)
{
    RowHeights heights;
    const QFont font = korean();
    const double line = QFontMetricsF(font).lineSpacing();
    const QString verse = u"이 글은 여러 줄에 걸쳐 나뉘는 긴 절을 시험하기 위하여 지어낸 글이며 "
                          u"어떤 책에서도 가져오지 않았느니라"_s;
    for (const int width : {60, 120, 200, 333, 900}) {
        SCOPED_TRACE(width);
        const int lines = linesInDocument(verse, font, width);
        EXPECT_NEAR(heights.cellHeight(verse, font, width) - 2 * kCellMarginY, lines * line, 1.5);
    }
}

TEST(RowHeightsTest, TextFontAndWidthEachMakeAHeightOfTheirOwn)
{
    RowHeights heights;
    QFont large = korean();
    large.setPointSizeF(16);
    const QString text = u"땅이 두 번째 문장에서 줄을 바꾼다 그리고 계속된다"_s;
    const int plain = heights.cellHeight(text, korean(), 150);
    EXPECT_GT(heights.cellHeight(text, large, 150), plain);
    EXPECT_GT(heights.cellHeight(text, korean(), 70), plain);
    EXPECT_GT(heights.cellHeight(text + text, korean(), 150), plain);
    EXPECT_EQ(heights.cellHeight(text, korean(), 150), plain);
}

TEST(ShownTextTest, RangesFollowTheLineEndsThatBecameOne)
{
    const QString text = u"ab\r\ncd\r\nef"_s;
    const QString shown = shownText(text);
    for (const auto& [range, words] : {std::pair{TextRange{0, 2}, u"ab"_s},
                                       {TextRange{4, 2}, u"cd"_s},
                                       {TextRange{8, 2}, u"ef"_s},
                                       {TextRange{1, 5}, u"b\u2028cd"_s}}) {
        const TextRange place = shownRange(text, range);
        EXPECT_EQ(shown.mid(place.start, place.length), words);
    }
}

TEST(LayOutCellTest, TextOfVisualOrderIsNeverReordered)
{
    // A right-to-left letter in front would turn a line round if its direction were guessed.
    QTextLayout layout(u"\u05d0 abc def"_s, korean());
    layOutCell(layout, 300, GridAlign::Left);
    const QTextLine line = layout.lineAt(0);
    EXPECT_LT(line.cursorToX(0), line.cursorToX(2));
    EXPECT_LT(line.cursorToX(2), line.cursorToX(6));
}

TEST(LayOutCellTest, DividedHebrewKeepsItsLinesInItsColumn)
{
    FontLineBreaker breaker;
    const QString verse = u"made up letters that stand for a verse in display order "_s.repeated(3);
    for (int pixels = 90; pixels < 400; pixels += 7) {
        SCOPED_TRACE(pixels);
        const HebrewTarget target{u"NanumGothic"_s, 32, toTwips(pixels)};
        const QStringList lines = hebrewLines(verse, target, breaker);
        ASSERT_GT(lines.size(), 1);
        // The size counts half points.
        QTextLayout layout(shownText(lines.join(u"\r\n"_s)), QFont(u"NanumGothic"_s, 16));
        layOutCell(layout, pixels - 1, GridAlign::Right);
        EXPECT_EQ(layout.lineCount(), lines.size());
    }
}

} // namespace
} // namespace lumen
