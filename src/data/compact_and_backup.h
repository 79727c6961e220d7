// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/user_files.h"
#include "platform/result.h"

#include <QString>

#include <optional>

namespace lumen {

class FileSystem;
class JetEngine;

/// The program's path of the folder that holds the backups.
QString backupFolder(const QString& appPath);

/// Compacts a user file in \Data and copies it to the folder \OrvaneBackup of the program's drive,
/// which keeps the last two generations. The file must be closed. A failed compaction leaves the
/// file as it was; a file that is gone or damaged leaves its backups as they are, and a backup only
/// takes the place of the one before it when it was read back and has every record. No failure ends
/// the routine; what could not be copied is the answer, for the window to tell, "" when all went
/// well or there was nothing to copy.
QString CompactAndBackup(const QString& appPath, const UserFile& file, JetEngine& jet,
                         FileSystem& files);

/// A user file that lacks what its backup has, as a start finds it.
struct LostFile
{
    enum class Fault { Gone, Emptied, Damaged };

    Fault fault = Fault::Damaged;
    QString path;
    QString backup; ///< the newest sound one; "" when there is none
    QString aside;  ///< the free name under which a restore keeps the faulty file
};

/// Nothing when the file is sound, or is absent and has never been backed up. A file of bookmarks
/// that is empty counts as emptied only when the last backup holds some: who takes the last
/// bookmark away has an empty backup, too.
std::optional<LostFile> findLostFile(const QString& appPath, const UserFile& file, JetEngine& jet,
                                     FileSystem& files);

/// Puts the faulty file aside and the backup in its place. A failure leaves all as it was.
Result<Done> restoreBackup(const LostFile& lost, FileSystem& files);

} // namespace lumen
