// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace lumen {

/// From now on Ctrl-C and a request to end are noted only, so that long work can stop at a row's
/// end and take its half-made files away. A second Ctrl-C ends the program at once.
void watchForInterruption();
/// True once the user has asked to stop; long loops look now and then.
bool interrupted();

} // namespace lumen
