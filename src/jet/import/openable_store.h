// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/store/file_policy.h"

#include <QString>

namespace lumen {

class ImportTalk;

/// Where the engine finds its import program and keeps what it converted. Native paths.
struct ImportOptions
{
    /// Called as "import --compare <word> -- <source> <destination>"; see ImportExit.
    QString importProgram;
    QString cacheFolder;
    /// Without one nothing incomplete takes the place of a user database, and nobody is told.
    ImportTalk* talk = nullptr;
};

/// A database that is to be opened: its native path, the password of the connect string and how the
/// file is treated.
struct ImportSource
{
    QString path;
    QString password;
    FilePolicy policy{};
};

/// The native path of the store that stands for a database: the file itself when it is a store
/// already; for a genuine Jet file the converted one, made on the first call for its content. The
/// store of a file that is only read lies in the cache folder; any other in a writable folder is
/// replaced by its store and kept as "<name>.jet". One whose folder can't be written, or whose
/// losses the user doesn't take, has its store in the cache, for reading only. The password is
/// compared for genuine files only, and nothing is converted when it is wrong. Throws JetError:
/// 3024 no file, 3343 no database or damaged, 3031.
QString openableStore(const ImportSource& database, const ImportOptions& options);

} // namespace lumen
