// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/page_files.h"
#include "modules/source_files.h"
#include "recipes/version_task.h"

#include <gtest/gtest.h>

#include <QFile>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

TEST(PageFiles, PagesOfTheProgramAreRenewedAndThoseOfTheUserStay)
{
    const SourceFiles files;
    files.write(u"content/pages/가.htm"_s, u"<!-- CC0-1.0 --> new"_s);
    files.write(u"content/pages/나.htm"_s, u"<!-- CC0-1.0 --> ours"_s);
    files.write(u"content/introductions/01.html"_s, u"<!-- CC0-1.0 --> one"_s);
    files.write(u"Data/가.htm"_s, u"<!-- CC0-1.0 --> old"_s);
    files.write(u"Data/나.htm"_s, u"the user's own"_s);
    const auto install = [&] {
        return installPages(files.path(u"content"_s), files.path(u"Data"_s));
    };
    const auto read = [&](const QString& name) {
        QFile file(files.path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    EXPECT_EQ(install().size(), 2);
    EXPECT_EQ(read(u"Data/가.htm"_s), "<!-- CC0-1.0 --> new");
    EXPECT_EQ(read(u"Data/나.htm"_s), "the user's own");
    EXPECT_EQ(read(u"Data/introductions/01.html"_s), "<!-- CC0-1.0 --> one");
    EXPECT_EQ(install().size(), 1) << "nothing to be done but what is the user's";
}

TEST(Headings, StandInAVersionWithoutItsOwn)
{
    const SourceFiles files;
    VersionTask task;
    task.setCode(101);
    task.headings = files.write(u"headings.tsv"_s, u"창1:2\t빛\n"_s);
    VersionText text;
    for (const int verse : {1, 2})
        text.verses.push_back({0, 1, verse, u"x"_s, {}, {}});
    task.reader = [&] { return text; };
    EXPECT_EQ(verseAt(task.text()->value(), 0, 1, 2)->miniTitle, u"빛"_s);
    text.verses[0].miniTitle = u"own"_s;
    EXPECT_EQ(verseAt(task.text()->value(), 0, 1, 2)->miniTitle, QString());
    text.verses[0].miniTitle.clear();
    files.write(u"headings.tsv"_s, u"창1:99\t빛\n"_s);
    EXPECT_FALSE(task.text()->ok());
}

} // namespace
} // namespace lumen
