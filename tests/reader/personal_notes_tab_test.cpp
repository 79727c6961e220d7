// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/check_data.h"
#include "data/data_store.h"
#include "panel/reference_panel.h"
#include "platform/jet/data_control.h"
#include "reader/personal_notes_tab.h"
#include "support/active_window.h"
#include "support/fake_reader.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <QTest>

#include <ostream>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

constexpr int kGenesis = 0;
constexpr int kJohn = 42;

class PersonalNotesTabTest : public testing::Test
{
protected:
    PersonalNotesTabTest()
    {
        EXPECT_TRUE(createUserDatabases(world.state.AppPath, world.files, world.drives,
                                        world.clock.now().date()));
        CheckData(world.state, world.files, world.jet);
        auto made =
            std::make_unique<PersonalNotesTab>(world.services, world.state, reader, dacPersnote);
        tab = made.get();
        panel.addTab(std::move(made));
        panel.resize(900, 300);
        showActive(panel);
        panel.sst관주사전->selectCaption(u"개인주석"_s);
    }

    static void click(QWidget* button) { QTest::mouseClick(button, Qt::LeftButton); }
    /// As the reader does it: notes first, then the place.
    void goTo(int book, int chapter, const QString& range = u"1"_s)
    {
        panel.leave();
        reader.bookNumber = book;
        reader.chapterNumber = chapter;
        reader.range = range;
        panel.showPlace();
    }
    void openAt(int book, int chapter, const QString& range = u"1"_s)
    {
        goTo(book, chapter, range);
        expand();
    }
    void expand()
    {
        panel.toggle();
        QCoreApplication::processEvents(); // lays the page out
    }
    void addNote(const QString& range, const QString& text)
    {
        tab->tx개인주석절범위->setText(range);
        click(tab->cmd개인주석추가);
        tab->tx개인주석본문->insertPlainText(text);
    }
    /// What the table holds, by a second pair of eyes.
    QStringList stored(const QString& chapter)
    {
        DataControl other(world.jet);
        QStringList lines;
        for (const Note& note : PersonalNotes(other, kDatabase).load(chapter))
            lines << note.place + u'=' + note.text;
        return lines;
    }
    QStringList shown() const
    {
        QStringList lines;
        for (int row = 0; row < tab->flex개인주석목록->Rows(); ++row)
            lines << tab->flex개인주석목록->TextMatrix(row, 0) + u'=' +
                         tab->flex개인주석목록->TextMatrix(row, 1);
        return lines;
    }
    bool isGreyed() const
    {
        return !tab->tx개인주석본문->isEnabled() &&
               tab->tx개인주석본문->palette().color(QPalette::Base) == QColor(200, 200, 200);
    }

    const QString kDatabase = u"C:\\lumenscript\\Data\\myc.mdb"_s;
    TestServices world;
    FakeReader reader;
    DataControl dacPersnote{world.jet};
    ReferencePanel panel{world.services};
    PersonalNotesTab* tab = nullptr;
};

TEST_F(PersonalNotesTabTest, AChapterWithoutNotesHasAGreyBox)
{
    openAt(kJohn, 3, u"16-18"_s);
    EXPECT_EQ(tab->lbl개인주석책장->text(), u"요3:"_s);
    EXPECT_EQ(tab->tx개인주석절범위->text(), u"16-18"_s);
    EXPECT_EQ(shown(), QStringList());
    EXPECT_TRUE(isGreyed());
    EXPECT_TRUE(tab->flex개인주석목록->ColHidden(1));
}

