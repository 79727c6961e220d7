// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "sources/sword/sword_reader.h"
#include "sources/version_text.h"

#include <QString>
#include <QStringList>

namespace lumen {

enum class SourceFormat { Sword, Osis, OsisWithNumbers, Usfm, BookJson, NestedJson, FlatJson };

/// Where the text of a version comes from.
struct ModuleSource
{
    SourceFormat format = SourceFormat::Usfm;
    QStringList files; ///< native paths; empty for SWORD
    SwordModule sword;
};

/// Reads a source in its own order; the verses are not arranged yet.
VersionResult readSource(const ModuleSource& source);

/// True if all files are there.
bool sourceIsThere(const ModuleSource& source);

/// A text that changes when a file of the source does: names, sizes and times of all files.
QString sourceStamp(const ModuleSource& source);

} // namespace lumen
