// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/reader_fixture.h"
#include "reader/reader_tools.h"

#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <QWheelEvent>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

/// Tools, keys, wheel and menus of the reader, and where the focus goes.
class ReaderToolsTest : public ReaderTest
{
protected:
    static void askForMenu(QAbstractScrollArea& view, QContextMenuEvent::Reason reason,
                           const QPoint& at)
    {
        if (reason == QContextMenuEvent::Mouse)
            QTest::mousePress(view.viewport(), Qt::RightButton, {}, at);
        QContextMenuEvent menu(reason, at, view.viewport()->mapToGlobal(at));
        QApplication::sendEvent(view.viewport(), &menu);
        if (reason == QContextMenuEvent::Mouse)
            QTest::mouseRelease(view.viewport(), Qt::RightButton, {}, at);
    }
    bool editMenuIsOpen()
    {
        QMenu& menu = *reader->atbar.menu(u"ID_편집");
        const bool open = menu.isVisible();
        menu.hide();
        return open;
    }
};

TEST_F(ReaderToolsTest, EveryToolHasAHandlerAndEveryHandlerATool)
{
    start();
    const ToolFaults faults =
        unpairedTools(reader->atbar.rows(), reader->toolClicks(), reader->toolCombos());
    EXPECT_EQ(faults.withoutHandler, QStringList());
    EXPECT_EQ(faults.withoutTool, QStringList());
}

TEST_F(ReaderToolsTest, KeysBringTheTabsOfThePanelOnShow)
{
    start();
    EXPECT_EQ(reader->panel->state(), PanelState::Collapsed);
    QTest::keyClick(reader->txCont, Qt::Key_7, Qt::AltModifier);
    EXPECT_EQ(reader->panel->state(), PanelState::Expanded);
    EXPECT_EQ(reader->panel->shownCaption(), u"개인주석"_s);
    EXPECT_TRUE(reader->atbar.tool(u"ID_Panel").checked());
    EXPECT_GT(reader->panel->x(), reader->txCont->width()) << "beside the text";
    QTest::keyClick(reader->txCont, Qt::Key_F8);
    EXPECT_EQ(reader->panel->state(), PanelState::Collapsed);
}

