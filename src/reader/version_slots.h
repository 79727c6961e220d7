// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/version_lists.h"
#include "forms/versions/version_choice.h"
#include "jet/data_control.h"
#include "reader/views/chapter_document.h"

#include <QString>

#include <array>
#include <memory>
#include <vector>

namespace lumen {

/// The base version and the three parallel ones.
inline constexpr int kSlotCount = 4;

/// One open version of the reader.
struct VersionSlot
{
    VersionSlot(Services& services, const AppState& state, const VersionChoiceRule& rule);

    VersionChoice choice;
    DataControl control; ///< dacBasis, dacPara1 to dacPara3
    QString table = kNoVersion.toString();
    int code = 0; ///< 0 when the slot is empty

    bool isOpen() const { return code != 0; }
};

/// The versions that the reader shows, with the data control that holds the open chapter of each.
class VersionSlots
{
public:
    VersionSlots(Services& services, const AppState& state);

    /// Takes the lists of versions anew, as CheckData has found them; all slots are empty then.
    void takeStock();
    VersionSlot& operator()(int slot) { return *m_slots[static_cast<std::size_t>(slot)]; }
    const VersionSlot& operator()(int slot) const
    {
        return *m_slots[static_cast<std::size_t>(slot)];
    }
    DataControl& dacBasis() { return (*this)(0).control; }

    /// Takes an accepted choice into its slot; the module is opened by the next readChapter.
    void take(int slot, const ChosenVersion& chosen);
    /// True when a slot holds Hebrew, whose lines depend on the width of the view.
    bool holdsHebrew() const;

    /// Reads the chapter from each open slot, texts unscrambled; the base version comes first.
    /// Without a row in the base version the answer has that one source, empty. Throws JetError.
    std::vector<ChapterSource> readChapter(int book, int chapter,
                                           DocumentKind kind = DocumentKind::Reader);
    /// Frees the modules.
    void close();

private:
    static ChapterSource readSource(VersionSlot& slot, int number, const QString& query);

    Services& m_services;
    const AppState& m_state;
    std::array<std::unique_ptr<VersionSlot>, kSlotCount> m_slots;
};

} // namespace lumen
