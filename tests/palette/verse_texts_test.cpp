// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/check_data.h"
#include "palette/folded_text.h"
#include "palette/verse_texts.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <QFile>

#include <algorithm>
#include <random>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

constexpr int kAll = 100'000;

TEST(VerseTextsTest, WhatOneTypesMeansTheSameInEverySpelling)
{
    VerseTexts verses;
    verses.add({0, 1, 1}, u"하나님이 등불을 켜시니라"_s);
    verses.add({0, 1, 2}, u"בְּרֵאשִׁית־מֶלֶךְ"_s);
    verses.add({0, 1, 3}, u"Ἐν ἀρχῇ λόγος"_s);
    verses.add({0, 1, 4}, u"The Lamp, God’s lamp"_s);
    struct Row
    {
        QString typed;
        int verse;
    };
    const Row rows[] = {
        {u"하나님"_s, 1},   {u"하나님"_s.normalized(QString::NormalizationForm_D), 1},
        {u"ㅎㄴㄴ"_s, 1},   {u"등불 ㅎㄴ"_s, 1},
        {u"하ㄴ님"_s, 1},   {u"켜시 하나님이"_s, 1},
        {u"בראשית"_s, 2},   {u"בְּרֵאשִׁית"_s, 2},
        {u"מלכ"_s, 2},      {u"αρχη"_s, 3},
        {u"ἀρχῇ"_s, 3},     {u"ΛΟΓΟΣ"_s, 3},
        {u"lamp"_s, 4},     {u"ＬＡＭＰ the"_s, 4},
        {u"ㅎㄴㄷ"_s, 0},   {u"등 불"_s, 1},
        {u"등불을켜"_s, 0}, {u"lamp 등불"_s, 0},
        {u"  "_s, 0},       {u"\n"_s, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.typed.toStdString());
        const VerseHits hits = verses.search(row.typed, kAll);
        EXPECT_EQ(hits.count, row.verse == 0 ? 0 : 1);
        if (!hits.first.empty()) {
            EXPECT_EQ(verses.place(hits.first[0]).verse, row.verse);
        }
    }
}

// A word as a pattern over the letters of a verse: a consonant stands for all of its syllables.
bool stands(const QString& word, const QString& text)
{
    for (qsizetype at = 0; at + word.size() <= text.size(); ++at) {
        qsizetype same = 0;
        for (; same < word.size(); ++same) {
            const char16_t wanted = word[same].unicode();
            const char16_t there = text[at + same].unicode();
            const bool isConsonant = wanted >= 0x1100 && wanted <= 0x1112;
            const int first = 0xAC00 + (wanted - 0x1100) * 588;
            if (isConsonant ? there != wanted && (there < first || there >= first + 588)
                            : there != wanted)
                break;
        }
        if (same == word.size())
            return true;
    }
    return false;
}

// Parts of verses of the version, now and then as consonants, now and then two of them.
QString query(const VerseTexts& verses, std::mt19937& random)
{
    const auto upTo = [&random](qsizetype most) {
        return std::uniform_int_distribution<qsizetype>(0, most)(random);
    };
    QStringList words;
    do {
        const QString text = verses.text(static_cast<int>(upTo(verses.size() - 1)));
        const qsizetype length = 1 + upTo(6);
        const QString part = text.mid(upTo(std::max<qsizetype>(0, text.size() - length)), length);
        words << (upTo(3) == 0 ? initialsOf(foldedText(part)) : part);
    } while (upTo(2) == 0);
    return words.join(u' ');
}

TEST(VerseTextsTest, AThousandQueriesFindWhatAPlainScanFinds)
{
    const QString modules = qEnvironmentVariable("LUMENSCRIPT_MODULES");
    TestServices world;
    for (const QString& file : {u"201.dts"_s, u"301.dts"_s, u"305.dts"_s, u"101.dts"_s})
        QFile::link(modules + u'/' + file, world.folders.data(file));
    CheckData(world.state, world.files, world.jet);
    if (!world.state.installed.hasVersion(201))
        GTEST_SKIP() << "LUMENSCRIPT_MODULES names no folder of modules";
    for (const int code : {101, 201, 301, 305}) {
        if (!world.state.installed.hasVersion(code))
            continue;
        VerseTexts verses;
        verses.open(world.services, world.state, code);
        while (verses.readOn()) {
        }
        ASSERT_GT(verses.size(), 7000);
        QStringList folded;
        for (int verse = 0; verse < verses.size(); ++verse)
            folded << foldedText(verses.text(verse));
        std::mt19937 random(7);
        for (int i = 0; i < 250; ++i) {
            const QString typed = query(verses, random);
            const QStringList words = foldedText(typed).split(u' ', Qt::SkipEmptyParts);
            std::vector<int> expected;
            for (int verse = 0; verse < verses.size() && !words.isEmpty(); ++verse)
                if (std::ranges::all_of(
                        words, [&](const QString& word) { return stands(word, folded[verse]); }))
                    expected.push_back(verse);
            ASSERT_EQ(verses.search(typed, kAll).first, expected)
                << code << ' ' << typed.toStdString();
        }
    }
}

} // namespace
} // namespace lumen
