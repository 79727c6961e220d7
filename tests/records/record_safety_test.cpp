// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/error.h"
#include "records/record_fixture.h"
#include "records/record_manager.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

/// Drafts and former states: what keeps text that no move has stored.
class RecordSafetyTest : public RecordFixture
{
protected:
    // The program is gone without a word, as after a power cut.
    void crash()
    {
        manager.reset();
        boxes = {};
    }
    bool hasDraftFile() const
    {
        return QFile::exists(services.folders.data(u"설교매니저.draft"_s));
    }
};

TEST_F(RecordSafetyTest, ADraftIsWrittenInAPauseAndAfterTwoSecondsAtTheLatest)
{
    open();
    make({u"하나"_s});
    const auto draftIsWritten = [this] {
        manager->writeDraftWhenDue();
        return hasDraftFile();
    };
    type(RecordPart::Body, u"ㄱ"_s);
    EXPECT_FALSE(draftIsWritten());
    wait(600);
    EXPECT_TRUE(draftIsWritten());
    manager->revert();
    manager->close();
    EXPECT_FALSE(hasDraftFile()) << "what was left as it was needs none";

    open();
    for (int typed = 0; typed < 18; ++typed) {
        EXPECT_FALSE(hasDraftFile()) << typed;
        type(RecordPart::Body, QString(typed + 1, u'ㄱ'));
        wait(100);
        manager->writeDraftWhenDue();
    }
    EXPECT_TRUE(hasDraftFile()) << "who types without a pause is drafted all the same";
}

TEST_F(RecordSafetyTest, UnsavedTextOfACrashIsOfferedAndStoredOnlyWhenTaken)
{
    open();
    make({u"하나"_s, u"둘"_s, u"셋"_s});
    move(RecordMove::Previous);
    type(RecordPart::Body, u"오후 내내 쓴 글"_s);
    boxes.categoryText = u"금요철야"_s;
    manager->changed(RecordPart::Category);
    boxes.preached = QDate(2003, 5, 9);
    manager->changed(RecordPart::PreachedDay);
    manager->writeDraft();
    manager->writeDraft();
    crash();

    open();
    ASSERT_TRUE(manager->offeredDraft());
    EXPECT_EQ(manager->offeredDraft()->key, 2);
    EXPECT_EQ(manager->offeredDraft()->when.time(), QTime(9, 30));
    EXPECT_EQ(manager->offeredDraft()->parts.size(), 3U) << "a draft takes the former one's place";
    EXPECT_TRUE(column(u"본문"_s)[1].isNull()) << "the stored record is not touched";
    manager->takeDraft();
    show();
    EXPECT_EQ(title(), u"둘");
    EXPECT_EQ(boxes.plain[2], u"오후 내내 쓴 글");
    crash();

    open();
    ASSERT_TRUE(manager->offeredDraft()) << "taken, but not stored before the next crash";
    manager->takeDraft();
    show();
    move(RecordMove::Next);
    EXPECT_EQ(column(u"본문"_s)[1], u"오후 내내 쓴 글"_s);
    EXPECT_EQ(column(u"분류"_s)[1], u"금요철야"_s);
    EXPECT_EQ(column(u"설교일"_s)[1].toDouble(), 37750);
    crash();

    open();
    EXPECT_FALSE(manager->offeredDraft());
    type(RecordPart::Body, u"버릴 글"_s);
    manager->writeDraft();
    crash();
    open();
    manager->dropDraft();
    EXPECT_FALSE(manager->offeredDraft());
    manager->close();
    EXPECT_FALSE(hasDraftFile());
}

TEST_F(RecordSafetyTest, TheDraftOfARecordThatIsGoneBecomesANewRecord)
{
    open();
    make({u"하나"_s, u"둘"_s});
    type(RecordPart::Title, u"둘째 설교"_s);
    manager->writeDraft();
    const int key = manager->values().key;
    crash();
    services.jet.OpenDatabase(u"C:\\lumenscript\\Data\\설교매니저.mdb"_s)
        ->Execute(u"delete * from 설교 where 일련번호 = %1"_s.arg(key));
    open();
    manager->takeDraft();
    show();
    EXPECT_EQ(title(), u"둘째 설교");
    EXPECT_EQ(manager->save(), SaveOutcome::Stored);
    EXPECT_EQ(column(u"제목"_s), (QVariantList{u"하나"_s, u"둘째 설교"_s}));
    crash();
    open();
    EXPECT_FALSE(manager->offeredDraft());
}

