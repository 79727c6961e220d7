// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/check_data.h"
#include "data/module_path.h"
#include "platform/files/drives.h"
#include "support/module_files.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// A drive list of a test's own.
class FixedDrives : public Drives
{
public:
    FixedDrives(QStringList roots, QString cdRom)
        : m_roots(std::move(roots)), m_cdRom(std::move(cdRom))
    {
    }
    QString driveStrings() const override
    {
        QString all;
        for (const QString& root : m_roots)
            all += root + QChar(u'\0');
        return all;
    }
    int driveType(const QString& root) const override { return root == m_cdRom ? 5 : 3; }
    QString appPath() const override { return u"C:\\p"_s; }

private:
    QStringList m_roots;
    QString m_cdRom;
};

class CheckDataTest : public testing::Test
{
protected:
    void make(const QString& native)
    {
        QDir().mkpath(QFileInfo(native).path());
        QFile file(native);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    void inProgram(const QString& name) { make(services.folders.data(name)); }
    void onDisc(const QString& name) { make(services.folders.disc() + u"/Data/"_s + name); }

    const InstalledFlags& check()
    {
        CheckData(services.state, services.files, services.jet);
        return services.state.installed;
    }

    TestServices services{true};
};

TEST_F(CheckDataTest, ModulesCountWhetherTheyLieBesideTheProgramOrOnTheDisc)
{
    inProgram(u"102.dts"_s);
    onDisc(u"201.DTS"_s);
    onDisc(u"102.dts"_s);
    inProgram(u"301c.dts"_s);
    onDisc(u"CREF.dts"_s);
    inProgram(u"Z101.dts"_s);
    const InstalledFlags& installed = check();
    EXPECT_EQ(installed.versions, (std::set<int>{102, 201}));
    EXPECT_EQ(installed.concordances, (std::set<int>{301}));
    EXPECT_EQ(installed.versionCount, 2);
    EXPECT_EQ(installed.firstVersion, u"개역한자"_s);
    EXPECT_TRUE(installed.cRef && installed.z101);
    EXPECT_FALSE(installed.ekDic || installed.bibleDic || installed.mhcc || installed.wesley ||
                 installed.myc);
}

TEST_F(CheckDataTest, TheFirstVersionFollowsTheOrderOfTheCheck)
{
    struct Row
    {
        QStringList files;
        QString first;
    };
    const Row rows[] = {
        {{u"103.dts"_s, u"104.dts"_s}, u"공동번역"_s},
        {{u"214.dts"_s, u"215.dts"_s}, u"ISV 신약"_s},
        {{u"106.dts"_s, u"203.dts"_s}, u"개역개정판"_s},
        {{u"203.dts"_s, u"214.dts"_s}, u"Latin Vulgate"_s},
        {{u"302.dts"_s, u"310.dts"_s}, u"Byzantine"_s},
        {{u"311.dts"_s}, u"Byzantine"_s}, // the name that 311 is noted under
        {{}, QString()},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.files.join(u' ').toStdString());
        QDir(services.folders.data({})).removeRecursively();
        for (const QString& file : row.files)
            inProgram(file);
        const InstalledFlags& installed = check();
        EXPECT_EQ(installed.firstVersion, row.first);
        EXPECT_EQ(installed.versionCount, row.files.size());
    }
}

TEST_F(CheckDataTest, UserVersionsAreNamedByTheirFirstTable)
{
    writeModule(services.folders.data(u"901.dts"_s),
                {versionTable(u"나의 역본 [1]"_s, {}), versionTable(u"다른 표"_s, {})});
    writeModule(services.folders.data(u"907.dts"_s), {});
    inProgram(u"901c.dts"_s);
    inProgram(u"903.dts"_s); // an empty file is no module
    onDisc(u"905.dts"_s);
    onDisc(u"905c.dts"_s);
    const InstalledFlags& installed = check();
    EXPECT_EQ(installed.versions, (std::set<int>{901})) << "907 has the engine's own tables only";
    EXPECT_EQ(installed.concordances, (std::set<int>{901})) << "the disc isn't searched for them";
    EXPECT_EQ(installed.userTables[0], u"나의 역본 [1]"_s);
    EXPECT_EQ(installed.versionCount, 1);
    EXPECT_EQ(installed.firstVersion, u"나의 역본 [1]"_s);
}

TEST_F(CheckDataTest, AModuleIsOpenedBesideTheProgramFirst)
{
    onDisc(u"101.dts"_s);
    onDisc(u"201.dts"_s);
    inProgram(u"101.dts"_s);
    const auto& [files, state] = std::tie(services.files, services.state);
    EXPECT_EQ(modulePath(files, state, versionFile(101)), u"C:\\lumenscript\\Data\\101.dts"_s);
    EXPECT_EQ(modulePath(files, state, versionFile(201)), u"D:\\Data\\201.dts"_s);
    EXPECT_EQ(modulePath(files, state, versionFile(202)), u"C:\\lumenscript\\Data\\202.dts"_s)
        << "where the user can put it";
    EXPECT_EQ(findModule(files, state, versionFile(202)), std::nullopt);
    EXPECT_EQ(findModule(files, state, versionFile(201)), u"D:\\Data\\201.dts"_s);
    EXPECT_EQ(versionFile(101, u"c"), u"\\Data\\101c.dts"_s);
}

TEST(ModulePath, AProgramInTheRootHasNoDoubledBackslash)
{
    EXPECT_EQ(joinedPath(u"C:\\", u"\\data\\101.dts"), u"C:\\data\\101.dts"_s);
    EXPECT_EQ(joinedPath(u"C:\\p", u"\\data\\101.dts"), u"C:\\p\\data\\101.dts"_s);
}

} // namespace
} // namespace lumen
