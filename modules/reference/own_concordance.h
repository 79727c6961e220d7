// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "reference/module_task.h"

#include <QString>

namespace lumen {

/// The concordance of version `code` out of a user's own table. A line: word, verses
/// ("창1:1;요3:16"), and how often the word occurs in them, as often as there are verses without
/// it. A word may go on in further lines. Words are stored as a lookup of that version takes them.
/// Damaged, with the bad lines by file, line and reason: a word that no lookup can ask for, a verse
/// that is in no Bible, a number that is none or too small.
Result<ModuleReport> fillOwnConcordance(const QString& file, int code, ModuleStore& store);

} // namespace lumen
