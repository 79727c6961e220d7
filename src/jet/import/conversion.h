// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/store/file_policy.h"

#include <QString>
#include <QStringList>

namespace lumen {

class ImportTalk;

/// The exit codes of the import program. Whatever else happens to it counts as Damaged.
enum class ImportExit {
    Done = 0,
    Failed = 1,
    Usage = 2,
    Damaged = 3,
    WrongPassword = 4,
    CannotWrite = 5
};

/// The environment variable that hands the import program a password: unlike an argument, other
/// users can't see it.
inline constexpr char kImportPasswordVariable[] = "LUMEN_IMPORT_PASSWORD";

/// One conversion. Paths are native; the destination must not exist.
struct JetConversion
{
    QString source;
    QString destination;
    QString password;
    StoreCompare compare = StoreCompare::Binary;
};

/// Runs the import program on one file, within limits of memory and of computing time by the file's
/// size, and waits for its end or until `talk` (which may be nullptr) ends it. Throws JetError:
/// 3343 when the file is damaged or the program didn't end well, 3031, 3183 when the destination
/// can't be written, 3059 when the user ended it. May leave a half-made destination: give it a
/// folder that is removed afterwards.
void convertJetFile(const JetConversion& conversion, const QString& importProgram,
                    ImportTalk* talk = nullptr);
/// What a converted store lacks of its source, a line each; empty when all came over.
QStringList lossesOf(const QString& store);

} // namespace lumen
