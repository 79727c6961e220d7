// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class QWidget;

namespace lumen {

struct AppState;
struct Services;
struct UserFile;

/// Looks at a user file before it is opened: tells the user when it is damaged, emptied or gone,
/// and brings the newest sound backup back if the user wants it.
void offerBackup(Services& services, const AppState& state, const UserFile& file,
                 QWidget* parent = nullptr);

} // namespace lumen
