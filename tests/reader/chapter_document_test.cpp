// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/chapter_reader.h"
#include "reader/views/chapter_document.h"
#include "text/rtf/rtf_reader.h"

#include <gtest/gtest.h>

#include <QTextDocument>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

ChapterStyle plainStyle()
{
    ChapterStyle style;
    style.fonts = defaultFontSettings();
    style.rtf.mainFont = u"굴림"_s;
    style.divideHebrew = [](const QString& stored, const QString&, int, const VerseHead&) {
        return stored;
    };
    return style;
}

/// The document behind its head, which ends with the font table.
QString body(const ComposedChapter& chapter)
{
    const qsizetype head = chapter.rtf.indexOf(u";}}"_s) + 3;
    return chapter.rtf.mid(head);
}

QString shownText(const ComposedChapter& chapter)
{
    QTextDocument document;
    readRtf(toRtfBytes(chapter.rtf), document);
    return document.toPlainText();
}

TEST(ChapterDocument, RowsCarryNumberSeparatorFontColourAndSize)
{
    const std::vector<ChapterSource> sources{
        {0, 101, {{1, u"빛과 {괄호}"_s, u"앞글 "_s, u"첫째 단락"_s}}},
        {1, 201, {{1, u"light"_s, u"unused "_s, u"unused"_s}}},
        {3, 224, {{1, u"свет"_s, {}, {}}}},
    };
    EXPECT_EQ(body(composeChapter(sources, plainStyle())),
              u"\\ltrpar\\ql\t{\\f2\\cf1\\b\\fs20『첫째 단락』}\\par\\par"
              "\\ltrpar\\ql{\\f5\\fs16\\cf5 1}\t\\f2\\cf0\\fs20 앞글 빛과 \\{괄호\\}\\par "
              "\\ltrpar\\ql{\\f5\\fs16\\cf5 1}\t\\f2\\cf2\\fs20 light\\par "
              "\\ltrpar\\ql{\\f5\\fs16\\cf5 1}\t\\f3\\cf4\\fs24 свет\\par }"_s);
}

TEST(ChapterDocument, HebrewRowsRunFromTheRightInDividedLines)
{
    ChapterStyle style = plainStyle();
    style.rtf.fontSize = 5;
    QString font;
    int halfPoints = 0;
    style.divideHebrew = [&](const QString&, const QString& name, int size, const VerseHead&) {
        font = name;
        halfPoints = size;
        return u"tail\\par head"_s;
    };
    const ComposedChapter chapter = composeChapter({{0, 301, {{7, u"headtail"_s, {}, {}}}}}, style);
    EXPECT_EQ(body(chapter), u"\\qr{\\f5\\fs26\\cf5 7}   \\f8\\cf0\\fs51 tail\\par head\\par }"_s);
    EXPECT_EQ(font, u"OrvaneHeb"_s);
    EXPECT_EQ(halfPoints, 51) << "1.6 times 32, cut";

    composeChapter({{0, 303, {{7, u"x"_s, {}, {}}}}}, style);
    EXPECT_EQ(font, u"OrvaneHebC"_s);
}

TEST(ChapterDocument, VersesStandBesideThoseOfTheSameNumber)
{
    const std::vector<ChapterSource> sources{
        {0, 101, {{1, u"가"_s, {}, {}}, {3, QString(), {}, {}}}},
        {1, 201, {{1, u"a"_s, {}, {}}, {2, u"b"_s, {}, {}}, {3, u"c"_s, {}, {}}}},
        {2, 215, {}},
    };
    const ComposedChapter chapter = composeChapter(sources, plainStyle());
    EXPECT_EQ(shownText(chapter), u"1\t가\n1\ta\n3\t\n3\tc\n"_s);
    EXPECT_TRUE(composeChapter({{0, 101, {}}}, plainStyle()).rtf.isEmpty());
}

TEST(ChapterDocument, PositionsAreThoseOfTheShownText)
{
    ChapterStyle style = plainStyle();
    style.languageBar = true;
    style.divideHebrew = [](const QString&, const QString&, int, const VerseHead&) {
        return u"ba\\par dc"_s;
    };
    std::vector<ChapterSource> sources{{0, 101, {}}, {1, 301, {}}, {2, 224, {}}};
    for (int verse = 1; verse <= 12; ++verse) {
        const QString title = verse % 4 == 1 ? u"제목 \\ {가}"_s : QString();
        sources[0].verses.push_back({verse, u"［말씀］ %1 ￦ ¶"_s.arg(verse), u"앞 "_s, title});
        sources[1].verses.push_back({verse, u"dcba"_s, {}, {}});
        sources[2].verses.push_back({verse, u"слово é 𐍈"_s, {}, {}});
    }
    const ComposedChapter chapter = composeChapter(sources, style);
    const QString text = shownText(chapter);
    ASSERT_EQ(chapter.positions.all().size(), 12U);
    for (const VersePosition& position : chapter.positions.all()) {
        SCOPED_TRACE(position.verse);
        const QString shown = text.mid(position.start, position.length);
        const bool titled = position.verse % 4 == 1;
        EXPECT_TRUE(shown.startsWith(titled ? u"\t『제목"_s : u"%1\t앞"_s.arg(position.verse)))
            << shown.toStdString();
        EXPECT_TRUE(shown.endsWith(u"слово é 𐍈\n"_s)) << shown.toStdString();
        EXPECT_EQ(chapter.positions.verseAt(position.start), position.verse);
        EXPECT_EQ(chapter.positions.verseAt(position.start + position.length - 1), position.verse);
    }
    EXPECT_EQ(chapter.positions.verseAt(0), 1) << "the blank line belongs to the first verse";
    EXPECT_EQ(chapter.positions.verseAt(1000000), 12);
}

TEST(ChapterDocument, EverySignTakesOnePlace)
{
    QString signs;
    for (char32_t c = 0; c <= 0x10FFFF; c += c < 0xFFFF ? 1 : 0x1111)
        if (!QChar::isSurrogate(c))
            signs += QString::fromUcs4(&c, 1);
    const QString line = singleLine(u"\r\na\r\nb \n c\td\u2028e\0f\x7Fg\n"_s + signs);
    EXPECT_TRUE(line.startsWith(u"a b  c d efg !\"#"_s)) << line.left(20).toStdString();
    const ComposedChapter chapter =
        composeChapter({{0, 101, {{1, line, {}, line}, {2, u"둘"_s, {}, {}}}}}, plainStyle());
    EXPECT_EQ(shownText(chapter).mid(chapter.positions.find(2).value().start), u"2\t둘\n"_s);
}

} // namespace
} // namespace lumen
