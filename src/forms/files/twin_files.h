// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace lumen {

struct AppState;
struct Services;

/// Tells once of all user files beside which another lies whose name differs by case or by the
/// composition of its Hangul alone, as copies of other systems do: which is used and which is not.
void tellTwinFiles(Services& services, const AppState& state);

} // namespace lumen
