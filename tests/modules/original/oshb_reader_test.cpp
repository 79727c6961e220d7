// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/original/mini_sources.h"
#include "original/hebrew_words.h"
#include "original/original_versions.h"
#include "original/readers/oshb_reader.h"
#include "text/original/original_unicode.h"

#include <gtest/gtest.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

const QString kMaqaf = u"<seg type=\"x-maqqef\">־</seg>"_s;
const QString kSofPasuq = u"<seg type=\"x-sof-pasuq\">׃</seg>"_s;

QString plainWord(const QString& text)
{
    return oshbWord(u"1"_s, u"HNcmsa"_s, text);
}

QString note(const QString& catchWord, const QString& reading)
{
    const QString caught =
        catchWord.isEmpty() ? QString() : u"<catchWord>%1</catchWord>"_s.arg(catchWord);
    return u"<note type=\"variant\">%1<rdg type=\"x-qere\">%2</rdg></note>"_s.arg(caught, reading);
}

// The verse in reading order: unscrambled codes turned round once more.
QString readVerse(const QString& elements, HebrewEdition edition = HebrewEdition::Pointed)
{
    const SourceFiles files;
    const QString file = files.write(u"Gen.xml"_s, oshbBook(oshbVerse(u"Gen.1.1"_s, elements)));
    const auto verses = readOshbFile(file);
    if (!verses)
        return verses.failure().detail;
    const HebrewWords words = hebrewWords(verses.value());
    return reversedHebrew(hebrewVerseText(words.verses.at(0), edition));
}

TEST(HebrewVerse, TellsWhatIsWrittenAndWhatIsRead)
{
    const struct
    {
        const char* what;
        QString elements;
        QString text;
    } cases[] = {
        {"maqaf and sof pasuq", plainWord(u"אב"_s) + kMaqaf + plainWord(u"גד"_s) + kSofPasuq,
         u"ab-gd:"_s},
        {"qere behind its ketiv",
         plainWord(u"אב"_s) + plainWord(u"גַּד"_s) + note(u"גד"_s, plainWord(u"דַּג"_s)) +
             plainWord(u"בא"_s),
         u"ab gd [d51g] ba"_s},
        {"ketiv of two words that the note runs together",
         plainWord(u"אב"_s) + plainWord(u"גַד"_s) + note(u"אבגד"_s, plainWord(u"דַּג"_s)),
         u"ab gd [d51g]"_s},
        {"qere without ketiv", plainWord(u"אָב"_s) + note({}, plainWord(u"דַּג"_s)), u"a4b [d51g]"_s},
        {"ketiv without qere", plainWord(u"אָב"_s) + note(u"אב"_s, {}) + plainWord(u"ג"_s),
         u"ab g"_s},
        {"maqaf inside a qere",
         plainWord(u"אב"_s) + note(u"אב"_s, plainWord(u"ג"_s) + kMaqaf + plainWord(u"ד"_s)),
         u"ab [g-d]"_s},
        {"maqaf behind a qere",
         plainWord(u"אב"_s) + note(u"אב"_s, plainWord(u"ג"_s)) + kMaqaf + plainWord(u"ד"_s),
         u"ab [g]-d"_s},
        {"sof pasuq behind a qere",
         plainWord(u"אב"_s) + note(u"אב"_s, plainWord(u"ג"_s)) + kSofPasuq, u"ab [g]:"_s},
        {"large letters, other notes and marks",
         u"<w lemma=\"1\" morph=\"HNcmsa\">א<seg type=\"x-large\">ב</seg></w>"
         "<note type=\"alternative\"><catchWord>אב</catchWord><rdg "
         "type=\"x-accent\">אב</rdg></note>"
         "<seg type=\"x-paseq\">׀</seg><seg type=\"x-pe\">פ</seg>"
         "<seg type=\"x-reversednun\">׆</seg>"_s,
         u"ab"_s},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.what);
        EXPECT_EQ(readVerse(one.elements), one.text);
    }
}

TEST(HebrewVerse, IsStoredTurnedRoundWithItsBrackets)
{
    OriginalVerse verse;
    for (const Reading reading : {Reading::Ketiv, Reading::Qere}) {
        OriginalWord word;
        word.divided = reading == Reading::Ketiv ? u"ab"_s : u"g/d"_s;
        word.reading = reading;
        verse.words.push_back(word);
    }
    EXPECT_EQ(hebrewVerseText(verse, HebrewEdition::Pointed), u"[dg] ba"_s);
    EXPECT_EQ(hebrewVerseText(verse, HebrewEdition::Divided), u"[d/g] ba"_s);
}

TEST(HebrewVerse, DropsAccentsAndOrdersPoints)
{
    // Shin with dot, dagesh and vowel behind accents; holam on vav; final kaf with sheva.
    const QString elements = plainWord(u"שָּׁ֨לוֹם"_s) + plainWord(u"מֶ֣לֶךְ"_s);
    EXPECT_EQ(readVerse(elements), u"v`54lwo7 m3l36;"_s);
    EXPECT_EQ(readVerse(elements, HebrewEdition::Consonants), u"vlw7 ml6"_s);
}

TEST(OshbReader, NamesTheLineOfAnUnknownVerse)
{
    const SourceFiles files;
    const auto unknown =
        readOshbFile(files.write(u"a.xml"_s, oshbBook(u"\n"_s + oshbVerse(u"Nix.1.1"_s, {}))));
    ASSERT_FALSE(unknown.ok());
    EXPECT_EQ(unknown.failure().kind, FailureKind::Damaged);
    EXPECT_TRUE(unknown.failure().detail.contains(u"Nix.1.1"_s));
    const auto cut = readOshbFile(files.write(u"b.xml"_s, u"<osis><verse osisID=\"Gen.1.1\">"_s));
    ASSERT_FALSE(cut.ok());
    EXPECT_EQ(cut.failure().kind, FailureKind::Damaged);
    EXPECT_EQ(readOshbFile(files.path(u"none.xml"_s)).failure().kind, FailureKind::NotFound);
}

TEST(HebrewWords, AMarkHasTheLanguageOfTheWordBefore)
{
    const SourceFiles files;
    const QString mark = u"<seg type=\"x-samekh\">ס</seg>"_s;
    const QString file =
        files.write(u"Dan.xml"_s,
                    oshbBook(oshbVerse(
                        u"Dan.2.4"_s, plainWord(u"א"_s) + mark +
                                          oshbWord(u"4430"_s, u"ANcmsd/Td"_s, u"מַלְכָּ/א"_s) + mark)));
    const auto verses = readOshbFile(file);
    ASSERT_TRUE(verses.ok());
    const HebrewWords words = hebrewWords(verses.value());
    const auto& verse = words.verses.at(0).words;
    ASSERT_EQ(verse.size(), 4u);
    EXPECT_EQ(verse[1].parsing, u"@xxxxxx"_s);
    EXPECT_EQ(verse[3].parsing, u"%xxxxxx"_s);
    EXPECT_EQ(verse[3].divided, u"s"_s);
    EXPECT_EQ(verse[3].strong, 0);
}

} // namespace
} // namespace lumen
