// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"
#include "sources/dictionary_readers.h"
#include "sources/sword/sword_lexicon.h"

#include <gtest/gtest.h>

#include <QtEndian>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;
using Entries = std::vector<DictionaryEntry>;

TEST(DictionaryReaders, ReadJsonDictAndTables)
{
    const SourceFiles files;
    const auto json = readJsonDictionary(files.write(
        u"easton.json"_s,
        uR"({"AI": {"name": "Ai", "definitions": [{"text": "heap"}, {"text": "ruin"}]}})"_s));
    ASSERT_TRUE(json.ok());
    EXPECT_EQ(json.value(), (Entries{{u"Ai"_s, u"heap\nruin"_s}}));
    EXPECT_FALSE(
        readJsonDictionary(files.write(u"bad.json"_s, uR"({"AI": {"name": "Ai"}})"_s)).ok());

    const QString text = u"Ark\n    n 1: a boat [syn: {ship},\n    "
                         "      {vessel}]\n      2: a chest\nBow\n    v 1: bend\n"_s;
    const QString dictionary = files.write(u"made.dict"_s, text);
    const auto read = readDictDictionary(
        files.write(u"made.index"_s, u"00-database-short\tA\tA\nark\tA\tBH\nbow\tBH\tS\n"_s),
        dictionary);
    ASSERT_TRUE(read.ok());
    EXPECT_EQ(read.value(), (Entries{{u"Ark"_s, u"n 1: a boat [syn: ship, vessel]\n2: a chest"_s},
                                     {u"Bow"_s, u"v 1: bend"_s}}));
    const auto beyond = readDictDictionary(
        files.write(u"beyond.index"_s, u"ark\tA\tB\nbow\tBH\tBB\n"_s), dictionary);
    ASSERT_FALSE(beyond.ok());
    EXPECT_EQ(beyond.failure().detail, u"beyond.index:2: 색인의 줄이 본문 밖을 가리킵니다."_s);

    const auto table = readTableDictionary(
        {files.write(u"own.tsv"_s, u"# words\n아이\t마을.\\n무더기라는 뜻이다.\n"_s)});
    ASSERT_TRUE(table.ok());
    EXPECT_EQ(table.value(), (Entries{{u"아이"_s, u"마을.\n무더기라는 뜻이다."_s}}));
}

QByteArray number(qsizetype value)
{
    QByteArray bytes(4, '\0');
    qToLittleEndian(static_cast<quint32>(value), bytes.data());
    return bytes;
}

TEST(DictionaryReaders, ReadACompressedSwordDictionaryAndRefuseADamagedOne)
{
    const SourceFiles files;
    const QByteArray first =
        "<entryFree n=\"AI\"><def><lb/>&#8594; <ref osisRef=\"x\">Jos 7:2</ref>"
        "<list><item>burnt &amp; rebuilt</item></list></def></entryFree>";
    const QByteArray second = "plain";
    QByteArray block = number(2) + number(20) + number(first.size()) + number(20 + first.size()) +
                       number(second.size());
    block += first + second;
    const QByteArray packed = qCompress(block).sliced(4);
    QByteArray heads;
    QByteArray index;
    const auto add = [&](const QByteArray& record) {
        index += number(heads.size()) + number(record.size());
        heads += record;
    };
    add("AI\r\n" + number(0) + number(0));
    add("HAI\r\n@LINK AI");
    add("BOW\r\n" + number(0) + number(1));
    const QString stem = files.path(u"made"_s);
    const auto write = [&](const QString& ending, const QByteArray& bytes) {
        QFile file(stem + ending);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    };
    write(u".idx"_s, index);
    write(u".dat"_s, heads);
    write(u".zdx"_s, number(0) + number(packed.size()));
    write(u".zdt"_s, packed);
    const auto read = readSwordLexicon(stem);
    ASSERT_TRUE(read.ok()) << read.failure().detail.toStdString();
    EXPECT_EQ(read.value(),
              (Entries{{u"AI"_s, u"&#8594; Jos 7:2\nburnt & rebuilt"_s}, {u"BOW"_s, u"plain"_s}}));
    write(u".zdt"_s, packed.chopped(5));
    EXPECT_FALSE(readSwordLexicon(stem).ok());
    write(u".zdt"_s, packed);
    write(u".dat"_s, heads.chopped(3));
    EXPECT_FALSE(readSwordLexicon(stem).ok());
}

} // namespace
} // namespace lumen
