// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace lumen {

/// A marker of a USFM file with the text behind it, up to the next marker.
struct UsfmToken
{
    QString marker;       ///< without backslash, "+" and "*": "v", "q1", "f"
    QString text;         ///< line ends made blanks; the one blank that ends the marker is cut off
    int line = 0;         ///< of the marker, from 1
    bool closing = false; ///< "\f*"
};

/// Takes a file apart. What stands in front of the first marker is dropped: some files begin with
/// their licence.
std::vector<UsfmToken> usfmTokens(QStringView file);

/// What a marker means for a Bible text.
enum class UsfmKind {
    Book,       ///< \id
    Chapter,    ///< \c
    Verse,      ///< \v
    Paragraph,  ///< \p, \q1, \b and tables: the verse goes on behind a blank
    Heading,    ///< \s, \ms, \qa: above the next verse
    Speaker,    ///< \sp: above the next verse, but never inside one
    Title,      ///< \d: in front of the next verse
    PassedLine, ///< \h, \r, \ip and the like: the text up to the next paragraph is left out
    Note,       ///< \f, \x, \fig, \va: left out up to its own end
    DivineName, ///< \nd
    Character   ///< all others: the text counts, attributes behind "|" don't
};

UsfmKind usfmKind(QStringView marker);

} // namespace lumen
