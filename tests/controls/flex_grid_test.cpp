// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/grid/grid_layout.h"
#include "platform/controls/twips.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QImage>
#include <QScrollBar>
#include <QTest>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

QString verseText(int verse, int words)
{
    QStringList text;
    for (int word = 0; word < words; ++word)
        text << u"낱말%1"_s.arg(verse * 7 + word);
    return text.join(u' ');
}

class FlexGridTest : public testing::Test
{
protected:
    FlexGridTest()
    {
        grid.setCols(4);
        grid.setColWidth(0, 300);
        grid.setColWidth(1, 600);
        grid.setStretchFrom(2);
        grid.resize(600, 400);
        grid.AutoSize();
        grid.onSelChange = [this] { ++selChanges; };
        grid.show();
        QCoreApplication::processEvents();
    }

    // A chapter as the reader fills it: verse numbers and two versions of unequal length.
    void fill(int verses)
    {
        const RedrawHold hold(grid);
        grid.setRows(1);
        grid.setTextMatrix(0, 1, u"절"_s);
        for (int verse = 1; verse <= verses; ++verse)
            grid.AddItem({u""_s, QString::number(verse), verseText(verse, 8 + verse % 20),
                          verseText(verse, 5)});
    }
    QPoint middleOf(int row, int col)
    {
        return grid.visualRect(grid.model()->index(row - 1, col)).center();
    }

    FlexGrid grid;
    int selChanges = 0;
};

TEST_F(FlexGridTest, RowZeroIsTheHeader)
{
    fill(3);
    EXPECT_EQ(grid.Rows(), 4);
    EXPECT_EQ(grid.model()->rowCount(), 3);
    EXPECT_EQ(grid.model()->headerData(1, Qt::Horizontal).toString(), u"절"_s);
    EXPECT_EQ(grid.TextMatrix(3, 1), u"3"_s);
    EXPECT_EQ(grid.TextMatrix(4, 1), QString());
    grid.setTextMatrix(9, 9, u"x"_s);
    EXPECT_EQ(grid.TextMatrix(9, 9), QString());
    grid.setRows(1);
    EXPECT_EQ(grid.model()->rowCount(), 0);
    EXPECT_EQ(grid.TextMatrix(0, 1), u"절"_s);
}

TEST_F(FlexGridTest, EveryRowIsAsHighAsItsHighestCell)
{
    fill(60);
    RowHeights heights;
    for (int row = 1; row < grid.Rows(); ++row) {
        int highest = 0;
        for (int col = 0; col < 4; ++col)
            highest = std::max(highest, heights.cellHeight(grid.TextMatrix(row, col), grid.font(),
                                                           grid.columnWidth(col) - 1));
        EXPECT_GE(grid.rowHeight(row - 1), highest) << row;
        EXPECT_LE(grid.rowHeight(row - 1), highest + 1) << row;
    }
}

TEST_F(FlexGridTest, StretchedColumnsShareTheRoomAndHeightsFollow)
{
    fill(40);
    const int wide = grid.rowHeight(18);
    int all = 0;
    for (int col = 0; col < 4; ++col)
        all += grid.columnWidth(col);
    EXPECT_EQ(all, grid.viewport()->width());
    EXPECT_NEAR(grid.columnWidth(2), grid.columnWidth(3), 1);
    grid.resize(300, 400);
    EXPECT_GT(grid.rowHeight(18), wide);
    grid.setColHidden(3, true);
    EXPECT_EQ(grid.columnWidth(2),
              grid.viewport()->width() - grid.columnWidth(0) - grid.columnWidth(1));
}

TEST_F(FlexGridTest, AResizeKeepsTheRowAtTheTop)
{
    fill(100);
    grid.setTopRow(50);
    ASSERT_EQ(grid.TopRow(), 50);
    grid.resize(350, 300);
    EXPECT_EQ(grid.TopRow(), 50);
    grid.resize(900, 300);
    EXPECT_EQ(grid.TopRow(), 50);
}

