// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringView>

#include <array>

namespace lumen {

inline constexpr int kBookCount = 66;
inline constexpr int kChapterTotal = 1189;
/// The zero-based number of Matthew; all books before it are of the Old Testament.
inline constexpr int kFirstNewTestamentBook = 39;

/// One group of books as the search scopes offer it. Book keys are one-based; label and toolId are
/// empty for Revelation, which stands alone and is never offered.
struct BookGroup
{
    QStringView code;
    QStringView label;
    QStringView toolId;
    int firstBookKey = 0;
    int lastBookKey = 0;
};

/// The groups in canon order. Acts (book key 44) is in none of the ranges, so a scope by range
/// never reaches it.
inline constexpr std::array kBookGroups{
    BookGroup{u"모", u"모세오경", u"ID_모세오경", 1, 5},
    BookGroup{u"역", u"역사서", u"ID_역사서", 6, 17},
    BookGroup{u"시", u"시가서", u"ID_시가서", 18, 22},
    BookGroup{u"대", u"대선지서", u"ID_대선지서", 23, 27},
    BookGroup{u"소", u"소선지서", u"ID_소선지서", 28, 39},
    BookGroup{u"사", u"사복음서", u"ID_사복음서", 40, 43},
    BookGroup{u"바", u"바울서신", u"ID_바울서신", 45, 57},
    BookGroup{u"공", u"공동서신", u"ID_공동서신", 58, 65},
    BookGroup{u"계", {}, {}, 66, 66},
};

/// The Korean abbreviation of one or two syllables. Books count from 0 (Genesis) to 65
/// (Revelation) here and below; a number outside gives "".
QString bookAbbreviation(int book);
/// The full Korean name, "" for a number outside the canon.
QString bookName(int book);
/// The number of chapters, 0 for a number outside the canon.
int chapterCount(int book);
/// The one-letter code of the book's group as the `Category` columns hold it; "" for Acts and for
/// a number outside the canon.
QString bookGroup(int book);
/// "구" for the Old Testament and "신" for the New, "" for a number outside the canon.
QString testament(int book);

/// The part of the canon whose language, texts and dictionary are meant.
enum class Testament { Old, New };

constexpr Testament testamentOf(int book)
{
    return book < kFirstNewTestamentBook ? Testament::Old : Testament::New;
}

} // namespace lumen
