// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace lumen {

/// Makes this process die by SIGKILL in the middle of its n-th write to a database file (a write, a
/// truncation, a sync or a deletion; n counts from 1). For forked children only.
void dieAtDatabaseWrite(int n);

} // namespace lumen
