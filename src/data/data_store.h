// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/path_resolver.h"
#include "platform/result.h"

#include <QDate>
#include <QString>

namespace lumen {

class FileSystem;
class JetEngine;

/// The connect strings, one for each way of opening. The engine looks at the password alone, but
/// the texts stay as they are.
namespace connect_text {
inline constexpr char16_t kDataControl[] = u";uid=admin;pwd=qolvetrinam";
inline constexpr char16_t kDialog[] = u";uid=administrator;pwd=qolvetrinam";
inline constexpr char16_t kDialogEnded[] = u";uid=administrator;pwd=qolvetrinam;";
inline constexpr char16_t kDialogBookChange[] = u";id=administrator;pwd=qolvetrinam";
inline constexpr char16_t kSearch[] = u"ms access;pwd=qolvetrinam";
inline constexpr char16_t kPanel[] = u";pwd=qolvetrinam";
inline constexpr char16_t kCheckData[] = u"MS Access;pwd=qolvetrinam";
} // namespace connect_text

/// Makes the user databases that don't exist yet, and the folder for them: notes, sermons,
/// quiet-time notes, mail addresses, illustrations, and the scratch tables of the search. `today`
/// is the date of the first, empty sermon and note. One that fails doesn't keep the others from
/// being made; the first failure is told.
Result<Done> createUserDatabases(const QString& appPath, FileSystem& files,
                                 const PathResolver& paths, const QDate& today);

/// Writes the empty scratch tables of the search over whatever stands under their name, in one
/// step. Fails while the file is open.
Result<Done> createScratchTables(const QString& appPath, const JetEngine& jet);

} // namespace lumen
