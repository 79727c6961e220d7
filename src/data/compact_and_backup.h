// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"

#include <QString>
#include <QStringView>

#include <array>
#include <optional>

namespace lumen {

class FileSystem;
class JetEngine;

/// One user file as the window that closes it treats it. All names stand in the folder \Data.
struct UserFile
{
    QStringView name;   ///< "\myc.mdb"
    QStringView copy;   ///< of the compact copy, "\mycc.mdb"; "" for a file that isn't compacted
    QStringView backup; ///< "" for a file that isn't backed up
    QStringView formerBackup;
    /// Known to the engine as default password and given to the copy; "" for none.
    QStringView password = {};
    /// The test for a left-over copy makes a doubled backslash a blank and a backslash, so that it
    /// never finds one in a drive's root. That is how these windows do it.
    bool oddTest = false;
};

namespace user_file {
inline constexpr UserFile kNotes{u"\\myc.mdb", u"\\mycc.mdb", u"\\myc.mdb", u"\\mycbak.mdb"};
inline constexpr UserFile kBookmarks{u"\\bmk.bmf", u"", u"\\bmk.bmf", u"\\bmkbak.bmf"};
inline constexpr UserFile kSermons{u"\\설교매니저.mdb",
                                   u"\\설교매니저c.mdb",
                                   u"\\설교매니저.mdb",
                                   u"\\설교매니저bak.mdb",
                                   u"",
                                   true};
inline constexpr UserFile kAddresses{u"\\전자우편주소록.mdb",
                                     u"\\전자우편주소록c.mdb",
                                     u"\\전자우편주소록.mdb",
                                     u"\\전자우편주소록bak.mdb",
                                     u"",
                                     true};
inline constexpr UserFile kQuietTime{u"\\QT.mdb",    u"\\QTc.mdb", u"\\QT.mdb",
                                     u"\\QTbak.mdb", u"",          true};
inline constexpr UserFile kIllustrations{u"\\예화.dts",    u"\\예화c.dts", u"\\예화.dts",
                                         u"\\예화bak.dts", u"qolvetrinam", true};
inline constexpr UserFile kSearchScratch{u"\\z199.dts", u"\\z199c.dts", u"", u"", u"qolvetrinam"};
inline constexpr std::array kAll{kNotes,     kBookmarks,     kSermons,      kAddresses,
                                 kQuietTime, kIllustrations, kSearchScratch};
} // namespace user_file

/// The program's path of the folder that holds the backups.
QString backupFolder(const QString& appPath);

/// Compacts a user file in \Data and copies it to the folder \OrvaneBackup of the program's drive,
/// which keeps the last two generations. The file must be closed. A failed compaction leaves the
/// file as it was; a file that is gone or damaged leaves its backups as they are, and a damaged
/// backup never takes the place of the one before it. No failure ends the routine; what could not
/// be copied is the answer, for the window to tell, "" when all went well or there was nothing to
/// copy.
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
