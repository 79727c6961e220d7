// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace lumen {

/// The version of the rules by which modules are made; a module of other rules is made anew.
inline constexpr int kBuilderVersion = 10;

/// The keys of the origin lines that hold the stamp and the version of the rules.
inline constexpr QStringView kStampKey = u"stamp";
inline constexpr QStringView kRulesKey = u"rules";

/// The mark of a module that is made of a user's own table: a build without that table leaves it as
/// it is. It begins the stamp.
inline constexpr QStringView kOwnMark = u"own:";

/// The stored form of what tells a module's making apart.
QString stampOf(const QString& making);

/// What a finished module says of its making, "" when there is no such line or the file is no
/// module.
QString originLine(const QString& moduleFile, QStringView key);
/// The stamp that a finished module holds.
QString storedStamp(const QString& moduleFile);

} // namespace lumen