TEST_F(FlexGridTest, AGridFilledWhileHiddenShowsTheRowItWasSentTo)
{
    grid.hide();
    fill(80);
    grid.setTopRow(40);
    grid.show();
    EXPECT_EQ(grid.TopRow(), 40);
    EXPECT_GT(grid.rowHeight(18), grid.rowHeight(39));
}

TEST_F(FlexGridTest, TheLastRowCanBeReachedWhole)
{
    fill(100);
    grid.ShowRow(100);
    const QRect last = grid.visualRect(grid.model()->index(99, 2));
    EXPECT_GE(last.top(), 0);
    EXPECT_LE(last.bottom(), grid.viewport()->height());
    EXPECT_EQ(grid.verticalScrollBar()->value(), grid.verticalScrollBar()->maximum());
}

TEST_F(FlexGridTest, AHeldFillShowsWhenItEndsAlsoAfterAnError)
{
    fill(10);
    try {
        const RedrawHold hold(grid);
        grid.setRows(1);
        grid.AddItem({u""_s, u"1"_s, u"한 줄"_s, u""_s});
        EXPECT_EQ(grid.model()->rowCount(), 10);
        throw std::runtime_error("a failed fill");
    } catch (const std::runtime_error&) {
    }
    EXPECT_TRUE(grid.Redraw());
    EXPECT_EQ(grid.model()->rowCount(), 1);
    EXPECT_EQ(grid.model()->index(0, 2).data().toString(), u"한 줄"_s);
}

TEST_F(FlexGridTest, ARowCanBeChosenWhileTheFillIsHeld)
{
    {
        const RedrawHold hold(grid);
        grid.setRows(1);
        for (int verse = 1; verse <= 30; ++verse)
            grid.AddItem({u""_s, QString::number(verse), verseText(verse, 9), u""_s});
        grid.setRow(20);
        grid.setTextMatrix(20, 0, u"▶"_s);
    }
    EXPECT_EQ(grid.Row(), 20);
    EXPECT_EQ(grid.model()->rowCount(), 30);
    EXPECT_EQ(grid.TextMatrix(20, 0), u"▶"_s);
}

TEST_F(FlexGridTest, DraggingAndKeysMoveTheSelectionAndAreTold)
{
    fill(10);
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, middleOf(2, 2));
    QTest::mouseMove(grid.viewport(), middleOf(4, 2));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, middleOf(4, 2));
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.RowSel(), 4);
    EXPECT_GT(selChanges, 0);
    QList<int> keys;
    grid.onKeyUp = [&](int key) { keys << key; };
    QTest::keyClick(&grid, Qt::Key_Up);
    EXPECT_EQ(grid.Row(), 3);
    EXPECT_EQ(grid.RowSel(), 3);
    EXPECT_EQ(keys, QList<int>{Qt::Key_Up});
}

TEST_F(FlexGridTest, TheRightButtonKeepsARangeItHits)
{
    fill(10);
    grid.select(2, 4);
    Qt::MouseButton up = Qt::NoButton;
    int row = 0;
    grid.onMouseUp = [&](Qt::MouseButton button, const QPoint& position) {
        up = button;
        row = grid.rowAtPoint(position);
    };
    QPoint menu;
    grid.onContextMenu = [&](const QPoint& at) {
        EXPECT_EQ(up, Qt::RightButton) << "the row under the pointer is marked first";
        menu = grid.viewport()->mapFromGlobal(at);
    };
    QTest::mouseClick(grid.viewport(), Qt::RightButton, {}, middleOf(3, 2));
    EXPECT_EQ(row, 3);
    EXPECT_EQ(menu, middleOf(3, 2));
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.RowSel(), 4);
}

