// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace lumen {

/// The text behind "pwd=" in a connect string such as "MS Access;uid=admin;pwd=secret". Product
/// names and user terms mean nothing to the engine.
std::optional<QString> passwordOf(const QString& connect);

} // namespace lumen
