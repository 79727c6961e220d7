// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "data/versions.h"
#include "platform/message_text.h"

#include <QList>
#include <QString>
#include <QStringView>

namespace lumen {

/// What an empty parallel slot is called. Whether it is empty its code tells: a version of the
/// user's may have this name.
inline constexpr QStringView kNoVersion = u"None";

/// The name of a version: its row's, for a user slot the table of its module. "" for a code that
/// isn't known or a slot that is absent.
QString versionName(int code, const InstalledFlags& installed);

/// One item of a version combo.
struct VersionItem
{
    QString label;
    /// The ItemData; 0 for the " - 없음" item.
    int code = 0;
    bool present = false;
    /// The place in the combo, from 0.
    int index = 0;
};

/// The items of a version combo in their order. `number` 0 is the base version's combo and any
/// other without a prefix; 1 to 3 are the parallel slots, whose items begin "대역본1 - " and whose
/// first item is "대역본1 - 없음".
QList<VersionItem> SetClassicCombo(const InstalledFlags& installed, int number);

/// One tool of a version menu.
struct VersionTool
{
    QString id; ///< "ID_대역본0-101"
    QString caption;
    int code = 0;
    bool enabled = false;
    bool visible = true;
    /// The TagVariant: the place of the same version in the combo of the same number, -1 for a
    /// version that isn't in it.
    int itemNumber = -1;
};

/// The tools of a version menu, `number` as in SetClassicCombo. The menus of the parallel slots
/// begin with "ID_대역본1-없음". A slot of the user's without a module is there but not visible.
QList<VersionTool> SetupMenu(const InstalledFlags& installed, int number);

/// The place of a code among the items, -1 when it has none.
int indexOfVersion(const QList<VersionItem>& items, int code);
/// The index that a saved one stands for: 0 when it lies outside or names an absent row.
int restoredVersionIndex(const QList<VersionItem>& items, int saved);
/// Where the choice goes while the window loads and the row is absent: the next one, from the last
/// to the first.
int nextVersionIndex(const QList<VersionItem>& items, int index);

/// How an absent version was come upon.
enum class AbsentVersion { ComboRow, BaseFile, ParallelFile };

/// The message that the choice of an absent version gets.
MessageText absentVersionMessage(int code, AbsentVersion how);

} // namespace lumen
