// SPDX-License-Identifier: GPL-2.0-or-later
#include "print/preview_window.h"
#include "search/search_fixture.h"
#include "text/original/original_unicode.h"
#include "text/rtf/rtf_reader.h"

#include <QSet>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class SearchResultsTest : public SearchFixture
{
protected:
    /// Presses the left button twice on a cell, as a user does.
    void doubleClick(int row)
    {
        FlexGrid& grid = *window->hflex결과;
        const QRect cell = grid.visualRect(grid.model()->index(row - 1, 1));
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cell.center());
        QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, cell.center());
    }

    QImage painted() { return window->hflex결과->viewport()->grab().toImage(); }
};

TEST_F(SearchResultsTest, PagesGoRoundAndAFullLastOneIsFollowedByAnEmptyOne)
{
    open();
    typeAndEnter(u"tx검색"_s, u"백절"_s);
    EXPECT_EQ(panel(2), u"100개 검색"_s);
    ComboBox& pages = combo(u"cb페이지"_s);
    ASSERT_EQ(pages.ListCount(), 3);
    EXPECT_EQ(pages.List(2), u" 101 ~  150"_s);
    EXPECT_TRUE(control<QWidget>(u"pbxPageMover"_s).isVisible());
    EXPECT_EQ(references().size(), 50);
    click(u"img이전"_s);
    EXPECT_EQ(pages.ListIndex(), 2);
    EXPECT_EQ(references(), QStringList());
    click(u"img이후"_s);
    EXPECT_EQ(references().first(), u"창1:1"_s);
    QTest::keyClick(&*window, Qt::Key_PageDown, Qt::AltModifier);
    EXPECT_EQ(references().first(), u"창2:1"_s);
    EXPECT_EQ(combo(u"cbPPage"_s).ListIndex(), 1);

    // The words "오십 오십일" stand side by side in fifty verses, which is one page.
    for (const QString& word : {u"오십 오십일"_s, u"없는말"_s}) {
        typeAndEnter(u"tx검색"_s, word);
        EXPECT_EQ(references().size(), word == u"없는말" ? 0 : 50);
        EXPECT_FALSE(control<QWidget>(u"pbxPageMover"_s).isVisible());
        EXPECT_FALSE(window->atbar.tool(u"ID_NextPage").enabled());
    }
    EXPECT_EQ(panel(2), u"0개 검색"_s);
}