TEST_F(PersonalNotesTabTest, ANoteIsThereAgainAfterTheChapterWasLeft)
{
    openAt(kJohn, 3, u"16"_s);
    click(tab->cmd개인주석추가);
    EXPECT_FALSE(isGreyed());
    EXPECT_TRUE(tab->tx개인주석본문->hasFocus());
    QTest::keyClicks(tab->tx개인주석본문, u"love"_s);
    QTest::keyClick(tab->tx개인주석본문, Qt::Key_Return);
    tab->tx개인주석본문->insertPlainText(u"둘째 줄"_s);
    EXPECT_EQ(shown(), QStringList{u"요3:16=love\r\n둘째 줄"_s});

    goTo(kGenesis, 1);
    EXPECT_EQ(stored(u"요3:"_s), QStringList{u"요3:16=love\r\n둘째 줄"_s});
    EXPECT_EQ(shown(), QStringList());
    EXPECT_TRUE(isGreyed());

    goTo(kJohn, 3);
    EXPECT_EQ(shown(), QStringList{u"요3:16=love\r\n둘째 줄"_s});
    EXPECT_EQ(tab->tx개인주석본문->toPlainText(), u"love\n둘째 줄"_s);
}

TEST_F(PersonalNotesTabTest, APauseInTypingSavesUnlessThatWouldDropNotes)
{
    const auto pause = [this] {
        auto* const timer = tab->page()->findChild<QTimer*>(u"TypingPause"_s);
        ASSERT_NE(timer, nullptr);
        ASSERT_TRUE(timer->isActive());
        timer->start(0);
        QCoreApplication::processEvents();
    };
    openAt(kJohn, 3);
    addNote(u"1"_s, u"one"_s);
    pause();
    EXPECT_EQ(stored(u"요3:"_s), QStringList{u"요3:1=one"_s});
    addNote(u"2"_s, u"two"_s);
    pause();
    tab->flex개인주석목록->setRow(0);
    tab->flex개인주석목록->onSelChange();
    tab->tx개인주석본문->clear();
    pause();
    EXPECT_EQ(stored(u"요3:"_s), (QStringList{u"요3:1=one"_s, u"요3:2=two"_s}))
        << "an empty note would drop the second one";
}

TEST_F(PersonalNotesTabTest, NotesAreSavedOnEveryWayOut)
{
    openAt(kJohn, 3);
    addNote(u"1"_s, u"탭"_s);
    panel.sst관주사전->selectCaption(u"찬송가"_s);
    EXPECT_EQ(stored(u"요3:"_s), QStringList{u"요3:1=탭"_s}) << "another tab";

    panel.sst관주사전->selectCaption(u"개인주석"_s);
    addNote(u"2"_s, u"접기"_s);
    panel.toggle();
    EXPECT_EQ(stored(u"요3:"_s).size(), 2) << "collapsed";

    expand();
    addNote(u"3"_s, u"작게"_s);
    bool minimized = false;
    tab->windowIsMinimized = [&minimized] { return minimized; };
    panel.leave();
    minimized = true;
    EXPECT_EQ(stored(u"요3:"_s).size(), 3) << "before it counts as minimised";
}

TEST_F(PersonalNotesTabTest, NothingIsSavedWhileMinimised)
{
    openAt(kJohn, 3);
    addNote(u"1"_s, u"글"_s);
    bool minimized = true;
    tab->windowIsMinimized = [&minimized] { return minimized; };
    panel.leave();
    EXPECT_EQ(stored(u"요3:"_s), QStringList());
    minimized = false;
    panel.leave();
    EXPECT_EQ(stored(u"요3:"_s), QStringList{u"요3:1=글"_s});
}

TEST_F(PersonalNotesTabTest, APlaceTakesOneNote)
{
    openAt(kJohn, 3, u"16"_s);
    addNote(u"16"_s, u"글"_s);
    world.messages.expect(u"추가 불능"_s, u"동일한 장절에 대한 개인 주석이 이미 존재합니다."_s, 48);
    tab->tx개인주석절범위->setText(u" 16 "_s);
    click(tab->cmd개인주석추가);
    EXPECT_EQ(shown(), QStringList{u"요3:16=글"_s});
}

