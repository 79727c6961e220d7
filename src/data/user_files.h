// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/import/openable_store.h"
#include "jet/store/file_policy.h"
#include "jet/store/store_writer.h"

#include <QString>
#include <QStringView>

#include <array>
#include <vector>

namespace lumen {

/// The password of all modules, and of the user files that came with them.
inline constexpr QStringView kModulePassword = u"qolvetrinam";

/// Whether the end of the program compacts a file. The test for a left-over copy makes a doubled
/// backslash a blank and a backslash in the odd windows, so that it never finds one in a drive's
/// root. That is how these windows do it.
enum class Compacting { No, Yes, WithOddTest };

/// The databases that hold the user's own texts.
inline constexpr FilePolicy kUserTexts{false, StoreSync::Full, StoreCompare::Text};

/// One file that the program writes the user's work to. All lie in the folder \Data.
struct UserFile
{
    QStringView name; ///< "\myc.mdb"
    /// The tables of a new file; nullptr for a file of lines of text.
    std::vector<TableSchema> (*tables)() = nullptr;
    bool beginsWithRecord = false; ///< of today, in the first table of a new file
    FilePolicy policy = kUserTexts;
    QStringView password = {}; ///< also known to the engine as the default one; "" for none
    Compacting compacting = Compacting::Yes;
    bool backedUp = true;    ///< at the end, under the same name
    QStringView madeAs = {}; ///< what a first start calls it; "" for its name

    bool isDatabase() const { return tables != nullptr; }
    /// "\mycc.mdb", the compact copy.
    QString copyName() const;
    /// "\mycbak.mdb", the backup before the last.
    QString formerBackupName() const;
};

namespace user_file {
std::vector<TableSchema> noteTables();
std::vector<TableSchema> sermonTables();
std::vector<TableSchema> quietTimeTables();
std::vector<TableSchema> addressTables();
std::vector<TableSchema> illustrationTables();
std::vector<TableSchema> scratchTables();

inline constexpr UserFile kNotes{.name = u"\\myc.mdb", .tables = noteTables};
inline constexpr UserFile kBookmarks{.name = u"\\bmk.bmf", .compacting = Compacting::No};
inline constexpr UserFile kSermons{.name = u"\\설교매니저.mdb",
                                   .tables = sermonTables,
                                   .beginsWithRecord = true,
                                   .compacting = Compacting::WithOddTest};
inline constexpr UserFile kQuietTime{.name = u"\\QT.mdb",
                                     .tables = quietTimeTables,
                                     .beginsWithRecord = true,
                                     .compacting = Compacting::WithOddTest,
                                     .madeAs = u"\\qt.mdb"};
inline constexpr UserFile kAddresses{.name = u"\\전자우편주소록.mdb",
                                     .tables = addressTables,
                                     .compacting = Compacting::WithOddTest};
inline constexpr UserFile kIllustrations{.name = u"\\예화.dts",
                                         .tables = illustrationTables,
                                         .password = kModulePassword,
                                         .compacting = Compacting::WithOddTest};
/// What is lost of it is made anew, so it trades safety for speed.
inline constexpr UserFile kSearchScratch{
    .name = u"\\z199.dts",
    .tables = scratchTables,
    .policy = {false, StoreSync::None, StoreCompare::Binary},
    .password = kModulePassword,
    .backedUp = false,
};
inline constexpr std::array kAll{kNotes,     kBookmarks,     kSermons,      kQuietTime,
                                 kAddresses, kIllustrations, kSearchScratch};
} // namespace user_file

/// How the engine treats a file of the program: a user file by its row, another .mdb as a copy or a
/// backup of one, a .draft as the unsaved text of one; all others are modules, which are only read.
/// A native path or a name.
FilePolicy filePolicy(const QString& path);

/// The native path of the import program: beside the running program, else in its libexec folder;
/// the first of the two when there is none.
QString importProgram();

/// The engine's import as the program runs it: the program above, converted modules in the user's
/// cache folder, and nobody to talk with.
ImportOptions importOptions();

} // namespace lumen
