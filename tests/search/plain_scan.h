// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "support/module_files.h"

#include <QStringList>

#include <functional>

namespace lumen {

using MadeBible = QList<PlainVerse>;

/// A verse with a text.
PlainVerse madeVerse(int book, int chapter, int verse, const QString& cont);

/// The short references of the verses whose readable text meets a condition, in order: what a
/// search must find, without a database.
QStringList plainScan(const MadeBible& bible, const std::function<bool(const PlainVerse&)>& meets);
/// The same for the verses that hold a text.
QStringList plainScan(const MadeBible& bible, const QString& text);

} // namespace lumen
