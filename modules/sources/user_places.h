// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <compare>
#include <optional>

namespace lumen {

/// A chapter; the book counts from 0, the chapter from 1.
struct ChapterPlace
{
    int book = 0;
    int chapter = 0;

    auto operator<=>(const ChapterPlace&) const = default;
};

/// Places as users write them into tables, in the numbering of the keys.
namespace UserPlaces {

/// "창1"; nothing for a chapter that isn't there.
std::optional<ChapterPlace> chapter(const QString& text);
/// Whether "시23", "시100:1" or "시100:1-5" is all there.
bool exists(const QString& reference);
/// The key of one verse, "요3:16"; nothing for a verse that isn't there.
std::optional<QString> verseKey(const QString& reference);
/// The parts of a list "a; b".
QStringList parts(const QString& list);

} // namespace UserPlaces

} // namespace lumen
