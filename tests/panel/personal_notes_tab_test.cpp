// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/check_data.h"
#include "data/data_store.h"
#include "jet/data_control.h"
#include "jet/engine.h"
#include "jet/error.h"
#include "panel/notes/personal_notes_tab.h"
#include "panel/reference_panel.h"
#include "platform/controls/text/typing_watch.h"
#include "support/active_window.h"
#include "support/fake_reader.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QInputMethodEvent>
#include <QTabBar>
#include <QTest>

#include <functional>
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
        auto made = std::make_unique<PersonalNotesTab>(PanelHost{.services = world.services,
                                                                 .state = world.state,
                                                                 .reader = reader,
                                                                 .dacRefTab = dacRefTab});
        tab = made.get();
        panel.addTab(std::move(made));
        panel.resize(900, 300);
        showActive(panel);
        panel.sst관주사전->selectCaption(u"개인주석"_s);
    }

    static void click(QWidget* button) { QTest::mouseClick(button, Qt::LeftButton); }
    void goTo(int book, int chapter, const QString& range = u"1"_s)
    {
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
    DataControl dacRefTab{world.jet};
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

TEST_F(PersonalNotesTabTest, APlaceTakesOneNote)
{
    openAt(kJohn, 3, u"16"_s);
    addNote(u"16"_s, u"글"_s);
    world.messages.expect(u"추가 불능"_s, u"동일한 장절에 대한 개인 주석이 이미 존재합니다."_s, 48);
    tab->tx개인주석절범위->setText(u" 16 "_s);
    QTest::keyClick(tab->tx개인주석절범위, Qt::Key_Return);
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

TEST_F(PersonalNotesTabTest, APauseInTypingSavesTheNotesWithText)
{
    openAt(kJohn, 3);
    addNote(u"1"_s, u"하나"_s);
    addNote(u"2"_s, QString());
    addNote(u"3"_s, u"셋"_s);
    auto* const timer = tab->page()->findChild<QTimer*>(u"TypingPause"_s);
    ASSERT_NE(timer, nullptr);
    ASSERT_TRUE(timer->isActive());
    timer->start(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(stored(u"요3:"_s), (QStringList{u"요3:1=하나"_s, u"요3:3=셋"_s}));
    EXPECT_EQ(shown().size(), 3) << "the empty one can still be written";

    // What can't be saved is told once, not at every pause.
    const auto database = world.jet.OpenDatabase(kDatabase);
    world.messages.expect(u"Lumenscript"_s, u"인수가 올바르지 않습니다.\nBeginTrans"_s, 16);
    for (int pause = 0; pause < 2; ++pause) {
        tab->tx개인주석본문->insertPlainText(u"째"_s);
        database->BeginTrans(); // the save can't begin its own
        timer->start(0);
        QCoreApplication::processEvents();
        if (pause == 1)
            database->Rollback();
    }
    panel.leave();
    EXPECT_EQ(stored(u"요3:"_s).last(), u"요3:3=셋째째"_s);
}

TEST_F(PersonalNotesTabTest, AChapterThatIsOnlyLookedAtStaysAsItIs)
{
    // As older versions of the program have left them.
    {
        const auto database = world.jet.OpenDatabase(kDatabase);
        const auto rows = database->OpenRecordset(u"select * from myc"_s);
        int sequence = 0;
        for (const Note& note : {Note{u"요3:1"_s, u""_s}, Note{u"요3:2"_s, u"둘"_s}}) {
            rows->AddNew();
            rows->Fields(u"seq").setValue(sequence++);
            rows->Fields(u"Index").setValue(note.place);
            rows->Fields(u"note").setValue(note.text);
            rows->Update();
        }
    }
    openAt(kJohn, 3);
    goTo(kJohn, 4);
    EXPECT_EQ(stored(u"요3:"_s), (QStringList{u"요3:1="_s, u"요3:2=둘"_s}));
}

TEST_F(PersonalNotesTabTest, AnotherTabOrACollapseSavesAlsoTheSyllableUnderComposition)
{
    const TypingWatch typing(*QCoreApplication::instance());
    QTabBar& headers = *panel.sst관주사전->tabBar();
    for (const int header : {0, headers.currentIndex()}) {
        SCOPED_TRACE(header);
        panel.sst관주사전->selectCaption(u"개인주석"_s);
        openAt(kJohn, 3);
        addNote(QString::number(header), u"사"_s);
        QInputMethodEvent syllable(u"랑"_s, {});
        QCoreApplication::sendEvent(tab->tx개인주석본문, &syllable);
        QTest::mouseClick(&headers, Qt::LeftButton, {}, headers.tabRect(header).center());
        EXPECT_EQ(stored(u"요3:"_s).last(), u"요3:%1=사랑"_s.arg(header));
        if (panel.state() == PanelState::Expanded)
            panel.toggle();
    }
}

TEST_F(PersonalNotesTabTest, NotesThatCannotBeReadAreToldOnceAndLeaveTheFormerChapterWhole)
{
    openAt(kJohn, 3, u"16"_s);
    addNote(u"16"_s, u"글"_s);
    panel.leave();
    tab->dacPersnote.Close();
    QFile file(world.folders.data(u"myc.mdb"_s));
    ASSERT_TRUE(file.rename(file.fileName() + u".away"_s));
    EXPECT_THROW(goTo(kJohn, 4), JetError);
    goTo(kJohn, 5); // the same cause
    EXPECT_EQ(tab->lbl개인주석책장->text(), u"요3:"_s);
    EXPECT_EQ(shown(), QStringList{u"요3:16=글"_s});
    EXPECT_EQ(tab->tx개인주석본문->toPlainText(), u"글"_s);
    world.messages.expect(
        u"Lumenscript"_s,
        u"데이터베이스 파일을 찾을 수 없습니다.\n"_s + world.folders.data(u"myc.mdb"_s), 16);
    click(tab->cmd개인주석추가);

    ASSERT_TRUE(file.rename(world.folders.data(u"myc.mdb"_s)));
    click(tab->cmd개인주석추가);
    EXPECT_EQ(shown(), QStringList{u"요5:1="_s}) << "in the chapter that is read";
}

TEST_F(PersonalNotesTabTest, NothingIsTypedIntoNotesThatCannotBeWritten)
{
    openAt(kJohn, 3);
    addNote(u"16"_s, u"글"_s);
    panel.leave();
    tab->dacPersnote.Close();
    tab->dacPersnote.ReadOnly = true;
    goTo(kJohn, 4);
    goTo(kJohn, 3);
    QTest::keyClick(tab->tx개인주석본문, Qt::Key_A);
    EXPECT_EQ(tab->tx개인주석본문->toPlainText(), u"글"_s);
    EXPECT_FALSE(tab->tx개인주석본문->toolTip().isEmpty());
    tab->flex개인주석목록->setFocus();
    QTest::keyClick(tab->flex개인주석목록, Qt::Key_Delete);
    EXPECT_FALSE(tab->cmd개인주석삭제->isEnabled());
    world.messages.expect(u"추가 불능"_s,
                          u"개인 주석 파일 Data\\myc.mdb가 읽기 전용으로 열려 있어 주석을 "
                          u"고치거나 추가할 수 없습니다."_s,
                          48);
    click(tab->cmd개인주석추가);
    EXPECT_EQ(shown(), QStringList{u"요3:16=글"_s});
    panel.leave(); // has nothing to store, and nothing to refuse
}

TEST_F(PersonalNotesTabTest, WithoutTheDatabaseAddingTellsWhatIsWrong)
{
    world.state.installed.myc = false;
    openAt(kJohn, 3);
    EXPECT_FALSE(tab->tx개인주석본문->isEnabled());
    world.messages.expect(
        u"추가 불능"_s,
        u"개인 주석 파일 Data\\myc.mdb가 없어 주석을 저장할 수 없습니다. Data 폴더에 쓸 "
        u"수 있는지 확인한 뒤 프로그램을 다시 시작하시기 바랍니다."_s,
        48);
    click(tab->cmd개인주석추가);
}

} // namespace
} // namespace lumen