TEST_F(FlexGridTest, CopiedCellsAreTabbedAndHiddenColumnsLeftOut)
{
    fill(3);
    grid.setTextMatrix(2, 2, u"둘"_s);
    grid.setTextMatrix(2, 3, u"two"_s);
    grid.setTextMatrix(3, 2, u"셋"_s);
    grid.setTextMatrix(3, 3, u"three"_s);
    EXPECT_EQ(grid.selectionText(), QString());
    grid.setColHidden(0, true);
    grid.select(2, 3);
    EXPECT_EQ(grid.selectionText(), u"2\t둘\ttwo\r\n3\t셋\tthree"_s);
    int copies = 0;
    grid.onCopy = [&] { ++copies; };
    QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copies, 1);
}

TEST_F(FlexGridTest, CellsAreChosenOneByOneWhereAsked)
{
    fill(3);
    grid.setSelectionMode(GridSelection::Cells);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, middleOf(2, 2));
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.Col(), 2);
    EXPECT_EQ(grid.selectionText(), grid.TextMatrix(2, 2));
}

/// A grid of words as wide as their texts, with a label before each row.
class WordGridTest : public testing::Test
{
protected:
    WordGridTest()
    {
        grid.setFixedRows(0);
        grid.setCols(1);
        grid.setFixedCols(1);
        grid.setSelectionMode(GridSelection::Cells);
        grid.resize(300, 200);
        grid.show();
        fill({u"짧은"_s, u"훨씬 더 긴 낱말이라서 넓어야 하는 칸"_s, u"끝"_s});
    }

    void fill(const QStringList& words)
    {
        const RedrawHold hold(grid);
        grid.setRows(0);
        grid.setCols(static_cast<int>(words.size()) + 1);
        grid.AddItem(QStringList{u"본문"_s} + words);
        grid.AddItem(QStringList{u"표제어"_s} + words);
        grid.FitColumns();
        grid.AutoSize();
    }
    QString label(int row) { return grid.model()->headerData(row, Qt::Vertical).toString(); }
    QRect cell(int row, int col) { return grid.visualRect(grid.model()->index(row, col)); }

    FlexGrid grid;
};

TEST_F(WordGridTest, RowLabelsStandBesideTheCellsAndAreNeverChosen)
{
    EXPECT_EQ(label(0), u"본문"_s);
    EXPECT_EQ(label(1), u"표제어"_s);
    EXPECT_TRUE(grid.verticalHeader()->isVisible());
    EXPECT_TRUE(cell(0, 0).isEmpty());
    EXPECT_EQ(grid.TextMatrix(1, 0), u"표제어"_s);

    grid.setCell(0, 1);
    QTest::mouseClick(grid.verticalHeader()->viewport(), Qt::LeftButton, {},
                      {5, grid.verticalHeader()->sectionViewportPosition(1) + 3});
    QTest::keyClick(&grid, Qt::Key_Left);
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_EQ(grid.Col(), 1);
}

TEST_F(WordGridTest, ColumnsAreAsWideAsTheirWordsAndNoWordWraps)
{
    EXPECT_GT(cell(0, 2).width(), 3 * cell(0, 1).width());
    EXPECT_EQ(cell(0, 1).height(), cell(0, 2).height());
    EXPECT_LT(cell(0, 2).height(), 2 * grid.fontMetrics().height());

    const int narrow = cell(0, 1).width();
    CellStyle large;
    large.points = 3 * grid.font().pointSizeF();
    grid.setCellStyle(1, 1, large);
    grid.FitColumns();
    EXPECT_GT(cell(0, 1).width(), 2 * narrow);
    EXPECT_GT(cell(1, 1).height(), 2 * cell(0, 1).height());
}

TEST_F(WordGridTest, ACellOutOfViewIsBroughtIntoIt)
{
    fill(QStringList(40, u"긴 낱말"_s));
    grid.setCell(0, 40);
    grid.ShowCell(0, 40);
    EXPECT_TRUE(grid.viewport()->rect().contains(cell(0, 40)));
    grid.ShowCell(0, 1);
    EXPECT_TRUE(grid.viewport()->rect().contains(cell(0, 1)));

    grid.hide();
    grid.ShowCell(0, 40);
    grid.show();
    EXPECT_TRUE(grid.viewport()->rect().contains(cell(0, 40)));
}

