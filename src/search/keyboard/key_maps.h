// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "search/original/original_query.h"

#include <QString>

#include <array>

namespace lumen {

/// The keys of the on-screen keyboard that type a character: the rows from left to right, the
/// grave accent last.
inline constexpr int kTypingKeyCount = 47;

/// Which map is in force.
enum class KeyState { Plain, Shift, CapsLock, CapsLockShift };

constexpr KeyState keyState(bool capsLock, bool shift)
{
    if (capsLock)
        return shift ? KeyState::CapsLockShift : KeyState::CapsLock;
    return shift ? KeyState::Shift : KeyState::Plain;
}

using KeyMap = std::array<QString, kTypingKeyCount>;
/// By KeyState.
using KeyMaps = std::array<KeyMap, 4>;

/// The four maps. An entry is the character as a button's caption takes it: the ampersand is "&&".
KeyMaps SetupKeyMap();

/// The font that draws a language's codes.
QString languageFont(OriginalLanguage language);
/// What a button shows for a map's entry: a mark stands on a letter or a dotted circle, as it would
/// be drawn off the button's middle by itself.
QString keyCaption(const QString& entry, OriginalLanguage language);
/// What the code stands for, as Unicode; the code itself where it has no sign.
QString keyMeaning(QChar code, OriginalLanguage language);

} // namespace lumen
