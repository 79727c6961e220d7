// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/data_store.h"
#include "jet/error.h"
#include "search/original/scratch_tables.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class ScratchTablesTest : public testing::Test
{
protected:
    ScratchTablesTest()
    {
        if (!createUserDatabases(test.state.AppPath, test.files, test.drives, QDate(2024, 1, 1)))
            qFatal("no scratch tables");
    }

    QString file() const { return test.folders.data(u"z199.dts"_s); }

    /// As a run leaves them that was killed in its middle.
    void fillAll()
    {
        ASSERT_TRUE(tables.prepare());
        for (int table = 0; table <= ScratchTables::kLast; ++table)
            tables.StringToDB(u"01창:001:001;01창:001:002"_s, table);
        tables.close();
    }

    QList<qsizetype> counts()
    {
        QList<qsizetype> counted;
        for (int table = 0; table <= ScratchTables::kLast; ++table)
            counted << tables.keys(table).size();
        tables.close();
        return counted;
    }

    TestServices test;
    ScratchTables tables{test.jet, test.files, test.state.AppPath};
};

TEST_F(ScratchTablesTest, PreparingKeepsTheBaseOfASearchWithinResultsAFreshStartNothing)
{
    fillAll();
    ASSERT_TRUE(tables.prepare());
    EXPECT_EQ(counts(), (QList<qsizetype>{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2}));
    EXPECT_TRUE(tables.startAfresh());
    EXPECT_EQ(counts(), QList<qsizetype>(11, 0));
}

TEST_F(ScratchTablesTest, AFreshStartMendsADamagedFileAndMakesNoMissingOne)
{
    for (const QByteArray& content :
         {QByteArray(), QByteArray("no database"), QByteArray(100'000, '\x5A'),
          QByteArray("SQLite format 3\0", 16) + QByteArray(8176, '\0')}) {
        QFile damaged(file());
        ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
        damaged.write(content);
        damaged.close();
        EXPECT_FALSE(tables.prepare());
        EXPECT_TRUE(tables.startAfresh());
        EXPECT_TRUE(tables.prepare());
        tables.close();
    }
    ASSERT_TRUE(QFile::remove(file()));
    EXPECT_FALSE(tables.exists());
    EXPECT_FALSE(tables.startAfresh());
    EXPECT_FALSE(tables.prepare());
    EXPECT_FALSE(QFile::exists(file()));
}

TEST_F(ScratchTablesTest, TheEndEmptiesAllTablesAndMakesTheFileSmallAgain)
{
    const qint64 small = QFileInfo(file()).size();
    ASSERT_TRUE(tables.prepare());
    QStringList many;
    for (int i = 0; i < 5000; ++i)
        many << u"01창:%1:001"_s.arg(i, 4, 10, QLatin1Char('0'));
    for (int table = 0; table <= ScratchTables::kLast; ++table)
        tables.StringToDB(many.join(u';'), table);
    // What an earlier end may have left in the way.
    QFile copy(test.folders.data(u"z199c.dts"_s));
    ASSERT_TRUE(copy.open(QIODevice::WriteOnly));
    copy.close();
    tables.cleanUp();
    EXPECT_LE(QFileInfo(file()).size(), small + 8192);
    EXPECT_FALSE(QFile::exists(copy.fileName()));
    EXPECT_FALSE(test.jet.isOpen(file()));
    EXPECT_EQ(counts(), QList<qsizetype>(11, 0));
    // The password has stayed.
    EXPECT_THROW(test.jet.OpenDatabase(u"C:\\lumenscript\\Data\\z199.dts"_s), JetError);
}

TEST_F(ScratchTablesTest, TheEndPassesOverAFileThatIsGoneOrDamaged)
{
    QFile damaged(file());
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("no database");
    damaged.close();
    EXPECT_NO_THROW(tables.cleanUp());
    EXPECT_TRUE(QFile::exists(file()));
    ASSERT_TRUE(QFile::remove(file()));
    EXPECT_NO_THROW(tables.cleanUp());
    EXPECT_FALSE(QFile::exists(file()));
}

} // namespace
} // namespace lumen
