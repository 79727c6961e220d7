// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/text/text_control.h"
#include "platform/controls/twips.h"

#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QMainWindow>
#include <QScrollBar>
#include <QShortcut>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TEST(WordAtTest, SpacesAndParagraphEndsAreTheBounds)
{
    const QString text = u"태초에 하나님이\n천지를  만드시니라."_s;
    struct Case
    {
        int position;
        const char16_t* word;
    };
    for (const Case& c :
         {Case{0, u"태초에"}, Case{2, u"태초에"}, Case{3, u"태초에"}, Case{4, u"하나님이"},
          Case{8, u"하나님이"}, Case{9, u"천지를"}, Case{13, u""}, Case{14, u"만드시니라."},
          Case{20, u"만드시니라."}, Case{21, u""}, Case{-1, u""}}) {
        SCOPED_TRACE(c.position);
        const TextRange word = wordAt(text, c.position);
        EXPECT_EQ(text.mid(word.start, word.length), QString::fromUtf16(c.word));
    }
}

class TextControlTest : public testing::Test
{
protected:
    TextControlTest()
    {
        view.resize(400, 300);
        view.show();
    }

    static std::unique_ptr<QTextDocument> verses(int count)
    {
        auto document = std::make_unique<QTextDocument>();
        QStringList lines;
        for (int verse = 1; verse <= count; ++verse)
            lines << u"%1 이 절은 시험을 위하여 지은 글이다."_s.arg(verse);
        document->setPlainText(lines.join(u'\n'));
        return document;
    }
    QPoint pointOf(int position)
    {
        QTextCursor cursor(view.document());
        cursor.setPosition(position);
        return view.cursorRect(cursor).center();
    }

    TextControl view;
};

TEST_F(TextControlTest, AnRtfDocumentIsShownWithOnePositionAParagraphEnd)
{
    view.LoadRtf("{\\rtf1\\ansi\\ansicpg949\\fs20 one\\par two\\par}");
    EXPECT_TRUE(view.Text().startsWith(u"one\ntwo"_s)) << view.Text().toStdString();
    view.select(4, 3);
    EXPECT_EQ(view.SelText(), u"two"_s);
}

TEST_F(TextControlTest, OnlyTheUsersSelectionIsTold)
{
    int changes = 0;
    view.onSelectionChange = [&] { ++changes; };
    view.takeDocument(verses(5));
    view.select(2, 3);
    EXPECT_EQ(changes, 0);
    QTest::keyClick(&view, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(view.SelLength(), 4);
    QTest::keyClick(&view, Qt::Key_Right);
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(view.SelLength(), 0);
}

TEST_F(TextControlTest, TheClickedWordIsSelected)
{
    view.setText(u"태초에 하나님이 천지를"_s);
    QList<Qt::MouseButton> buttons;
    view.onMouseUp = [&](Qt::MouseButton button, const QPoint&) { buttons << button; };
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, pointOf(6));
    view.SelectClickedWord();
    EXPECT_EQ(view.SelText(), u"하나님이"_s);
    QTest::mouseClick(view.viewport(), Qt::RightButton, {}, pointOf(6));
    EXPECT_EQ(view.SelText(), u"하나님이"_s) << "the menu is for the selection";
    QTest::mouseClick(view.viewport(), Qt::RightButton, {}, pointOf(10));
    EXPECT_EQ(view.SelStart(), 10) << "and outside it for what lies there";
    EXPECT_EQ(view.SelLength(), 0);
    view.SelectClickedWord();
    EXPECT_EQ(view.SelText(), u"천지를"_s);
    EXPECT_EQ(buttons, (QList{Qt::LeftButton, Qt::RightButton, Qt::RightButton}));
}

TEST_F(TextControlTest, APlaceFarDownScrollsToTheTop)
{
    view.takeDocument(verses(700));
    const int place = view.document()->findBlockByNumber(500).position();
    view.scrollToPosition(place);
    EXPECT_EQ(view.firstVisiblePosition(), place);
    view.takeDocument(verses(3));
    EXPECT_EQ(view.firstVisiblePosition(), 0);
}

TEST_F(TextControlTest, SpacingAndTabsHoldForDocumentsThatComeLater)
{
    view.takeDocument(verses(10));
    const qreal single = view.document()->size().height();
    view.setLineSpacing(200);
    view.setTabWidth(1440);
    EXPECT_NEAR(view.document()->size().height(), 2 * single, single * 0.15);
    view.takeDocument(verses(10));
    EXPECT_NEAR(view.document()->size().height(), 2 * single, single * 0.15);
    EXPECT_NEAR(view.document()->defaultTextOption().tabStopDistance(), toPixels(1440), 0.5);
    view.setLineSpacing(100);
    EXPECT_NEAR(view.document()->size().height(), single, 1);
}

TEST_F(TextControlTest, CopyGoesToItsHandlerAndTheWindowsKeysToTheWindow)
{
    QMainWindow window;
    auto* inside = new TextControl;
    window.setCentralWidget(inside);
    inside->setText(u"하나 둘 셋"_s);
    int copies = 0;
    int steps = 0;
    inside->onCopy = [&] { ++copies; };
    const QShortcut step(QKeySequence(u"Ctrl+Right"_s), &window, [&] { ++steps; });
    window.show();
    window.activateWindow();
    inside->setFocus();
    QCoreApplication::processEvents();
    QTest::keyClick(inside, Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(inside, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(copies, 1);
    EXPECT_EQ(steps, 1);
    EXPECT_EQ(inside->SelStart(), 0);
}

TEST_F(TextControlTest, AResizeIsToldOnceItRests)
{
    QCoreApplication::processEvents();
    auto* timer = view.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_TRUE(timer);
    timer->stop();
    int ends = 0;
    const int before = view.textWidth();
    view.onResizeEnded = [&] { ++ends; };
    view.resize(500, 300);
    view.resize(600, 300);
    EXPECT_EQ(ends, 0);
    EXPECT_TRUE(timer->isActive());
    timer->start(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(view.textWidth() - before, toTwips(200));
}

TEST_F(TextControlTest, TheFirstLineInViewStaysOverAResize)
{
    view.takeDocument(verses(200));
    QCoreApplication::processEvents();
    auto* timer = view.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_TRUE(timer);
    const int start = static_cast<int>(view.Text().indexOf(u"\n120 "_s)) + 1;
    view.scrollToPosition(start);
    view.resize(150, 300); // each verse breaks into several lines
    timer->start(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(view.firstVisiblePosition(), start);
}

TEST_F(TextControlTest, ATextThatComesBeforeTheFirstShowBeginsAtItsHead)
{
    TextControl hidden;
    hidden.takeDocument(verses(200));
    hidden.resize(30, 20);
    hidden.resize(400, 300);
    hidden.show();
    hidden.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly)->start(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(hidden.firstVisiblePosition(), 0);
}

TEST_F(TextControlTest, TheContextMenuAsksTheWindow)
{
    QPoint asked;
    view.onContextMenu = [&](const QPoint& position) { asked = position; };
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {10, 10}, {210, 310});
    QCoreApplication::sendEvent(view.viewport(), &event);
    EXPECT_EQ(asked, QPoint(210, 310));
}

} // namespace
} // namespace lumen
