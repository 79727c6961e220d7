// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "sources/version_text.h"

#include <QStringList>

namespace lumen {

/// Reads a version of USFM files, a book a file. Files of other books (introductions, glossaries,
/// books outside the canon) are passed over; one that breaks the rules fails with its name and
/// line. A verse bridge ("\v 3-4") fills its first verse; the others have no words.
VersionResult readUsfmFiles(const QStringList& files);

} // namespace lumen
