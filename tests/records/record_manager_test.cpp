// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/user_files.h"
#include "jet/error.h"
#include "records/record_fixture.h"
#include "records/record_manager.h"
#include "support/without_privileges.h"

#include <QFile>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

const QString kSermonFile = u"설교매니저.mdb"_s;

using RecordManagerTest = RecordFixture;

class QuietTimeManagerTest : public RecordFixture
{
protected:
    QuietTimeManagerTest() : RecordFixture(record_profile::kQuietTime) {}
};

// Another program at the same file.
class OtherProgram
{
public:
    explicit OtherProgram(const QString& path)
    {
        EXPECT_EQ(sqlite3_open(path.toUtf8().constData(), &m_handle), SQLITE_OK);
    }
    ~OtherProgram() { sqlite3_close(m_handle); }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    void run(const char* sql)
    {
        EXPECT_EQ(sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sql;
    }

private:
    sqlite3* m_handle = nullptr;
};

TEST_F(RecordManagerTest, MovesStoreAndWrapAtBothEnds)
{
    open();
    EXPECT_EQ(manager->positionText(), u"1/1");
    make({u"하나"_s, u"둘"_s, u"셋"_s});
    EXPECT_EQ(manager->positionText(), u"3/3");
    type(RecordPart::Body, u"셋째의 본문"_s);
    struct Step
    {
        RecordMove move;
        QString title;
    };
    for (const Step& step : {Step{RecordMove::Next, u"하나"_s},
                             {RecordMove::Previous, u"셋"_s},
                             {RecordMove::First, u"하나"_s},
                             {RecordMove::Next, u"둘"_s},
                             {RecordMove::Last, u"셋"_s},
                             {RecordMove::Previous, u"둘"_s}}) {
        move(step.move);
        EXPECT_EQ(title(), step.title);
    }
    EXPECT_EQ(column(u"본문"_s).last(), u"셋째의 본문"_s);
    EXPECT_EQ(column(u"rtf본문"_s).last(), u"{\\rtf1 셋째의 본문}"_s);
    EXPECT_EQ(column(u"분류"_s).last(), u"주일 낮"_s);
}

TEST_F(RecordManagerTest, WithoutATitleNothingMovesAndNothingIsMade)
{
    open();
    type(RecordPart::Body, u"제목이 아직 없다"_s);
    for (const RecordMove where : {RecordMove::First, RecordMove::Next, RecordMove::Last})
        EXPECT_EQ(manager->move(where), SaveOutcome::NoTitle);
    EXPECT_EQ(manager->addNew(), SaveOutcome::NoTitle);
    EXPECT_EQ(manager->save(), SaveOutcome::NoTitle);
    EXPECT_EQ(manager->count(), 1);
    EXPECT_TRUE(manager->isChanged());
    EXPECT_EQ(column(u"본문"_s), QVariantList{QVariant()});
}

TEST_F(RecordManagerTest, OnlyWhatWasChangedIsWritten)
{
    open();
    make({u"하나"_s, u"둘"_s});
    OtherProgram(services.folders.data(kSermonFile))
        .run("UPDATE 설교 SET rtf본문 = '{\\rtf1 \\unknown old}', 본문 = 'old', 설교일 = NULL, "
             "작성일 = 37742.75, 기도 = 'plain alone' WHERE 일련번호 = 1");
    move(RecordMove::First);
    EXPECT_EQ(manager->values().preached, std::nullopt);
    EXPECT_EQ(manager->values().written, QDate(2003, 5, 1));
    EXPECT_EQ(manager->values().rtf[3], std::nullopt) << "the plain column is not what is shown";
    boxes.formatted[2] = u"{\\rtf1 as a box would write it}"_s;
    type(RecordPart::Summary, u"요약"_s);
    move(RecordMove::Next);
    EXPECT_EQ(column(u"rtf본문"_s).first(), u"{\\rtf1 \\unknown old}"_s);
    EXPECT_EQ(column(u"기도"_s).first(), u"plain alone"_s);
    EXPECT_TRUE(column(u"설교일"_s).first().isNull()) << "the picker's day is not the record's";
    EXPECT_EQ(column(u"작성일"_s).first().toDouble(), 37742.75);
    EXPECT_EQ(column(u"요약"_s).first(), u"요약"_s);
}

TEST_F(RecordManagerTest, ALongTitleIsWholeInItsRtfAlone)
{
    open();
    make({QString(200, u'가')});
    EXPECT_EQ(column(u"제목"_s).first().toString().size(), 130);
    EXPECT_EQ(column(u"rtf제목"_s).first().toString().size(), 200 + 8);
}

TEST_F(RecordManagerTest, DeletingGoesToTheNextOneAndLeavesTheLast)
{
    open();
    make({u"하나"_s, u"둘"_s, u"셋"_s});
    move(RecordMove::First);
    ASSERT_TRUE(manager->canRemove());
    manager->remove();
    show();
    EXPECT_EQ(title(), u"둘");
    move(RecordMove::Last);
    manager->remove();
    show();
    EXPECT_EQ(title(), u"둘");
    EXPECT_EQ(manager->positionText(), u"1/1");
    EXPECT_FALSE(manager->canRemove());
}

TEST_F(RecordManagerTest, AFailedWriteKeepsTheUserOnTheRecordWithTheText)
{
    open();
    make({u"하나"_s, u"둘"_s});
    type(RecordPart::Body, u"오후 내내 쓴 글"_s);
    {
        OtherProgram other(services.folders.data(kSermonFile));
        other.run("BEGIN EXCLUSIVE");
        EXPECT_THROW(ignoreFailure(Result<SaveOutcome>(manager->move(RecordMove::Next)), "thrown"),
                     JetError);
        EXPECT_THROW(manager->remove(), JetError);
        EXPECT_EQ(manager->positionText(), u"2/2");
        EXPECT_TRUE(manager->isChanged());
    }
    move(RecordMove::Next);
    EXPECT_EQ(column(u"본문"_s).last(), u"오후 내내 쓴 글"_s);
}

TEST_F(RecordManagerTest, RecordsThatAnotherProgramDeletesAreSkippedAndTypedTextIsKept)
{
    open();
    make({u"하나"_s, u"둘"_s, u"셋"_s, u"넷"_s});
    OtherProgram other(services.folders.data(kSermonFile));
    move(RecordMove::First);
    other.run("DELETE FROM 설교 WHERE 일련번호 = 2");
    move(RecordMove::Next);
    EXPECT_EQ(title(), u"셋");
    EXPECT_EQ(manager->positionText(), u"2/3") << "the count is exact again";
    other.run("DELETE FROM 설교 WHERE 일련번호 = 1");
    move(RecordMove::Previous);
    EXPECT_EQ(title(), u"넷") << "the list wraps over what is gone";

    type(RecordPart::Body, u"그 사이에 쓴 글"_s);
    other.run("DELETE FROM 설교 WHERE 일련번호 = 4");
    EXPECT_EQ(manager->move(RecordMove::First), SaveOutcome::RecordGone);
    EXPECT_TRUE(manager->isChanged());
    manager->saveAsNew();
    EXPECT_EQ(column(u"제목"_s), (QVariantList{u"셋"_s, u"넷"_s}));
    EXPECT_EQ(column(u"본문"_s).last(), u"그 사이에 쓴 글"_s);

    other.run("DELETE FROM 설교");
    show();
    move(RecordMove::Next);
    EXPECT_EQ(manager->positionText(), u"1/1") << "an empty table gets a record to begin from";
}

TEST_F(RecordManagerTest, GoingToAFoundRecordStoresWhatWasTyped)
{
    open();
    make({u"하나"_s, u"둘"_s, u"셋"_s});
    type(RecordPart::Prayer, u"기도문"_s);
    EXPECT_EQ(manager->goTo(1), SaveOutcome::Stored);
    show();
    EXPECT_EQ(title(), u"하나");
    EXPECT_EQ(manager->goTo(77), SaveOutcome::Stored);
    EXPECT_EQ(manager->values().key, 1);
    EXPECT_EQ(column(u"기도"_s).last(), u"기도문"_s);
    type(RecordPart::Title, {});
    EXPECT_EQ(manager->goTo(3), SaveOutcome::NoTitle);
    EXPECT_EQ(manager->values().key, 1);
}

TEST_F(RecordManagerTest, ShortCategoriesOfATakenOverFileDontKeepALongOneFromBeingStored)
{
    open();
    make({u"하나"_s});
    manager->close();
    OtherProgram(services.folders.data(kSermonFile))
        .run("ALTER TABLE 설교 DROP COLUMN 분류;"
             "ALTER TABLE 설교 ADD COLUMN 분류 TEXT(30);"
             "UPDATE 설교 SET 분류 = '수요예배'");
    open();
    EXPECT_EQ(manager->values().category, u"수요예배"_s);
    boxes.categoryText = QString(40, u'분');
    manager->changed(RecordPart::Category);
    EXPECT_EQ(manager->save(), SaveOutcome::Stored);
    EXPECT_EQ(column(u"분류"_s), QVariantList{QString(40, u'분')});
    EXPECT_EQ(manager->values().category, QString(40, u'분'));
}

TEST_F(RecordManagerTest, AReadOnlyFileIsReadAndRefusesToBeWritten)
{
    open();
    make({u"하나"_s, u"둘"_s});
    manager->close();
    constexpr QFile::Permissions kAllRead = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther |
                                            QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
    for (const QString& name : {services.folders.root(), services.folders.program(),
                                services.folders.data({}), services.folders.data(kSermonFile)})
        QFile::setPermissions(name, kAllRead);
    {
        const WithoutPrivileges rights;
        open();
        move(RecordMove::Next);
        EXPECT_EQ(title(), u"둘");
        type(RecordPart::Body, u"못 적는다"_s);
        EXPECT_THROW(static_cast<void>(manager->save()), JetError);
        EXPECT_TRUE(manager->isChanged());
        manager->close();
    }
    QFile::setPermissions(services.folders.root(), kAllRead | QFile::WriteOwner);
}

TEST_F(RecordManagerTest, AnOldDatabaseIsTakenOverWithAllThatItHas)
{
    const QString old =
        qEnvironmentVariable("LUMENSCRIPT_USER_DATA") + u"/jet/sermons-small-made.mdb"_s;
    if (!QFile::exists(old))
        GTEST_SKIP() << "LUMENSCRIPT_USER_DATA names no folder with Jet files";
    const QString path = services.folders.data(kSermonFile);
    QFile::remove(path);
    ASSERT_TRUE(QFile::copy(old, path));
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    open();
    ASSERT_EQ(manager->count(), 12);
    EXPECT_TRUE(QFile::exists(path + u".jet"_s));
    const QVariantList bodies = column(u"rtf본문"_s);
    const QVariantList prayers = column(u"rtf기도"_s);
    const QVariantList days = column(u"작성일"_s);
    int nullDays = 0;
    for (int i = 0; i < manager->count(); ++i) {
        const RecordValues& values = manager->values();
        EXPECT_TRUE(values.rtf[0] && values.rtf[0]->startsWith(u"{\\rtf"_s)) << i;
        EXPECT_EQ(values.rtf[2].value_or(QString()), bodies[i].toString());
        EXPECT_EQ(values.rtf[3].has_value(), !prayers[i].isNull());
        nullDays += values.written ? 0 : 1;
        move(RecordMove::Next);
    }
    EXPECT_EQ(nullDays, 1);
    type(RecordPart::Summary, u"새 요약"_s);
    ASSERT_EQ(manager->save(), SaveOutcome::Stored);
    EXPECT_EQ(column(u"작성일"_s), days);
    EXPECT_EQ(column(u"rtf본문"_s), bodies);
    EXPECT_EQ(column(u"요약"_s).first(), u"새 요약"_s);
}

TEST_F(RecordManagerTest, TheComposedTextHasWhatTheBoxesHoldUnescaped)
{
    boxes.plain = {u"제목"_s, u"요 3:16"_s, u"본문 {\\b"_s, u"기도"_s, u"요약"_s};
    boxes.preached = QDate(2003, 5, 4);
    EXPECT_EQ(
        MergeAllContent(profile, boxes),
        u"{\\rtf1\\fs22[설교일] 2003-05-04      [작성일] 2003-05-01 \\par \\par [설교 제목] "
        u"\\par 제목 \\par[말씀]\\par 요 3:16 \\par[설교 본문]\\par 본문 {\\b \\par[기도]\\par "
        u"기도 \\par[설교 요약]\\par 요약}");
}

TEST_F(QuietTimeManagerTest, ItsRecordsHaveOneDayAndAnApplication)
{
    open();
    make({u"하나"_s});
    manager->changed(RecordPart::PreachedDay);
    EXPECT_FALSE(manager->isChanged()) << "there is no such day";
    ASSERT_EQ(manager->addNew(), SaveOutcome::Stored);
    show();
    type(RecordPart::Title, u"둘"_s);
    type(RecordPart::Summary, u"적용할 일"_s);
    EXPECT_EQ(manager->save(), SaveOutcome::Stored);
    EXPECT_EQ(column(u"적용"_s).last(), u"적용할 일"_s);
    EXPECT_EQ(column(u"분류"_s).last(), u"맑음"_s);
    EXPECT_EQ(MergeAllContent(profile, boxes),
              u"{\\rtf1\\fs22[작성일] 2003-05-01 \\par \\par [QT 제목] \\par 둘 \\par[말씀]\\par  "
              u"\\par[QT 본문]\\par  \\par[기도]\\par  \\par[QT 적용]\\par 적용할 일}");
}

} // namespace
} // namespace lumen
