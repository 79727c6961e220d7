// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"
#include "sources/sword_reader.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <rawtext.h>
#include <versekey.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

// Makes small modules by the library's own writing side.
class SwordReaderTest : public testing::Test
{
protected:
    SwordModule make(const QString& name, const QByteArray& conf)
    {
        QDir().mkpath(files.path(u"text/"_s + name));
        const QByteArray data = QFile::encodeName(files.path(u"text/"_s + name));
        sword::RawText::createModule(data.constData());
        module = std::make_unique<sword::RawText>(data.constData());
        files.write(u"mods.d/%1.conf"_s.arg(name.toLower()),
                    "[" + name.toUtf8() + "]\nDataPath=./text/" + name.toUtf8() +
                        "/\nModDrv=RawText\nEncoding=UTF-8\n" + conf);
        return {files.path(), name};
    }

    void set(const char* place, const char* entry)
    {
        sword::VerseKey key;
        key.setIntros(true);
        key.setText(place);
        module->setKey(key);
        module->setEntry(entry);
    }

    void setIntroduction(const char* book, int chapter, const char* entry)
    {
        sword::VerseKey key;
        key.setIntros(true);
        key.setText(book);
        key.setChapter(chapter);
        key.setVerse(0);
        module->setKey(key);
        module->setEntry(entry);
    }

    void link(const char* place, const char* to)
    {
        sword::VerseKey key(place);
        sword::VerseKey target(to);
        module->setKey(key);
        module->linkEntry(&target);
    }

    SourceFiles files;
    std::unique_ptr<sword::RawText> module;
};

TEST_F(SwordReaderTest, ReadsTextTitlesAndLinks)
{
    const SwordModule source = make(u"Made"_s, "SourceType=OSIS\n");
    setIntroduction("Psalm 3:1", 3, "<chapter osisID=\"Ps.3\"/><title>Morning</title> <lg/>");
    set("Psalm 3:1", "<title type=\"psalm\">A song</title> <l>one<note>x</note></l>");
    set("Psalm 3:2", "two <title>Colophon</title>");
    set("Psalm 3:3", "same");
    set("Psalm 3:4", "same");
    link("Psalm 3:5", "Psalm 3:4");
    setIntroduction("Romans 1:1", 1, "<title>Written</title> An introduction of some length");
    set("Romans 1:1", "three");
    module.reset();
    auto version = readSwordModule(source);
    ASSERT_TRUE(version.ok()) << version.failure().detail.toStdString();
    const VerseText* first = verseAt(version.value(), 18, 3, 1);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->text.value_or(QString()), u"one"_s);
    EXPECT_EQ(first->part.value_or(QString()), u"A song"_s);
    EXPECT_EQ(first->miniTitle, u"Morning"_s);
    EXPECT_EQ(wordsAt(version.value(), 18, 3, 2), u"two"_s);
    EXPECT_EQ(verseAt(version.value(), 18, 3, 3)->miniTitle, QString());
    EXPECT_EQ(wordsAt(version.value(), 18, 3, 4), u"same"_s);
    EXPECT_EQ(wordsAt(version.value(), 18, 3, 5), u"<no words>"_s);
    EXPECT_EQ(wordsAt(version.value(), 18, 3, 6), u"<no words>"_s);
    EXPECT_EQ(verseAt(version.value(), 44, 1, 1)->miniTitle, QString());
    // Chapters without a word are not in the module at all.
    EXPECT_EQ(wordsAt(version.value(), 18, 4, 1), u"<no row>"_s);
    EXPECT_EQ(wordsAt(version.value(), 0, 1, 1), u"<no row>"_s);
}

TEST_F(SwordReaderTest, TakesThePlainTextOfOtherMarkup)
{
    const SwordModule source = make(u"Thml"_s, "SourceType=ThML\n");
    set("John 3:16", "<font color=\"red\">one</font> <b>two</b> &amp; three");
    module.reset();
    const auto version = readSwordModule(source);
    ASSERT_TRUE(version.ok());
    EXPECT_EQ(wordsAt(version.value(), 42, 3, 16), u"one two & three"_s);
}

TEST_F(SwordReaderTest, TellsAbsentLockedAndEmptyModulesApart)
{
    EXPECT_EQ(readSwordModule({files.path(), u"None"_s}).failure().kind, FailureKind::NotFound);
    const SwordModule locked = make(u"Locked"_s, "SourceType=OSIS\nCipherKey=\n");
    module.reset();
    EXPECT_TRUE(
        readSwordModule(locked).failure().detail.startsWith(files.path(u"mods.d/locked.conf"_s)));
    const SwordModule empty = make(u"Empty"_s, "SourceType=OSIS\n");
    module.reset();
    EXPECT_EQ(readSwordModule(empty).failure().kind, FailureKind::Damaged);
}

TEST_F(SwordReaderTest, FindsTheFilesOfAModuleByItsConf)
{
    const SwordModule source = make(u"Made"_s, "SourceType=OSIS\n");
    module.reset();
    EXPECT_EQ(swordModuleOf(files.path(u"mods.d/made.conf"_s)).name, u"Made"_s);
    const QStringList found = swordFiles(source);
    EXPECT_TRUE(found.contains(files.path(u"mods.d/made.conf"_s)));
    EXPECT_TRUE(found.contains(files.path(u"text/Made/ot.vss"_s)))
        << found.join(u' ').toStdString();
}

} // namespace
} // namespace lumen
