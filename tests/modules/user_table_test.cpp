// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"
#include "sources/user_table.h"

#include <gtest/gtest.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

class UserTableTest : public testing::Test
{
protected:
    auto read(const QByteArray& content)
    {
        return readUserTable(files.write(u"t.tsv"_s, content), {{u"가"_s, u"나"_s, u"다"_s}, 2});
    }
    /// What is said of a table, its path left out.
    QString faults(const QByteArray& content)
    {
        const auto table = read(content);
        EXPECT_FALSE(table);
        return table ? QString() : QString(table.failure().detail).remove(files.path(u"t.tsv"_s));
    }

    SourceFiles files;
};

TEST_F(UserTableTest, LinesOfAnyEditorAreRead)
{
    const auto table =
        read("\xEF\xBB\xBF# form\r\n\r\n 1 \tx y\t\r\n#\n2\t\xE1\x84\x80\xE1\x85\xA1");
    ASSERT_TRUE(table);
    ASSERT_EQ(table.value().size(), 2U);
    EXPECT_EQ(table.value()[0].number, 3);
    EXPECT_EQ(table.value()[0].cells, (QStringList{u"1"_s, u"x y"_s, {}}));
    EXPECT_EQ(table.value()[1].cells, (QStringList{u"2"_s, u"가"_s, {}}));
}

TEST_F(UserTableTest, EachBadLineIsTold)
{
    EXPECT_EQ(faults("1\n1\t2\n\xFFx\t2\n1\t2\t3\t4\n"),
              u":1: 탭으로 나눈 칸이 1개임 (있어야 할 칸: 가, 나, 다)\n"
              ":3: UTF-8이 아닌 글자가 있음\n"
              ":4: 탭으로 나눈 칸이 4개임 (있어야 할 칸: 가, 나, 다)"_s);
    EXPECT_EQ(faults("# nothing\n"), u": 적힌 줄이 없음"_s);
    const QString many = faults(QByteArray("x\n").repeated(25));
    EXPECT_EQ(many.count(u'\n'), 20);
    EXPECT_TRUE(many.endsWith(u"그 밖에 5곳"_s));
}

} // namespace
} // namespace lumen
