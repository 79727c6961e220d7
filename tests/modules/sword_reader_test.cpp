// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"
#include "sources/sword/sword_process.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <rawtext.h>
#include <tuple>
#include <versekey.h>
#include <zipcomprs.h>
#include <ztext.h>

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
                        "/\nModDrv=RawText\n" + conf +
                        (conf.contains("Encoding") ? "" : "Encoding=UTF-8\n"));
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

    template <typename Change>
    static void damage(const QString& path, Change change)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        QByteArray bytes = file.readAll();
        change(bytes);
        file.resize(0);
        file.seek(0);
        file.write(bytes);
    }

    // Where the first entry that isn't empty stands.
    static qsizetype indexOfText(const QByteArray& index, qsizetype record)
    {
        for (qsizetype at = 0; at < index.size(); at += record)
            if (index.mid(at + 4, 2) != QByteArray(2, 0))
                return at;
        return -1;
    }

    SourceFiles files;
    std::unique_ptr<sword::SWModule> module;
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

TEST_F(SwordReaderTest, TakesTheWordsOfOtherMarkupWithoutNotesAndHeadings)
{
    const struct
    {
        QString name;
        QByteArray conf, entry;
        QString part;
    } rows[] = {
        {u"Thml"_s, "SourceType=ThML\n",
         "<div class=\"sechead\">The <i>night</i></div><h3>Visit</h3><font "
         "color=\"red\">one</font><note place=\"foot\">or\nten</note> <b>two</b> &amp; "
         "three",
         u"none"_s},
        {u"Gbf"_s, "SourceType=GBF\n",
         "<TB>Book<Tb><TS>The night<Ts>\n<TS2>Visit<Ts2><TH>A song<Th>one<RF>or ten<Rf> "
         "<FI>two<Fi><RX 1.1.1>a<Rx> & three",
         u"A song"_s},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name.toStdString());
        const SwordModule source = make(row.name, row.conf);
        set("John 3:16", row.entry.constData());
        module.reset();
        const auto version = readSwordModule(source);
        ASSERT_TRUE(version.ok()) << version.failure().detail.toStdString();
        EXPECT_EQ(wordsAt(version.value(), 42, 3, 16), u"one two & three"_s);
        const VerseText* verse = verseAt(version.value(), 42, 3, 16);
        EXPECT_EQ(verse->miniTitle, u"The night / Visit"_s);
        EXPECT_EQ(verse->part.value_or(u"none"_s), row.part);
    }
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

