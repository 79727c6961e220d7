// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace lumen {

/// Puts the reference pages and the introductions of `content` beside the modules, where the
/// program opens them. A page of the user's own under one of the names stays. Yields Korean lines
/// on what was done or could not be.
QStringList installPages(const QString& content, const QString& dataFolder);

} // namespace lumen