TEST_F(RecordSafetyTest, ADamagedDraftIsPutAsideAndTheNextOneIsKept)
{
    open();
    make({u"하나"_s});
    crash();
    const QString path = u"C:\\lumenscript\\Data\\설교매니저.draft"_s;
    ASSERT_TRUE(services.files.writeAll(path, "no database"));
    open();
    EXPECT_FALSE(manager->offeredDraft());
    EXPECT_TRUE(services.files.FileExists(path + u".damaged"_s));
    type(RecordPart::Body, u"새 글"_s);
    manager->writeDraft();
    crash();
    open();
    EXPECT_TRUE(manager->offeredDraft());
}

TEST_F(RecordSafetyTest, ADraftThatCantBeWrittenIsToldOnceAndLeavesTheTextToBeStored)
{
    open();
    make({u"하나"_s});
    int told = 0;
    manager->onDraftFailed = [&told](const JetError&) { ++told; };
    QDir().mkpath(services.folders.data(u"설교매니저.draft"_s)); // a folder is in the way
    type(RecordPart::Body, u"글"_s);
    manager->writeDraft();
    type(RecordPart::Body, u"글이"_s);
    manager->writeDraft();
    EXPECT_EQ(told, 1);
    EXPECT_EQ(manager->save(), SaveOutcome::Stored);
    EXPECT_EQ(column(u"본문"_s), QVariantList{u"글이"_s});
}

TEST_F(RecordSafetyTest, FormerStatesStandTenMinutesApartAndTwentyAreKept)
{
    open();
    make({u"하나"_s});
    const auto write = [this](const QString& text) {
        type(RecordPart::Body, text);
        ASSERT_EQ(manager->save(), SaveOutcome::Stored);
    };
    wait(11 * 60000);
    write(u"판 0"_s);
    const std::size_t before = manager->formerStates().size();
    wait(9 * 60000);
    write(u"판 0 고침"_s);
    EXPECT_EQ(manager->formerStates().size(), before) << "too young to be a state of its own";
    for (int i = 1; i <= 25; ++i) {
        wait(11 * 60000);
        write(u"판 %1"_s.arg(i));
    }
    const auto states = manager->formerStates();
    ASSERT_EQ(states.size(), 20U);
    EXPECT_EQ(states.front().when,
              QDateTime(services.clock.time.date(), services.clock.time.time(), Qt::UTC));
    EXPECT_EQ(manager->bringBack(states.front()), SaveOutcome::Stored);
    show();
    EXPECT_EQ(boxes.plain[2], u"판 24") << "as it was before the last change";
    EXPECT_EQ(column(u"본문"_s), (QVariantList{u"판 25"_s, u"판 24"_s}));
    EXPECT_EQ(manager->values().key, 2);
    move(RecordMove::First);
    EXPECT_EQ(manager->bringBack(states.back()), SaveOutcome::Stored);
    show();
    EXPECT_EQ(boxes.plain[2], u"판 5");
}

TEST_F(RecordSafetyTest, ADeletedRecordComesBackWithinThirtyDaysWithItsUnsavedText)
{
    open();
    make({u"하나"_s, u"둘"_s, u"셋"_s});
    type(RecordPart::Body, u"아직 저장되지 않은 글"_s);
    manager->writeDraft();
    manager->remove();
    show();
    manager->remove();
    show();
    EXPECT_EQ(title(), u"하나");
    auto deleted = manager->deletedRecords();
    ASSERT_EQ(deleted.size(), 2U);
    EXPECT_EQ(deleted[1].title, u"셋");
    EXPECT_EQ(manager->bringBack(deleted[1]), SaveOutcome::Stored);
    show();
    EXPECT_EQ(title(), u"셋");
    EXPECT_EQ(boxes.plain[2], u"아직 저장되지 않은 글");
    EXPECT_EQ(column(u"일련번호"_s), (QVariantList{1, 4})) << "numbers are not given twice";
    manager->close();

    services.clock.time = services.clock.time.addDays(29);
    open();
    EXPECT_FALSE(manager->offeredDraft());
    EXPECT_EQ(manager->deletedRecords().size(), 1U);
    manager->close();
    services.clock.time = services.clock.time.addDays(2);
    open();
    EXPECT_TRUE(manager->deletedRecords().empty());
}

} // namespace
} // namespace lumen
