// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace lumen {

/// The name under which a damaged file is put aside: "settings.damaged", or "settings.damaged-2"
/// and so on, the first that is not taken. So one put aside earlier is never overwritten.
QString freeAsideName(const QString& file, const std::function<bool(const QString& name)>& isTaken);

} // namespace lumen
