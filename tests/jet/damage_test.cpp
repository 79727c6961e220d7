// SPDX-License-Identifier: GPL-2.0-or-later
// Damaged stores: whatever happened to a file, the engine answers with a clear error or with what
// can still be read, and never takes the program with it.
#include "jet/engine_fixture.h"
#include "jet/file_damage.h"
#include "jet/sqlite_probe.h"

#include <QFile>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kTrials = 50;

class DamageTest : public EngineTest
{
protected:
    void SetUp() override
    {
        StoreWriter writer(path(u"whole.mdb"_s), StoreCompare::Text);
        for (const QString& name : {u"설교"_s, u"예화"_s}) {
            writer.createTable(
                {.name = name,
                 .columns = {{.name = u"번호"_s, .type = FieldType::Long, .autonumber = true},
                             {.name = u"제목"_s, .size = 80},
                             {.name = u"내용"_s, .type = FieldType::Memo}},
                 .indexes = {{u"제목"_s, {u"제목"_s}, false, false}}});
            for (int i = 1; i <= 150; ++i)
                writer.addRow(name, {i, u"제목 %1"_s.arg(i),
                                     QString(i % 40 == 0 ? 20000 : 30 * (i % 9), u'글')});
        }
        writer.commit();
        whole = bytesOf(u"whole.mdb"_s);
    }

    QByteArray whole;
};

/// The errors that a damaged file may end with: no database, damaged, a password that was none, a
/// table or column that has lost its name, a row that is listed and not found.
bool isFair(int error)
{
    const QList<int> fair{0, 3343, 3049, 3031, 3061, 3075, 3078, 3167, 3183};
    return fair.contains(error);
}

TEST_F(DamageTest, ReadingEndsInAnErrorOrInRows)
{
    std::mt19937 random(50);
    int refused = 0;
    for (int trial = 0; trial < kTrials; ++trial) {
        SCOPED_TRACE(trial);
        for (const QString& name : {u"damaged.mdb"_s, u"damaged.dts"_s}) {
            const QByteArray bytes = damaged(whole, random);
            write(name, bytes);
            const int error = errorOf([&] { walkDatabase(engine, name, {}); });
            EXPECT_TRUE(isFair(error)) << error;
            refused += error != 0 ? 1 : 0;
            EXPECT_TRUE(bytesOf(name) == bytes) << "reading must not change the file";
            QFile::remove(path(name));
        }
    }
    EXPECT_GT(refused, kTrials / 2);
}

TEST_F(DamageTest, CompactionCopiesNothingThatIsDamaged)
{
    std::mt19937 random(51);
    int copied = 0;
    for (int trial = 0; trial < kTrials; ++trial) {
        SCOPED_TRACE(trial);
        const QByteArray bytes = damaged(whole, random);
        write(u"damaged.mdb"_s, bytes);
        const int error = errorOf([&] { engine.CompactDatabase(u"damaged.mdb"_s, u"copy.mdb"_s); });
        EXPECT_TRUE(isFair(error)) << error;
        EXPECT_TRUE(bytesOf(u"damaged.mdb"_s) == bytes);
        EXPECT_EQ(QFile::exists(path(u"copy.mdb"_s)), error == 0);
        if (error == 0) {
            ++copied;
            EXPECT_EQ(rawRows(path(u"copy.mdb"_s), "PRAGMA integrity_check"), QStringList{u"ok"_s});
            QFile::remove(path(u"copy.mdb"_s));
        }
    }
    EXPECT_LT(copied, kTrials);
}

TEST_F(DamageTest, WritingEndsInAnErrorOrInRows)
{
    std::mt19937 random(52);
    for (int trial = 0; trial < kTrials; ++trial) {
        SCOPED_TRACE(trial);
        write(u"damaged.mdb"_s, damaged(whole, random));
        const int error = errorOf([&] {
            const auto database = open(u"damaged.mdb"_s);
            const auto records = database->OpenRecordset(u"설교"_s);
            for (int i = 0; i < 20; ++i) {
                records->AddNew();
                records->Fields(u"제목"_s).setValue(u"새 %1"_s.arg(i));
                records->Fields(u"내용"_s).setValue(QString(3000, u'가'));
                records->Update();
            }
            database->Execute(u"delete from 예화 where 번호 < 100"_s);
            database->Close();
        });
        const QList<int> also{3022, 3265, 3314, 3421, 3163, 3027};
        EXPECT_TRUE(isFair(error) || also.contains(error)) << error;
        engine.rollbackAll();
    }
}

} // namespace

} // namespace lumen
