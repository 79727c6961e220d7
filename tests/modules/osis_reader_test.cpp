// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"
#include "sources/sword/osis_reader.h"

#include <gtest/gtest.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

QString osis(QStringView body)
{
    return u"<?xml version=\"1.0\"?>\n<osis xmlns=\"urn:osis\"><osisText><header><work>"
           u"<title>Made up</title></work></header>\n%1\n</osisText></osis>\n"_s.arg(body);
}

TEST(OsisReader, ReadsContainersAndMilestonesAlike)
{
    const SourceFiles files;
    const QString file = files.write(
        u"both.xml"_s,
        osis(u"<div type=\"book\" osisID=\"Gen\"><title type=\"main\">Book</title>"
             u"<chapter osisID=\"Gen.1\"><title>Begin</title>"
             u"<verse osisID=\"Gen.1.1\">one <note>x</note>two</verse>"
             u"<verse osisID=\"Gen.1.2 Gen.1.3\">three</verse><title>Behind</title></chapter></div>"
             u"<div type=\"book\" osisID=\"Ps\"><chapter osisID=\"Ps.3\">"
             u"<title type=\"psalm\">A song</title><verse osisID=\"Ps.3.1\" sID=\"a\"/><lg><l>four"
             u"</l><l>five<verse eID=\"a\"/></l></lg></chapter></div>"
             u"<div type=\"book\" osisID=\"Tob\"><verse osisID=\"Tob.1.1\">six</verse></div>"));
    const VersionResult version = readOsisFile(file);
    ASSERT_TRUE(version.ok()) << version.failure().detail.toStdString();
    EXPECT_EQ(version.value().verses.size(), 4U);
    EXPECT_EQ(wordsAt(version.value(), 0, 1, 1), u"one two"_s);
    EXPECT_EQ(verseAt(version.value(), 0, 1, 1)->miniTitle, u"Begin"_s);
    EXPECT_EQ(wordsAt(version.value(), 0, 1, 2), u"three"_s);
    EXPECT_EQ(wordsAt(version.value(), 0, 1, 3), u"<no words>"_s);
    EXPECT_EQ(wordsAt(version.value(), 18, 3, 1), u"four five"_s);
    EXPECT_EQ(verseAt(version.value(), 18, 3, 1)->part.value_or(QString()), u"A song"_s);
    // The heading behind the last verse of a book is not that of the next book's first.
    EXPECT_EQ(verseAt(version.value(), 18, 3, 1)->miniTitle, QString());
}

TEST(OsisReader, HeadingBehindAVerseIsThatOfTheNext)
{
    const SourceFiles files;
    const VersionResult version = readOsisFile(files.write(
        u"a.xml"_s, osis(u"<div type=\"book\"><verse osisID=\"x:Gen.1.1!a\">one<title>Second"
                         u"</title></verse><verse osisID=\"Gen.1.2\">two</verse></div>")));
    ASSERT_TRUE(version.ok());
    EXPECT_EQ(verseAt(version.value(), 0, 1, 1)->miniTitle, QString());
    EXPECT_EQ(verseAt(version.value(), 0, 1, 2)->miniTitle, u"Second"_s);
}

TEST(OsisReader, ReadsRangesAndTheTitleThatIsCountedAsVerseZero)
{
    const SourceFiles files;
    VersionResult version = readOsisFile(files.write(
        u"a.xml"_s, osis(u"<verse osisID=\"Gen.1.0\">About</verse>"
                         u"<verse osisID=\"Gen.1.1-Gen.1.3\">one</verse>"
                         u"<verse osisID=\"Gen.1.4\">two<milestone type=\"line\"/>three</verse>"
                         u"<verse osisID=\"Ps.3.0\">A song</verse><verse osisID=\"Ps.3.1\">four"
                         u"</verse>")));
    ASSERT_TRUE(version.ok()) << version.failure().detail.toStdString();
    arrangeVerses(version.value());
    EXPECT_EQ(wordsAt(version.value(), 0, 1, 1), u"one"_s);
    EXPECT_EQ(wordsAt(version.value(), 0, 1, 3), u"<no words>"_s);
    EXPECT_EQ(wordsAt(version.value(), 0, 1, 4), u"two three"_s);
    EXPECT_EQ(verseAt(version.value(), 18, 3, 1)->part.value_or(QString()), u"A song"_s);
    EXPECT_EQ(wordsAt(version.value(), 18, 3, 1), u"four"_s);
    EXPECT_EQ(version.value().remarks.size(), 1) << "on what is dropped";
}

TEST(OsisReader, NamesFileAndLineOfAFault)
{
    struct Row
    {
        QStringView body;
        QStringView place;
    };
    const Row rows[] = {
        {u"<div>\n<verse osisID=\"Gen.1.1\">one</div>", u"bad.xml:4: "},
        {u"\n<verse osisID=\"Gen.one.1\">one</verse>", u"bad.xml:4: "},
        {u"<verse>one</verse>", u"bad.xml:3: "},
        {u"<verse osisID=\"Gen.1.1\" sID=\"a\"/>one\n<verse osisID=\"Gen.1.2\" sID=\"b\"/>",
         u"bad.xml:4: "},
        {u"\n\n<verse osisID=\"Gen.1.1\" sID=\"a\"/>one", u"bad.xml:5: "},
        {u"no verse at all", u"bad.xml: "},
        {u"\n<verse osisID=\"Gem.1.1\">one</verse>", u"bad.xml:4: "},
        {u"<verse osisID=\"Gen.1.1\">one</verse><verse osisID=\"Exod.1.1\">two</verse>\n"
         u"<verse osisID=\"Gen.2.1\">a book that comes again</verse>",
         u"bad.xml:4: "},
        {u"\n<verse osisID=\"Gen.1.5-Gen.1.3\">one</verse>", u"bad.xml:4: "},
    };
    const SourceFiles files;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.body.toString().toStdString());
        const VersionResult version = readOsisFile(files.write(u"bad.xml"_s, osis(row.body)));
        ASSERT_FALSE(version.ok());
        EXPECT_EQ(version.failure().kind, FailureKind::Damaged);
        EXPECT_TRUE(version.failure().detail.startsWith(row.place))
            << version.failure().detail.toStdString();
    }
    EXPECT_EQ(readOsisFile(files.path(u"absent.xml"_s)).failure().kind, FailureKind::NotFound);
}

} // namespace
} // namespace lumen
