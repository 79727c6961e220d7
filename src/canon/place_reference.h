// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canon/verse_index.h"

#include <QList>
#include <QString>

namespace lumen {

/// Verses that were asked for, both ends included and always of one book. A verse of 0 stands for
/// all of its chapter.
struct PlaceRange
{
    VersePlace first;
    VersePlace last;

    friend bool operator==(const PlaceRange&, const PlaceRange&) = default;
};

/// Reads references as people write them, Korean or English: "창 1장 1절", "고전 13:4-7, 10; 14",
/// "시편 23편", "1 Cor 13", also several books behind each other. Empty when any part of the text
/// can't be read, a chapter is beyond its book or a range runs backwards: a place that is nearly
/// right would be a wrong one. Whether a version has the verse is for the caller to ask.
QList<PlaceRange> parsePlaces(const QString& typed);

} // namespace lumen
