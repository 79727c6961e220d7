// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace lumen {

/// Makes the empty file beside `target` in which it comes into being, ".bmk.bmf.new-4711-0" for
/// process 4711, and gives its descriptor and its path; -1 with errno where the folder takes none.
int createTemporary(const QString& target, int flags, QString& path);

/// Takes away what killed programs have left of half-written files in a folder, and the engine's
/// journals of them. `isOwn` tells the names of the files that the caller writes: all others stay,
/// as do those of a process that still runs.
void removeLeftovers(const QString& folder, const std::function<bool(const QString& name)>& isOwn);

} // namespace lumen
