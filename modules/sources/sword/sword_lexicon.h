// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "sources/dictionary_readers.h"

#include <QString>

namespace lumen {

/// Reads a compressed SWORD dictionary (zLD, zip) without the library, which never complains about
/// damaged files. `stem` is the path of its files without ".idx", ".dat", ".zdx", ".zdt". Entries
/// come as plain lines; those that only lead to another one ("@LINK") are left out.
DictionaryResult readSwordLexicon(const QString& stem);

} // namespace lumen
