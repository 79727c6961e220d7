// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace lumen {

/// Makes a checked compact copy of a store under a new name; its password becomes `newPassword`
/// when there is one. Paths are native. Errors: 3049 or 3343 when the store is damaged, 3183, 3204.
/// The source stays as it is, a failed copy leaves nothing.
void compactStore(const QString& store, const QString& destination,
                  const std::optional<QString>& newPassword);

/// Throws 3049 or 3343 when a store (native path) is damaged.
void checkStore(const QString& store);

} // namespace lumen
