// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "sources/version_text.h"

#include <QString>
#include <QStringList>

namespace lumen {

/// A SWORD module on disk: the folder that holds "mods.d" and the module's name.
struct SwordModule
{
    QString root;
    QString name;
};

/// The module that a conf file describes; an empty name when the file names none.
SwordModule swordModuleOf(const QString& confFile);
/// The conf file of a module below `root`, "" if it is not there.
QString swordConfFile(const SwordModule& module);
/// The files that a module's text stands in, with the conf file; for telling whether it changed.
QStringList swordFiles(const SwordModule& module);

/// Reads a Bible module of any numbering and mark-up. OSIS keeps its titles, from other mark-up
/// only the plain text is taken. A verse that a module links to the one before has no words of its
/// own. Modules are read one at a time, whatever thread asks: the library is not safe otherwise.
VersionResult readSwordModule(const SwordModule& module);

} // namespace lumen
