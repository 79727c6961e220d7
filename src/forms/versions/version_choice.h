// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "data/version_lists.h"

#include <QString>

class QWidget;

namespace lumen {

class ComboBox;
struct Services;

/// Where a silent choice goes on when the absent row was the list's last.
enum class PastLastRow { ToFirst, OneBack };
/// What is put back when the module's file is missing.
enum class AfterMissingFile { Previous, First };

/// In what the combos for versions differ.
struct VersionChoiceRule
{
    int number = 0; ///< 0 a combo without prefix, 1 to 3 the parallel slots
    AbsentVersion missingFile = AbsentVersion::BaseFile;
    PastLastRow pastLastRow = PastLastRow::ToFirst;
    AfterMissingFile afterMissingFile = AfterMissingFile::Previous;
};

/// What came of a choice.
struct ChosenVersion
{
    /// False: the choice was refused with a message, or moves on silently while loading; the combo
    /// has to take `index`, which runs its event again.
    bool accepted = false;
    int index = 0;
    int code = 0;      ///< 0 for an empty slot
    QString tableName; ///< "None" for an empty slot
    QString path;      ///< of the module; "" for an empty slot
};

/// Chooses the version of one slot: knows its items, checks the module, gives the messages and
/// remembers the last accepted choice.
class VersionChoice
{
public:
    VersionChoice(Services& services, const AppState& state, const VersionChoiceRule& rule);

    const QList<VersionItem>& items() const { return m_items; }
    /// -1 when the list has no such version.
    int indexOf(int code) const { return indexOfVersion(m_items, code); }
    /// Fills the combo with the items.
    void fill(ComboBox& combo) const;

    /// The choice of a list index; `loading` passes over absent rows without a message.
    ChosenVersion choose(QWidget* parent, int index, bool loading);
    /// The last accepted index; it is what a refused choice puts back.
    int previousIndex() const { return m_previousIndex; }

private:
    ChosenVersion refuse(QWidget* parent, int code, AbsentVersion how, int backTo) const;
    ChosenVersion moveOn(int index) const;

    Services& m_services;
    const AppState& m_state;
    VersionChoiceRule m_rule;
    QList<VersionItem> m_items;
    int m_previousIndex = 0;
};

} // namespace lumen
