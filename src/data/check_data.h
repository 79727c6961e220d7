// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"

namespace lumen {

class Drives;
class FileSystem;
class JetEngine;

/// The first CD-ROM drive, such as "D:". Without one it is the last drive of the list, which is
/// then searched for modules; that is meant.
QString FindCdDrive(const Drives& drives);

/// Takes stock of the installed modules into `state.installed`; AppPath and CdDrive must be set.
/// A user version that can't be opened or has no table of its own counts as absent.
void CheckData(AppState& state, const FileSystem& files, JetEngine& jet);

} // namespace lumen
