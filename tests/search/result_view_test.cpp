// SPDX-License-Identifier: GPL-2.0-or-later
// What the window shows of a result and how it makes room: places, widths, divided lines.
#include "search/search_fixture.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QStatusBar>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class ResultViewTest : public SearchFixture
{
protected:
    FlexGrid& grid() { return *window->hflex결과; }
    void resizeTo(int width)
    {
        window->resize(width, 600);
        QCoreApplication::processEvents();
    }
    /// Leaves the first row, as a reader of the list does.
    void scrollDown()
    {
        grid().select(40, 40);
        grid().setTopRow(40);
        ASSERT_GT(grid().TopRow(), 1);
    }
    void expectFirstRow(const char* after)
    {
        SCOPED_TRACE(after);
        EXPECT_EQ(grid().TopRow(), 1);
        EXPECT_EQ(grid().Row(), 1);
    }
};

TEST_F(ResultViewTest, ANewPageAndANewSearchBeginAtTheirFirstRow)
{
    open();
    typeAndEnter(u"tx검색"_s, u"오백일절"_s);
    expectFirstRow("the first search");
    scrollDown();
    click(u"img이후"_s);
    expectFirstRow("another page");
    scrollDown();
    typeAndEnter(u"tx검색"_s, u"백절"_s);
    expectFirstRow("another search");
    click(u"img이후"_s);
    // Until the keys come to the rows, without a click on one of them.
    for (int step = 0; step < 20 && !grid().hasFocus(); ++step)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(reader.calls, (QStringList{u"0 2:1"_s, u"front"_s}));
}

TEST_F(ResultViewTest, HebrewIsDividedForTheWidthThatTheColumnHas)
{
    for (const int code : {301, 302}) {
        SCOPED_TRACE(code);
        window.reset();
        MadeBible bible;
        for (int verse = 1; verse <= 30; ++verse)
            bible << madeVerse(0, 1, verse, u"wlo mlwk aba "_s.repeated(20) + u"rsa"_s);
        writeVersion(test.folders.data(u"%1.dts"_s.arg(code)),
                     code == 301 ? u"BHS"_s : u"BHS 자음"_s, bible);
        open();
        window->atbar_event9(u"ID_대역본0-%1"_s.arg(code));
        box(u"tx검색"_s).setText(u"wlo"_s);
        click(u"cmd검색"_s);
        grid().select(21, 21);
        grid().setTopRow(20);
        for (const int width : {1000, 700}) {
            resizeTo(width);
            grid().onResizeEnded();
            const QStringList lines = texts().first().split(u"\r\n"_s);
            const QFontMetricsF metrics(
                grid().model()->index(0, 1).data(Qt::FontRole).value<QFont>());
            const double room = grid().columnWidth(1);
            ASSERT_GT(lines.size(), 1);
            EXPECT_TRUE(lines.first().endsWith(u"rsa"_s));
            for (const QString& line : lines)
                EXPECT_LT(metrics.horizontalAdvance(line), room);
            EXPECT_GT(metrics.horizontalAdvance(lines.first()), room / 2);
            EXPECT_EQ(grid().TopRow(), 20);
            EXPECT_EQ(grid().Row(), 21);
        }
    }
}

TEST_F(ResultViewTest, AResultStaysInItsVersionsLettersWhateverIsChosenSince)
{
    open();
    typeAndEnter(u"tx검색"_s, u"백절"_s);
    const auto letters = [this] {
        return grid().model()->index(0, 1).data(Qt::FontRole).value<QFont>().family();
    };
    const QString before = letters();
    window->atbar_event9(u"ID_대역본0-301"_s);
    click(u"img이후"_s);
    EXPECT_EQ(letters(), before);
    EXPECT_NE(before, box(u"tx검색"_s).font().family());
}

TEST_F(ResultViewTest, ALongListOfBooksIsCutInsteadOfWideningTheWindow)
{
    open();
    const int least = window->minimumSizeHint().width();
    QStringList books;
    for (int book = 0; book < 66; ++book)
        books << u"살전"_s;
    const QString scope = u"검색 대상: "_s + books.join(u',');
    window->statusPanel1->setText(scope);
    QCoreApplication::processEvents();
    EXPECT_EQ(window->minimumSizeHint().width(), least);
    EXPECT_TRUE(window->statusPanel1->shownText().endsWith(u'…'));
    EXPECT_EQ(panel(1), scope);

    const QPoint middle = window->statusPanel1->rect().center();
    QHelpEvent hover(QEvent::ToolTip, middle, window->statusPanel1->mapToGlobal(middle));
    QCoreApplication::sendEvent(window->statusPanel1, &hover);
    EXPECT_EQ(QToolTip::text().count(u"살전"_s), 66);
}

TEST_F(ResultViewTest, PowerBoxesKeepRoomForTwelveLettersInViewAtAnyWidth)
{
    open();
    control<TabControl>(u"sstSearch"_s).setTab(static_cast<int>(SearchTab::Power));
    const std::array<QLineEdit*, 3> boxes = window->power->boxes();
    const int heightOfTwoRows = window->power->height();
    for (const int width : {1100, 640}) {
        SCOPED_TRACE(width);
        resizeTo(width);
        ASSERT_EQ(window->width(), width);
        QCoreApplication::processEvents(); // the tab's new height
        for (const QLineEdit* box : boxes) {
            EXPECT_GE(box->width(), box->fontMetrics().horizontalAdvance(QString(12, u'가')));
            EXPECT_EQ(box->visibleRegion().boundingRect(), box->rect());
        }
        // Two rows in a narrow window, and no room lost to a second one in a wide one.
        EXPECT_EQ(window->power->height() < heightOfTwoRows, width == 1100);
        EXPECT_EQ(boxes[0]->mapTo(&*window, QPoint()).y() ==
                      boxes[2]->mapTo(&*window, QPoint()).y(),
                  width == 1100);
    }
}

} // namespace
} // namespace lumen