TEST_F(ReaderToolsTest, TheFocusGoesToTheTextWhenItsPlaceHasGone)
{
    start();
    quickMove(u"창 1:2"_s);
    EXPECT_EQ(reader->focusWidget(), reader->txCont) << "to read and copy there";
    QTest::keyClick(reader->txCont, Qt::Key_G, Qt::ControlModifier);
    EXPECT_EQ(reader->focusWidget(), reader->quickMove->tx즉석이동);
    QTest::keyClick(reader->quickMove->tx즉석이동, Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(reader->focusWidget(), reader->txCont);

    ComboBox& chapters = combo(u"ID_cb장");
    chapters.setFocus();
    QTest::keyClick(&chapters, Qt::Key_Down);
    EXPECT_EQ(reader->focusWidget(), &chapters) << "the next key may go further";
    QTest::keyClick(&chapters, Qt::Key_Space);
    QTest::keyClick(chapters.view(), Qt::Key_Return);
    EXPECT_EQ(reader->focusWidget(), reader->txCont);

    reader->bookmarks->lst책갈피->setFocus();
    click(u"ID_SidePane");
    EXPECT_EQ(reader->focusWidget(), reader->txCont);
    QTest::keyClick(reader->txCont, Qt::Key_7, Qt::AltModifier);
    reader->findChild<QLineEdit*>(u"tx개인주석절범위"_s)->setFocus();
    click(u"ID_Panel");
    EXPECT_EQ(reader->focusWidget(), reader->txCont);
}

TEST_F(ReaderToolsTest, CtrlAndWheelGoThroughTheSizesOfTheMenu)
{
    start();
    const auto turn = [](QAbstractScrollArea& view, int delta, int times) {
        for (; times > 0; --times) {
            QWheelEvent wheel({20, 20}, {20, 20}, {}, {0, delta}, Qt::NoButton, Qt::ControlModifier,
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(view.viewport(), &wheel);
        }
    };
    turn(*reader->txCont, 120, 1);
    EXPECT_TRUE(reader->atbar.tool(u"ID_글자크기4").checked());
    EXPECT_FALSE(reader->atbar.tool(u"ID_글자크기3").checked());
    turn(*reader->txCont, 60, 3); // half a notch each
    EXPECT_TRUE(reader->atbar.tool(u"ID_글자크기5").checked());
    click(u"ID_테이블형식");
    turn(*reader->hflex본문, -120, 6);
    EXPECT_TRUE(reader->atbar.tool(u"ID_글자크기1").checked());
}

TEST_F(ReaderToolsTest, TheMenuOfAViewActsOnTheVerseUnderThePointer)
{
    start();
    QTextCursor caret(reader->txCont->document()->find(TinyData::text(101, 0, 1, 3)));
    caret.setPosition(caret.anchor() + 2);
    askForMenu(*reader->txCont, QContextMenuEvent::Mouse,
               reader->txCont->cursorRect(caret).center());
    EXPECT_TRUE(editMenuIsOpen());
    EXPECT_EQ(place(), u"창세기 1장 3절"_s);

    click(u"ID_테이블형식");
    FlexGrid& grid = *reader->hflex본문;
    const QPoint second = grid.visualRect(grid.model()->index(2, 2)).center();
    askForMenu(grid, QContextMenuEvent::Mouse, second);
    EXPECT_TRUE(editMenuIsOpen());
    EXPECT_EQ(place(), u"창세기 1장 2절"_s);
    QCursor::setPos(reader->mapToGlobal(QPoint(5, 5)));
    askForMenu(grid, QContextMenuEvent::Keyboard, second);
    EXPECT_EQ(reader->atbar.menu(u"ID_편집")->y(), grid.viewport()->mapToGlobal(second).y());
    EXPECT_TRUE(editMenuIsOpen());
}

TEST_F(ReaderToolsTest, AViewOffersToCopyTheCurrentVerse)
{
    start();
    const auto offers = [this](QWidget& control) {
        control.setFocus();
        reader->atbar.menu(u"ID_편집")->popup(QPoint());
        const bool verse = reader->atbar.tool(u"ID_복사").enabled();
        EXPECT_EQ(reader->atbar.tool(u"ID_UnicodeCopy").enabled(), verse);
        reader->atbar.menu(u"ID_편집")->hide();
        return verse;
    };
    ASSERT_EQ(reader->txCont->SelLength(), 0);
    EXPECT_TRUE(offers(*reader->txCont));
    EXPECT_FALSE(offers(*reader->bookmarks->cmd책갈피추가));
}

TEST_F(ReaderToolsTest, KeysCopyTheCurrentVerseOfBothViews)
{
    start();
    pickVersion(u"ID_cb대역본3", 301);
    const auto press = [this](QWidget* view, Qt::KeyboardModifiers modifiers) {
        services.clipboard.set({});
        QTest::keyClick(view, Qt::Key_C, modifiers);
        return services.clipboard.plainText();
    };
    const QString first = u"1\t"_s + TinyData::text(101, 0, 1, 1) + u"\r\n1"_s;
    for (const QStringView view : {u"ID_텍스트형식", u"ID_테이블형식"}) {
        SCOPED_TRACE(view.toString().toStdString());
        click(view);
        QWidget* const shown =
            reader->txCont->isVisible() ? static_cast<QWidget*>(reader->txCont) : reader->hflex본문;
        const QString codes = press(shown, Qt::ControlModifier);
        const QString unicode = press(shown, Qt::ControlModifier | Qt::ShiftModifier);
        for (const QString& text : {codes, unicode}) {
            EXPECT_TRUE(text.startsWith(first)) << text.toStdString();
            EXPECT_TRUE(text.endsWith(u" (개역한글/BHS 창1:1)"_s)) << text.toStdString();
        }
        EXPECT_NE(codes, unicode);
    }
}

TEST_F(ReaderToolsTest, AllBooksStandOnTheirBarsInASmallWindow)
{
    start();
    reader->resize(800, 533);
    QApplication::processEvents();
    for (const int book : {0, 38, 39, 65}) {
        const QToolBar* const bar =
            reader->atbar.bar(book < 39 ? reader_bar::kMove1 : reader_bar::kMove2);
        QAction* const action = reader->atbar.tool(u"ID_%1"_s.arg(book)).action();
        EXPECT_TRUE(bar->widgetForAction(action)->isVisible()) << book;
    }
}

TEST_F(ReaderToolsTest, NoAccessKeyStandsForTwoThingsInView)
{
    start();
    const auto keysOf = [](const QList<QAction*>& actions) {
        QStringList keys;
        for (const QAction* action : actions)
            keys << QKeySequence::mnemonic(action->text()).toString();
        return keys;
    };
    const auto expectOnce = [](QStringList keys, const QString& where) {
        keys.removeAll(QString());
        EXPECT_EQ(keys.removeDuplicates(), 0) << (where + keys.join(u' ')).toStdString();
    };
    for (int tab = 0; tab < reader->panel->sst관주사전->count(); ++tab) {
        reader->panel->showTab(tab);
        QStringList keys = keysOf(reader->menuBar()->actions());
        for (const auto* button : reader->findChildren<QAbstractButton*>())
            if (button->isVisible() && qobject_cast<const QToolButton*>(button) == nullptr)
                keys << QKeySequence::mnemonic(button->text()).toString();
        expectOnce(keys, reader->panel->shownCaption());
    }
    for (const QMenu* menu : reader->findChildren<QMenu*>())
        expectOnce(keysOf(menu->actions()), menu->title());
}

TEST_F(ReaderToolsTest, PagesAndHelpGoToTheDesktopAndMissingOnesAreTold)
{
    start();
    click(u"ID_책별소개");
    EXPECT_EQ(services.shell.opened,
              QStringList{u"C:\\lumenscript\\data\\책별소개(현대인의 성경).htm"_s});
    click(u"ID_목차");
    EXPECT_EQ(services.help.asked, QStringList{u"Lumens_Intro.htm"_s});
    services.shell.failure = Failure{FailureKind::NotFound, {}};
    expectWarning(u"파일 없음"_s,
                  u"파일을 열 수 없습니다.\r\nC:\\lumenscript\\data\\역본설명.htm"_s);
    click(u"ID_역본설명");
    click(u"ID_검색");
    click(u"ID_환경설정");
    EXPECT_EQ(opener.opened, (std::vector{WindowId::Search, WindowId::Preferences}));
}

} // namespace
} // namespace lumen
