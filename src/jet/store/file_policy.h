// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace lumen {

/// How the texts of a store compare: Binary by code point, Text without regard to case.
enum class StoreCompare { Binary, Text };

} // namespace lumen
