// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace lumen {

/// The reader's place and versions, as the other windows see them. Books are zero-based, chapters
/// and verses count from 1.
class ReaderPlace
{
public:
    virtual ~ReaderPlace() = default;

    virtual int book() const = 0;
    virtual int chapter() const = 0;
    /// The table name of a slot: 0 the base version, 1 to 3 the parallel ones ("None" when empty).
    virtual QString versionName(int slot) const = 0;
    /// The version code of a slot, 0 when it is empty.
    virtual int versionCode(int slot) const = 0;

    /// The current verse; 0 while the window is loading or hidden.
    virtual int GetCurVerse() const = 0;
    /// The selected verses, "3" or "3-5".
    virtual QString GetCurVerseRange() const = 0;

    /// Goes to a typed reference, with the messages that a wrong one gets.
    virtual void Proc이동(QString& reference) = 0;
    /// Goes to a verse that the program itself knows; no message, no history entry.
    virtual void goTo(int book, int chapter, int verse) = 0;
    /// Takes fonts, colours and copy options from the settings anew and fills again.
    virtual void applySettings() = 0;
    /// Shows the reader in front, restored when it was minimised.
    virtual void bringToFront() = 0;
};

} // namespace lumen
