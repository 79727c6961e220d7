// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canon/place_reference.h"

#include <QString>

#include <vector>

namespace lumen {

class ActiveToolBars;

/// What Enter does with a line of the palette.
enum class PaletteKind {
    Place,  ///< goes to a typed reference
    Tool,   ///< runs a tool
    Verse,  ///< goes to a verse that was found
    Search, ///< searches in the search window
};

/// A line of the palette.
struct PaletteEntry
{
    PaletteKind kind = PaletteKind::Tool;
    QString text;
    QString key = {};       ///< the keys that do the same, as the desktop writes them
    QString reference = {}; ///< of a place: as the quick move takes it, "요3:16"
    QString tool = {};
    VersePlace verse = {};
};

/// A range as one reads it: "요한복음 3:16-18", "시편 23편", "창세기 1장".
QString placeText(const PlaceRange& range);

/// The references that a text is, none when it is something else.
std::vector<PaletteEntry> placeEntries(const QString& typed);

/// The tools of a window that can be used now and whose names hold what was typed, blanks aside or
/// as initial consonants; those that begin with it first. All of them for an empty text. Tools of
/// submenus are named behind the submenu.
std::vector<PaletteEntry> toolEntries(const ActiveToolBars& bars, const QString& typed);

} // namespace lumen
