// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"
#include "sources/json_readers.h"

#include <gtest/gtest.h>

#include <QJsonArray>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

QString bookJson(QStringView book, QStringView verses)
{
    return u"{\"book\": \"%1\",\n \"chapters\": [{\"chapter\": 1,\n \"verses\": [%2]}]}"_s.arg(
        book, verses);
}

TEST(JsonReaders, ReadsABookAFileInCanonOrder)
{
    const SourceFiles files;
    const QString exodus =
        files.write(u"A.json"_s, bookJson(u"Exodus", u"{\"verse\": 2, \"text\": \" \"}"));
    const QString song =
        files.write(u"B.json"_s, bookJson(u"Song of Solomon", u"{\"verse\": 1, \"text\": \"둘\"}"));
    const QString genesis =
        files.write(u"C.json"_s, bookJson(u"Genesis", u"{\"verse\": 1, \"text\": \"하나  셋\"}"));
    const auto version = readBookJsonFiles({exodus, song, genesis});
    ASSERT_TRUE(version.ok());
    ASSERT_EQ(version.value().verses.size(), 3U);
    EXPECT_EQ(version.value().verses[0].book, 0);
    EXPECT_EQ(wordsAt(version.value(), 0, 1, 1), u"하나 셋"_s);
    EXPECT_EQ(wordsAt(version.value(), 1, 1, 2), u"<no words>"_s);
    EXPECT_EQ(wordsAt(version.value(), 21, 1, 1), u"둘"_s);
}

TEST(JsonReaders, KnowsABookByAnyTitleInUse)
{
    struct Row
    {
        QStringView title;
        int book;
    };
    const Row rows[] = {
        {u"창세기", 0},    {u"창", 0},     {u"GEN", 0},          {u"1 Samuel", 8},
        {u"II Kings", 11}, {u"Psalm", 18}, {u"시편", 18},        {u"요한 1서", 61},
        {u"요한일서", 61}, {u"1Jn", 61},   {u"\u1100\u1168", 65}}; // the last decomposed
    const SourceFiles files;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.title.toString().toStdString());
        const auto version = readBookJsonFiles(
            {files.write(u"a.json"_s, bookJson(row.title, u"{\"verse\": 1, \"text\": \"a\"}"))});
        ASSERT_TRUE(version.ok()) << version.failure().detail.toStdString();
        EXPECT_EQ(version.value().verses[0].book, row.book);
    }
}

TEST(JsonReaders, NamesFileAndLineOfAFault)
{
    const SourceFiles files;
    const auto detail = [&files](const QString& content) {
        const auto version = readBookJsonFiles({files.write(u"bad.json"_s, content)});
        return version.ok() ? u"no failure"_s : version.failure().detail;
    };
    EXPECT_TRUE(detail(bookJson(u"Genesis", u"\n{\"verse\": 1,, }")).startsWith(u"bad.json:4: "_s));
    EXPECT_TRUE(detail(bookJson(u"Nowhere", u"")).startsWith(u"bad.json: "_s));
    EXPECT_TRUE(detail(bookJson(u"Genesis", u"{\"verse\": 1}")).startsWith(u"bad.json: "_s));
    EXPECT_TRUE(detail(bookJson(u"Genesis", u"{\"text\": \"a\"}")).startsWith(u"bad.json: "_s));
    EXPECT_TRUE(detail(u"[]"_s).startsWith(u"bad.json: "_s));
    EXPECT_EQ(readBookJsonFiles({files.path(u"absent.json"_s)}).failure().kind,
              FailureKind::NotFound);
    const QString one =
        files.write(u"1.json"_s, bookJson(u"Genesis", u"{\"verse\": 1, \"text\": \"a\"}"));
    const QString copy =
        files.write(u"2.json"_s, bookJson(u"Genesis", u"{\"verse\": 1, \"text\": \"a\"}"));
    EXPECT_TRUE(readBookJsonFiles({one, copy}).failure().detail.startsWith(u"2.json: "_s));
}

TEST(JsonReaders, ReadsNestedOsisWhereAListOfOneIsTheItem)
{
    const SourceFiles files;
    const auto version = readNestedJsonFile(files.write(
        u"nested.json"_s,
        u"{\"osis\": {\"osisText\": {\"div\": ["
        u"{\"chapter\": {\"verse\": {\"-osisID\": \"Obad.1.1\", \"text\": \"one\"}}},"
        u"{\"chapter\": [{\"verse\": [{\"-osisID\": \"Rom.1.1\", \"text\": \"two\"},"
        u"{\"-osisID\": \"Rom.1.2\"}]}]},"
        u"{\"chapter\": {\"verse\": {\"-osisID\": \"Tob.1.1\", \"text\": \"three\"}}}]}}}"_s));
    ASSERT_TRUE(version.ok());
    EXPECT_EQ(version.value().verses.size(), 2U);
    EXPECT_EQ(wordsAt(version.value(), 30, 1, 1), u"one"_s);
    EXPECT_EQ(wordsAt(version.value(), 44, 1, 1), u"two"_s);
    ASSERT_EQ(version.value().remarks.size(), 1);
    EXPECT_TRUE(version.value().remarks[0].contains(u"Tob"_s));
    EXPECT_FALSE(readNestedJsonFile(
                     files.write(u"slip.json"_s,
                                 u"{\"osis\": {\"osisText\": {\"div\": {\"chapter\": {\"verse\": "
                                 u"{\"-osisID\": \"Gem.1.1\", \"text\": \"one\"}}}}}}"_s))
                     .ok());
}

TEST(JsonReaders, CountsTheFlatArrayAndSkipsItsFiller)
{
    const SourceFiles files;
    QJsonArray texts;
    for (int i = 0; i < 31102; ++i)
        texts.append(u"t%1"_s.arg(i));
    texts.insert(30673, u"[]"_s);
    const auto path = [&files](const QJsonArray& array) {
        return files.write(u"flat.json"_s, QJsonDocument(array).toJson(QJsonDocument::Compact));
    };
    const auto version = readFlatJsonFile(path(texts));
    ASSERT_TRUE(version.ok()) << version.failure().detail.toStdString();
    EXPECT_EQ(wordsAt(version.value(), 0, 1, 1), u"t0"_s);
    EXPECT_EQ(wordsAt(version.value(), 63, 1, 14), u"t30672"_s);
    EXPECT_EQ(wordsAt(version.value(), 64, 1, 1), u"t30673"_s);
    EXPECT_EQ(wordsAt(version.value(), 65, 22, 21), u"t31101"_s);
    texts.removeAt(500);
    EXPECT_FALSE(readFlatJsonFile(path(texts)).ok());
}

} // namespace
} // namespace lumen
