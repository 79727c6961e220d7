// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace lumen {

class ImportTalk;

/// Where the engine finds its import program and keeps what it converted.
struct ImportOptions
{
    /// Native path of lumen-modules; "" looks beside the program, then in the libexec folder.
    QString importProgram;
    QString cacheFolder; ///< native; "" is $XDG_CACHE_HOME/lumenscript/modules
    /// Without one nothing incomplete takes the place of a user database, and nobody is told.
    ImportTalk* talk = nullptr;
};

/// The native path of the store that stands for the database `nativePath`: the file itself when it
/// is a store already; for a genuine Jet file the converted one, made on the first call for its
/// content. A module's store lies in the cache folder, a user database (.mdb, 예화.dts, z199.dts)
/// in a writable folder is replaced by its store and kept as "<name>.jet". One whose folder can't
/// be written, or whose losses the user doesn't take, has its store in the cache, for reading only.
/// `password` is that of the connect string; it is compared for genuine files only, and nothing is
/// converted when it is wrong. Throws JetError: 3024 no file, 3343 no database or damaged, 3031.
QString openableStore(const QString& nativePath, const QString& password,
                      const ImportOptions& options);

} // namespace lumen
