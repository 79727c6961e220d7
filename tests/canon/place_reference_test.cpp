// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/canon_table.h"
#include "canon/place_reference.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

// "요3:16-요3:18" for each range, blanks between them.
QString shown(const QList<PlaceRange>& ranges)
{
    QStringList texts;
    for (const PlaceRange& range : ranges)
        texts << u"%1%2:%3-%4:%5"_s.arg(bookAbbreviation(range.first.book))
                     .arg(range.first.chapter)
                     .arg(range.first.verse)
                     .arg(range.last.chapter)
                     .arg(range.last.verse);
    return texts.join(u' ');
}

struct Form
{
    const char16_t* written; ///< B is the book's name, c a chapter
    const char16_t* meant;
};

QString filled(const char16_t* pattern, const QString& name, int chapter)
{
    return QString::fromUtf16(pattern).replace(u'c', QString::number(chapter)).replace(u'B', name);
}

QString inFullWidth(QString text)
{
    for (QChar& c : text)
        if (c > u' ' && c < QChar(0x7F))
            c = QChar(char16_t(c.unicode() + 0xFEE0));
    return text;
}

// Every book under both of its names, in every form, in three spellings.
TEST(PlaceReferenceTest, PlacesAreReadInEveryUsualForm)
{
    constexpr Form kForms[] = {
        {u"B c:4", u"Bc:4-c:4"},
        {u"Bc:4", u"Bc:4-c:4"},
        {u"B c장 4절", u"Bc:4-c:4"},
        {u"B 제c장 4~7절", u"Bc:4-c:7"},
        {u"B c장", u"Bc:0-c:0"},
        {u"B c : 4 – 7", u"Bc:4-c:7"},
        {u"B c.4,6-7", u"Bc:4-c:4 Bc:6-c:7"},
        {u"B c:4; 요 3:16", u"Bc:4-c:4 요3:16-3:16"},
    };
    int forms = 0;
    for (int book = 0; book < kBookCount; ++book) {
        const int chapter = chapterCount(book);
        for (const QString& name : {bookAbbreviation(book), bookName(book)}) {
            for (const Form& form : kForms) {
                const QString meant = filled(form.meant, bookAbbreviation(book), chapter);
                const QString text = filled(form.written, name, chapter);
                for (const QString& typed :
                     {text, inFullWidth(text), text.normalized(QString::NormalizationForm_D)}) {
                    EXPECT_EQ(shown(parsePlaces(typed)), meant) << typed.toStdString();
                    ++forms;
                }
            }
        }
    }
    EXPECT_GE(forms, 2000);
}

TEST(PlaceReferenceTest, NamesRangesAndListsAreUnderstood)
{
    constexpr Form kRows[] = {
        {u"John 3:16", u"요3:16-3:16"},
        {u"1 Cor 13", u"고전13:0-13:0"},
        {u"II Tim. 3:16", u"딤후3:16-3:16"},
        {u"Song of Solomon 2:1", u"아2:1-2:1"},
        {u"Phil 4:13; Phm 6", u"빌4:13-4:13 몬1:6-1:6"},
        {u"창세기 1", u"창1:0-1:0"},
        {u"시편 23편 1-3절", u"시23:1-23:3"},
        {u"사무엘 상 17", u"삼상17:0-17:0"},
        {u"요한 1서 1:9", u"요일1:9-1:9"},
        {u"요1 1:9", u"요일1:9-1:9"},
        {u"요1:9", u"요1:9-1:9"},
        {u"유 3", u"유1:3-1:3"},
        {u"창 1-3장", u"창1:0-3:0"},
        {u"창 1:26-2:3, 7; 4", u"창1:26-2:3 창2:7-2:7 창4:0-4:0"},
        {u"시 23, 24", u"시23:0-23:0 시24:0-24:0"},
    };
    for (const Form& row : kRows)
        EXPECT_EQ(shown(parsePlaces(QString::fromUtf16(row.written))),
                  QString::fromUtf16(row.meant))
            << QString::fromUtf16(row.written).toStdString();
}

TEST(PlaceReferenceTest, WhatIsNoPlaceIsNotGuessed)
{
    for (const char16_t* typed :
         {u"", u"하나님", u"3:16", u"창", u"창 51:1", u"창 0:1", u"창 1:0", u"창 5-3", u"창 1:7-4",
          u"요 3 16", u"요 3:16 17", u"요 3:16;", u"요 3:16 외", u"Jud 3", u"4 Cor 1:1",
          u"시 119:177", u"창 1-3:5", u"없는책 1:1", u"요 3:1234567890123"})
        EXPECT_EQ(shown(parsePlaces(QString::fromUtf16(typed))), QString())
            << QString::fromUtf16(typed).toStdString();
}

} // namespace
} // namespace lumen
