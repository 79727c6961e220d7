// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace lumen {

/// What a typed reference asks for. Nothing is held against the canon or the open chapter yet:
/// chapter and verse may be too large, and 0 where the text held no number.
struct TypedReference
{
    int book = 0; ///< zero-based
    int chapter = 0;
    int verse = 0;
    /// The text as it was typed, with "1" at its end when it named no verse.
    QString reference;

    friend bool operator==(const TypedReference&, const TypedReference&) = default;
};

/// Reads loose Korean references: "요 3:16", "요한복음 3:16", "창3장", "요한 1서 1:9"; where those
/// forms name no place also "시 23편", "사무엘 상 3:1", and of a book of one chapter "유 3".
/// Decomposed Hangul, full-width signs and blanks of any kind are read as the plain ones. Nothing
/// when the text has no known book, no mark behind the chapter, or anything but digits and blanks
/// as a number.
std::optional<TypedReference> parseTypedReference(const QString& reference);

/// A number held against the highest one there is.
struct LimitedNumber
{
    int value = 0;
    bool wasTooLarge = false;
};

/// A chapter or verse that is too large doesn't stop a move: the last one is taken.
constexpr LimitedNumber limitedTo(int last, int wanted)
{
    return wanted > last ? LimitedNumber{last, true} : LimitedNumber{wanted, false};
}

} // namespace lumen