// The library reads all of these to the end and gives other words or none.
TEST_F(SwordReaderTest, RefusesAModuleWhoseFilesDoNotFitTogether)
{
    constexpr qsizetype kRecord = 6;
    struct Row
    {
        const char* what;
        QStringView file;
        void (*damage)(QByteArray& bytes);
    };
    const Row rows[] = {
        {"an index that is cut", u"ot.vss", [](QByteArray& bytes) { bytes.chop(600); }},
        {"a text that is cut", u"nt", [](QByteArray& bytes) { bytes.chop(3); }},
        {"no text", u"ot", [](QByteArray& bytes) { bytes.clear(); }},
        {"zeros in the text", u"nt",
         [](QByteArray& bytes) { bytes.replace(2, 2, QByteArray(2, 0)); }},
        {"bytes that are no text", u"nt", [](QByteArray& bytes) { bytes[2] = '\xC0'; }},
        {"a verse that ends within another", u"nt.vss",
         [](QByteArray& bytes) { bytes[indexOfText(bytes, kRecord) + 4] += 4; }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const SwordModule source = make(u"Made"_s, "SourceType=OSIS\n");
        set("Ruth 1:1", "a verse of the old");
        set("Romans 1:1", "one verse");
        set("Romans 1:2", "another verse");
        module.reset();
        ASSERT_TRUE(readSwordModule(source).ok());
        damage(files.path(u"text/Made/"_s + row.file.toString()), row.damage);
        const auto version = readSwordModule(source);
        ASSERT_FALSE(version.ok());
        EXPECT_EQ(version.failure().kind, FailureKind::Damaged);
        QDir(files.path(u"text"_s)).removeRecursively();
    }
}

TEST_F(SwordReaderTest, TellsTextThatTheIndexHasForgottenAndEmptyChapters)
{
    const SwordModule source = make(u"Made"_s, "SourceType=OSIS\n");
    for (const char* place : {"Ruth 1:1", "Ruth 2:1", "Ruth 3:1", "Ruth 4:1"})
        set(place, place);
    module.reset();
    EXPECT_EQ(readSwordModule(source).value().losses, QStringList());
    damage(files.path(u"text/Made/ot.vss"_s), [](QByteArray& bytes) {
        constexpr qsizetype kRecord = 6;
        const qsizetype first = indexOfText(bytes, kRecord);
        const qsizetype second = first + kRecord + indexOfText(bytes.mid(first + kRecord), kRecord);
        bytes.replace(second, kRecord, QByteArray(kRecord, 0));
    });
    const QString losses = readSwordModule(source).value().losses.join(u'\n');
    EXPECT_TRUE(losses.contains(u"룻기 2장"_s)) << losses.toStdString();
    EXPECT_TRUE(losses.contains(u"색인이 가리키지 않는"_s)) << losses.toStdString();
}

TEST_F(SwordReaderTest, RefusesAConfThatTheLibraryWouldGuessAt)
{
    struct Row
    {
        const char* conf;
        const char* entry;
        bool refused;
    };
    const Row rows[] = {
        {"SourceType=OSIS\n", "<w>\xC3\xA9</w>", false},
        {"SourceType=Plaintext\n", "a < b", false},
        {"SourceType=Plaintext\nEncoding=Latin-1\n", "\xE9t\xE9", false},
        {"SourceType=OSIR\n", "one", true},
        {"SourceType=OSIS\nVersification=KJW\n", "one", true},
        {"SourceType=OSIS\nCompressType=ZAP\n", "one", true},
        // Lines that have gone.
        {"", "<w>one</w>", true},
        {"SourceType=OSIS\nEncoding=Latin-1\n", "\xC3\xA9t\xC3\xA9", true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.conf);
        const SwordModule source = make(u"Made"_s, row.conf);
        for (int verse = 1; verse <= 15; ++verse)
            set(qPrintable(u"Ruth 1:%1"_s.arg(verse)), row.entry);
        module.reset();
        EXPECT_EQ(!readSwordModule(source).ok(), row.refused);
        QDir(files.path(u"text"_s)).removeRecursively();
    }
}

TEST_F(SwordReaderTest, RefusesABlockThatDoesNotUnpack)
{
    const QString folder = files.path(u"text/Packed"_s);
    QDir().mkpath(folder);
    const QByteArray data = QFile::encodeName(folder);
    sword::zText::createModule(data.constData(), BOOKBLOCKS);
    module = std::make_unique<sword::zText>(data.constData(), nullptr, nullptr, BOOKBLOCKS,
                                            new sword::ZipCompress());
    set("Ruth 1:1", "one verse of many words");
    module.reset();
    files.write(u"mods.d/packed.conf"_s,
                QByteArray("[Packed]\nDataPath=./text/Packed/\nModDrv=zText\nEncoding=UTF-8\n"
                           "SourceType=OSIS\nCompressType=ZIP\nBlockType=BOOK\n"));
    ASSERT_TRUE(readSwordModule({files.path(), u"Packed"_s}).ok());
    damage(folder + u"/ot.bzz"_s, [](QByteArray& bytes) { bytes[10] ^= 1; });
    EXPECT_EQ(readSwordModule({files.path(), u"Packed"_s}).failure().kind, FailureKind::Damaged)
        << "the check sum";
}

TEST_F(SwordReaderTest, AModuleReadInAProcessOfItsOwnIsTheSame)
{
    const SwordModule source = make(u"Made"_s, "SourceType=OSIS\n");
    set("Psalm 3:1", "<title type=\"psalm\">A song</title><title>Head</title> one");
    set("Psalm 3:3", "three");
    module.reset();
    const auto here = readSwordModule(source);
    const auto apart = readSwordApart(source);
    ASSERT_TRUE(here.ok() && apart.ok()) << apart.failure().detail.toStdString();
    EXPECT_EQ(apart.value().losses, here.value().losses);
    ASSERT_EQ(apart.value().verses.size(), here.value().verses.size());
    for (std::size_t i = 0; i < here.value().verses.size(); ++i) {
        const VerseText& a = here.value().verses[i];
        const VerseText& b = apart.value().verses[i];
        EXPECT_EQ(std::tie(a.book, a.chapter, a.verse, a.text, a.part, a.miniTitle),
                  std::tie(b.book, b.chapter, b.verse, b.text, b.part, b.miniTitle));
    }
    EXPECT_EQ(readSwordApart({files.path(), u"Absent"_s}).failure().kind, FailureKind::NotFound);
    damage(files.path(u"text/Made/ot"_s), [](QByteArray& bytes) { bytes.clear(); });
    EXPECT_EQ(readSwordApart(source).failure().detail, readSwordModule(source).failure().detail);
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
