// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "sources/module_source.h"

#include <QString>
#include <QStringList>

#include <map>
#include <vector>

namespace lumen {

/// A source that lies in a user's folder, with the module that it is for.
struct UserSource
{
    int code = 0;
    QString name; ///< for a user slot; "" when none was given
    ModuleSource source;
};

struct UserSources
{
    std::vector<UserSource> found;
    QStringList byzantineFiles; ///< tables of the Byzantine Greek text, a book a file
    /// Files for the modules that are no versions, by their names: "hymns.tsv", "101c.tsv".
    std::map<QString, QString> tables;
    QStringList wesleyFiles; ///< Wesley's notes, a book a file
    QStringList remarks;     ///< Korean lines on what has no place
};

/// Looks through a folder and all below it for Bibles: JSON files a book, USFM files, OSIS files,
/// SWORD modules. The code comes from the content (the two Korean editions), from the well-known
/// name of a SWORD module, or from the first three digits of the file's name or of a folder above
/// it: "214/…", "901 나의 역본/…". What has no code is told in a remark.
UserSources findUserSources(const QString& folder);

/// The source that the user names file by file. `format` is sword, osis, usfm or json; for sword
/// the one name is a conf file, a folder with "mods.d" and one module, or an installed module.
Result<ModuleSource> namedSource(const QString& format, const QStringList& files,
                                 const QString& installedSword);

} // namespace lumen
