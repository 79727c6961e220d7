// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canon/canon_table.h"

#include <QString>
#include <QStringView>

#include <array>
#include <bitset>

namespace lumen {

/// A button of the book selection and the zero-based books that it ticks.
struct BookRange
{
    QStringView name;
    QStringView caption;
    int first = 0;
    int last = 0;
};

/// Acts (43) and Revelation (65) are in no range: they are reached by hand only.
inline constexpr std::array kBookRanges{
    BookRange{u"cmd모세오경", u"모세오경", 0, 4},   BookRange{u"cmd역사서", u"역사서", 5, 16},
    BookRange{u"cmd시가서", u"시가서", 17, 21},     BookRange{u"cmd대선지서", u"대선지서", 22, 26},
    BookRange{u"cmd소선지서", u"소선지서", 27, 38}, BookRange{u"cmd사복음서", u"사복음서", 39, 42},
    BookRange{u"cmd바울서신", u"바울서신", 44, 56}, BookRange{u"cmd공동서신", u"공동서신", 57, 64},
};

using BookSet = std::bitset<kBookCount>;

/// The abbreviations of the books in canon order, separated by commas; "" for no book.
QString bookListTag(const BookSet& books);

} // namespace lumen