TEST_F(FlexGridTest, AMergedRowSpansTheVersionColumns)
{
    fill(2);
    const QString heading = u"『"_s + verseText(1, 40) + u"』"_s;
    {
        const RedrawHold hold(grid);
        const int row = grid.AddItem({u""_s, u""_s, heading, u""_s});
        grid.setMergedRow(row, 2);
    }
    EXPECT_EQ(grid.columnSpan(2, 2), 2);
    RowHeights heights;
    const int both = grid.columnWidth(2) + grid.columnWidth(3) - 1;
    EXPECT_NEAR(grid.rowHeight(2), heights.cellHeight(heading, grid.font(), both), 1);
    fill(3);
    EXPECT_EQ(grid.columnSpan(2, 2), 1);
}

TEST_F(FlexGridTest, ACellsLookComesBeforeItsColumns)
{
    fill(2);
    grid.setColStyle(2, {.family = u"NanumMyeongjo"_s, .points = 12, .align = GridAlign::Right});
    grid.setCellStyle(2, 2, {.points = 20});
    const QModelIndex cell = grid.model()->index(1, 2);
    const auto font = cell.data(Qt::FontRole).value<QFont>();
    EXPECT_EQ(font.family(), u"NanumMyeongjo"_s);
    EXPECT_DOUBLE_EQ(font.pointSizeF(), 20);
    const auto above = grid.model()->index(0, 2).data(Qt::FontRole).value<QFont>();
    EXPECT_DOUBLE_EQ(above.pointSizeF(), 12);
    EXPECT_TRUE(cell.data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignRight);
    EXPECT_TRUE(grid.model()
                    ->headerData(2, Qt::Horizontal, Qt::TextAlignmentRole)
                    .value<Qt::Alignment>()
                    .testFlag(Qt::AlignHCenter));
}

TEST_F(FlexGridTest, GroundsAndFoundWordsArePainted)
{
    fill(4);
    grid.setBackColor(RGB(250, 240, 230));
    grid.setBackColorAlternate(RGB(200, 210, 220));
    grid.select(4, 4);
    const auto groundOf = [&](int row) {
        const QImage image = grid.viewport()->grab().toImage();
        const QRect cell = grid.visualRect(grid.model()->index(row - 1, 1));
        return image.pixelColor(cell.right() - 2, cell.bottom() - 2);
    };
    EXPECT_EQ(groundOf(1), QColor(250, 240, 230));
    EXPECT_EQ(groundOf(2), QColor(200, 210, 220));
    EXPECT_EQ(groundOf(4), grid.palette().color(QPalette::Highlight));

    const QImage before = grid.viewport()->grab().toImage();
    QList<int> askedRows;
    grid.highlight = [&](int row, int col, const QString& text) {
        askedRows << row;
        return row == 1 && col == 2 && text.size() > 3 ? QList{TextRange{0, 3}}
                                                       : QList<TextRange>();
    };
    const QImage after = grid.viewport()->grab().toImage();
    EXPECT_TRUE(askedRows.contains(1));
    EXPECT_FALSE(askedRows.contains(0));
    EXPECT_NE(before, after);
    const QRect other = grid.visualRect(grid.model()->index(1, 2));
    EXPECT_EQ(before.copy(other), after.copy(other));
}

TEST_F(FlexGridTest, TheUsersColumnWidthIsToldOnceItRests)
{
    fill(10);
    auto* timer = grid.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_TRUE(timer);
    timer->stop();
    int ends = 0;
    grid.onResizeEnded = [&] { ++ends; };
    grid.setColWidth(1, 700);
    EXPECT_FALSE(timer->isActive()); // code knows what it did
    const int before = grid.rowHeight(7);
    grid.horizontalHeader()->resizeSection(2, 60);
    EXPECT_TRUE(timer->isActive());
    timer->start(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(ends, 1);
    EXPECT_GT(grid.rowHeight(7), before);
}

} // namespace
} // namespace lumen