TEST_F(SearchResultsTest, ADoubleClickAndEnterLeadToTheReader)
{
    open();
    typeAndEnter(u"tx검색"_s, u"백절"_s);
    doubleClick(2);
    EXPECT_EQ(reader.calls, (QStringList{u"0 1:2"_s, u"front"_s}));
    reader.calls.clear();
    window->hflex결과->setFocus();
    QTest::keyClick(window->hflex결과, Qt::Key_Down);
    QTest::keyClick(window->hflex결과, Qt::Key_Return);
    EXPECT_EQ(reader.calls, (QStringList{u"0 1:3"_s, u"front"_s}));
    reader.calls.clear();
    window->hflex결과->onDblClick(0, 1);
    EXPECT_EQ(reader.calls, QStringList());
    QTest::keyClick(&*window, Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(reader.calls, QStringList{u"front"_s});
}

TEST_F(SearchResultsTest, CopyingTakesTheSelectedRows)
{
    open();
    window->atbar_event9(u"ID_대역본0-201"_s);
    typeAndEnter(u"tx검색"_s, u"was"_s);
    window->hflex결과->setFocus();
    window->hflex결과->select(1, 2);
    QTest::keyClick(window->hflex결과, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(test.clipboard.content.plain,
              u"창1:1\tIn the beginning was grace, and grace it was\r\n창1:3\tAnd it was so"_s);
}

TEST_F(SearchResultsTest, FoundWordsAreMarkedWithoutChangingTextOrRowHeight)
{
    open();
    window->atbar_event9(u"ID_대역본0-201"_s);
    typeAndEnter(u"tx검색"_s, u"grace"_s);
    FlexGrid& grid = *window->hflex결과;
    const QString text = grid.TextMatrix(1, 1);
    const int height = grid.rowHeight(0);
    const QImage marked = painted();
    EXPECT_EQ(grid.highlight(1, 1, text), (QList<TextRange>{{21, 5}, {32, 5}}));
    EXPECT_EQ(grid.highlight(1, 0, u"grace"_s), QList<TextRange>());

    EXPECT_TRUE(window->atbar.tool(u"ID_MarkHits").checked());
    window->atbar.tool(u"ID_MarkHits").action()->trigger();
    EXPECT_FALSE(window->atbar.tool(u"ID_MarkHits").checked());
    EXPECT_EQ(grid.highlight(1, 1, text), QList<TextRange>());
    EXPECT_NE(painted(), marked);
    EXPECT_EQ(grid.rowHeight(0), height);
    EXPECT_EQ(grid.TextMatrix(1, 1), text);
}

TEST_F(SearchResultsTest, LongHebrewVersesAreDividedButCopiedWhole)
{
    QString verse;
    for (int word = 0; word < 60; ++word)
        verse += u"word%1 "_s.arg(word);
    writeVersion(test.folders.data(u"301.dts"_s), u"BHS"_s,
                 {madeVerse(0, 1, 1, u"short word"_s), madeVerse(0, 1, 2, verse.trimmed())});
    open();
    QLineEdit& typed = box(u"tx검색"_s);
    EXPECT_FALSE(control<QPushButton>(u"cmdKeyboard"_s).isVisible());
    window->atbar_event9(u"ID_대역본0-301"_s);
    EXPECT_TRUE(control<QPushButton>(u"cmdKeyboard"_s).isVisible());
    EXPECT_EQ(typed.font().family(), u"OrvaneHeb"_s);
    EXPECT_TRUE(typed.alignment().testFlag(Qt::AlignRight));
    typeAndEnter(u"tx검색"_s, u"drow"_s);
    EXPECT_EQ(typed.text(), u"word"_s);
    ASSERT_EQ(texts().size(), 2);
    // The end of the stored text is read first, so it stands first.
    EXPECT_TRUE(texts().last().section(u"\r\n"_s, 0, 0).endsWith(u"word59"_s));
    EXPECT_TRUE(texts().last().contains(u"\r\n"_s));
    EXPECT_EQ(texts().first(), u"short word"_s);
    // The shorter verse leaves the left of its row empty.
    FlexGrid& grid = *window->hflex결과;
    const QRect cell = grid.visualRect(grid.model()->index(0, 1));
    ASSERT_TRUE(grid.viewport()->rect().contains(cell));
    const QImage left = painted().copy(cell.left() + 2, cell.top() + 2, 60, cell.height() - 4);
    QImage blank(left.size(), left.format());
    blank.fill(left.pixelColor(0, 0));
    EXPECT_EQ(left, blank);

    // A copy has neither the lines of the screen nor the codes of the font.
    window->hflex결과->setFocus();
    window->hflex결과->select(2, 1);
    QTest::keyClick(window->hflex결과, Qt::Key_C, Qt::ControlModifier);
    const ClipboardContent& copy = test.clipboard.content;
    EXPECT_EQ(copy.plain, u"창1:1\t"_s + hebrewToUnicode(u"short word") + u"\r\n창1:2\t"_s +
                              hebrewToUnicode(verse.trimmed()));
    EXPECT_EQ(rtfToPlainText(copy.rtf).trimmed(), QString(copy.plain).remove(u'\r'));
    EXPECT_TRUE(copy.html.contains(u"dir=\"rtl\""));
}

TEST_F(SearchResultsTest, TheResultIsPrintedWholeOrAsTheSelectedRows)
{
    open();
    EXPECT_FALSE(window->atbar.tool(u"ID_인쇄"_s).action()->isEnabled());
    typeAndEnter(u"tx검색"_s, u"은혜"_s);
    control<FlexGrid>(u"hflex결과"_s).select(3, 2);
    const auto printed = [](const VSPrinter& vp) {
        QStringList texts;
        for (const PrintPage& page : vp.pages())
            for (const PageItem& item : page.items)
                if (const auto* const text = std::get_if<PageText>(&item))
                    texts << text->text;
        return texts;
    };
    test.modal.expect([&](QDialog& shown) {
        auto& preview = dynamic_cast<frm미리보기&>(shown);
        const QStringList texts = printed(preview.printer);
        EXPECT_EQ(texts.first(), u"개역한글 성서 검색 결과"_s);
        EXPECT_TRUE(texts.contains(u"검색 조건: 은혜 (검색 범위: 전체)"_s))
            << texts[3].toStdString();
        const QStringList all = plainScan(korean, u"은혜"_s);
        EXPECT_EQ(QSet<QString>(all.begin(), all.end()) - QSet<QString>(texts.begin(), texts.end()),
                  QSet<QString>());
        preview.Op선택->click();
        const QStringList part = printed(preview.printer);
        EXPECT_TRUE(part.contains(references()[1]));
        EXPECT_TRUE(part.contains(references()[2]));
        EXPECT_FALSE(part.contains(references()[0]));
        EXPECT_FALSE(part.contains(references()[3]));
    });
    window->atbar.tool(u"ID_인쇄"_s).action()->trigger();
    EXPECT_EQ(test.modal.shown, QStringList{u"frm미리보기"_s});
}

} // namespace
} // namespace lumen
