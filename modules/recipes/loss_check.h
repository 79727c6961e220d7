// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "recipes/version_task.h"

#include <QString>
#include <QStringList>

namespace lumen {

/// What a text must have lost, a Korean line each; empty when nothing speaks for a loss: what its
/// reader told, chapters without words in a source that is known to be whole, and verses that the
/// module in `former` has words for and the text has not. A former module made by other rules
/// counts only where whole chapters or one verse in a hundred are gone.
QStringList lossesOf(const VersionText& version, const VersionTask& task, const QString& former);

} // namespace lumen