TEST_F(PersonalNotesTabTest, DeletingAsksAndSelectsWhatTookThePlace)
{
    openAt(kJohn, 3);
    for (const QString& range : {u"1"_s, u"2"_s, u"3"_s})
        addNote(range, u"글"_s + range);
    QTest::mouseClick(tab->flex개인주석목록->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(tab->tx개인주석본문->toPlainText(), u"글1"_s);

    const QString question = u"현재의 개인 주석을 삭제하시겠습니까?"_s;
    world.messages.expect(u"삭제 확인"_s, question, 49, Answer::Cancel);
    click(tab->cmd개인주석삭제);
    EXPECT_EQ(shown().size(), 3);
    world.messages.expect(u"삭제 확인"_s, question, 49, Answer::Ok);
    click(tab->cmd개인주석삭제);
    EXPECT_EQ(tab->tx개인주석본문->toPlainText(), u"글2"_s);
    EXPECT_EQ(tab->flex개인주석목록->Row(), 0);
    EXPECT_EQ(stored(u"요3:"_s), QStringList()) << "the table changes at the next save only";

    tab->flex개인주석목록->setFocus();
    for (int left = 2; left > 0; --left) {
        world.messages.expect(u"삭제 확인"_s, question, 49, Answer::Ok);
        QTest::keyClick(tab->flex개인주석목록, Qt::Key_Delete);
    }
    EXPECT_TRUE(isGreyed());
    click(tab->cmd개인주석삭제); // nothing left: no question
}

TEST_F(PersonalNotesTabTest, MovingANoteIsTheOrderOfTheNextSave)
{
    openAt(kJohn, 3);
    for (const QString& range : {u"1"_s, u"2"_s, u"3"_s})
        addNote(range, u"글"_s + range);
    click(tab->cmd개인주석아래로); // the last one stays
    click(tab->cmd개인주석위로);
    click(tab->cmd개인주석위로);
    click(tab->cmd개인주석위로); // at the top
    EXPECT_EQ(tab->flex개인주석목록->Row(), 0);
    EXPECT_EQ(tab->tx개인주석본문->toPlainText(), u"글3"_s);
    panel.leave();
    EXPECT_EQ(stored(u"요3:"_s), (QStringList{u"요3:3=글3"_s, u"요3:1=글1"_s, u"요3:2=글2"_s}));
}

TEST_F(PersonalNotesTabTest, ANoteWithoutTextDropsThoseBehindIt)
{
    openAt(kJohn, 3);
    addNote(u"1"_s, u"하나"_s);
    addNote(u"2"_s, QString());
    addNote(u"3"_s, u"셋"_s);
    goTo(kJohn, 4);
    EXPECT_EQ(stored(u"요3:"_s), QStringList{u"요3:1=하나"_s});
}

TEST_F(PersonalNotesTabTest, TheSameChapterKeepsWhatIsBeingWritten)
{
    openAt(kJohn, 3, u"1"_s);
    addNote(u"1"_s, u"아직"_s);
    reader.range = u"5-7"_s;
    panel.showSelection();
    EXPECT_EQ(tab->tx개인주석절범위->text(), u"5-7"_s);
    panel.showPlace();
    EXPECT_EQ(shown(), QStringList{u"요3:1=아직"_s});
    EXPECT_EQ(stored(u"요3:"_s), QStringList());
}

TEST_F(PersonalNotesTabTest, ASelectionDuringAFillLeavesTheLabelsAlone)
{
    openAt(kJohn, 3, u"16"_s);
    reader.chapterNumber = 4;
    reader.range = u"1"_s;
    panel.showSelection();
    EXPECT_EQ(tab->lbl개인주석책장->text(), u"요3:"_s);
    EXPECT_EQ(tab->tx개인주석절범위->text(), u"16"_s);
}

TEST_F(PersonalNotesTabTest, WithoutTheDatabaseTheTabIsDead)
{
    world.state.installed.myc = false;
    openAt(kJohn, 3);
    EXPECT_FALSE(tab->cmd개인주석추가->isEnabled());
    EXPECT_EQ(tab->lbl개인주석책장->text(), QString());
}

} // namespace
} // namespace lumen
