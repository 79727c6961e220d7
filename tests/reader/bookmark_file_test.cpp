// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files/file_system.h"
#include "reader/bookmarks/bookmark_file.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

/// One file in memory; reading it can be made to fail.
class OneFile : public FileSystem
{
public:
    bool FileExists(const QString&) const override { return bytes.has_value(); }
    bool FolderExists(const QString&) const override { return true; }
    Result<Done> CreateFolder(const QString&) override { return Done{}; }
    Result<Done> DeleteFile(const QString&) override { return Failure{}; }
    Result<Done> CopyFile(const QString&, const QString&) override { return Failure{}; }
    Result<Done> MoveFile(const QString&, const QString&) override { return Failure{}; }
    Result<FileStamp> stamp(const QString& path) const override
    {
        return Failure{FailureKind::NotFound, path};
    }
    Result<QByteArray> readAll(const QString& path) const override
    {
        if (!readable || !bytes)
            return Failure{FailureKind::NoAccess, path};
        return *bytes;
    }
    Result<Done> writeAll(const QString&, const QByteArray& content) override
    {
        bytes = content;
        return Done{};
    }

    std::optional<QByteArray> bytes;
    bool readable = true;
};

class BookmarkFileTest : public testing::Test
{
protected:
    QStringList load()
    {
        const Result<QStringList> references = file.load();
        return references ? references.value() : QStringList{u"failed"_s};
    }

    OneFile files;
    BookmarkFile file{files, u"C:\\lumenscript\\Data\\bmk.bmf"_s};
};

TEST_F(BookmarkFileTest, AMissingFileIsAnEmptyList)
{
    EXPECT_EQ(load(), QStringList());
}

TEST_F(BookmarkFileTest, EachBookmarkIsALineOfCodePage949)
{
    ASSERT_TRUE(file.save({u"요3:16"_s, u"창1:1"_s}));
    EXPECT_EQ(files.bytes, QByteArray("\xBF\xE4"
                                      "3:16\r\n"
                                      "\xC3\xA2"
                                      "1:1\r\n"));
    EXPECT_EQ(load(), (QStringList{u"요3:16"_s, u"창1:1"_s}));
}

TEST_F(BookmarkFileTest, LinesOfOtherProgramsAreTakenAsTheyStand)
{
    files.bytes = QByteArray("\xBF\xE4"
                             "3:16\n\n"
                             "\xC3\xA2"
                             "1:1");
    EXPECT_EQ(load(), (QStringList{u"요3:16"_s, QString(), u"창1:1"_s}));
}

TEST_F(BookmarkFileTest, BytesThatAreNoTextComeBackAsTheyWere)
{
    files.bytes = QByteArray("\xBF\xE4"
                             "3:16\r\n"
                             "a\xFF\xFFz\r\n");
    const QStringList references = load();
    ASSERT_EQ(references.size(), 2);
    ASSERT_TRUE(file.save({references[1], u"창1:1"_s, references[0]}));
    EXPECT_EQ(files.bytes, QByteArray("a\xFF\xFFz\r\n"
                                      "\xC3\xA2"
                                      "1:1\r\n"
                                      "\xBF\xE4"
                                      "3:16\r\n"));
}

TEST_F(BookmarkFileTest, CharactersThatThePageLacksSpoilNoOtherLine)
{
    ASSERT_TRUE(file.save({u"é\U0001F600"
                           u"1:1"_s,
                           u"창1:1"_s}));
    const QStringList references = load();
    ASSERT_EQ(references.size(), 2);
    EXPECT_TRUE(references[0].endsWith(u"1:1"));
    EXPECT_EQ(references[1], u"창1:1"_s);
}

TEST_F(BookmarkFileTest, AFileThatCannotBeReadIsNotWrittenOver)
{
    files.bytes = QByteArray("\xC3\xA2"
                             "1:1\r\n");
    files.readable = false;
    EXPECT_FALSE(file.load());
    EXPECT_FALSE(file.save({u"요3:16"_s}));
    EXPECT_EQ(files.bytes, QByteArray("\xC3\xA2"
                                      "1:1\r\n"));
}

} // namespace
} // namespace lumen
