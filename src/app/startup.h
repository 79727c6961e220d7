// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace lumen {

class Fonts;
class QtMessageBoxes;
struct AppState;
class World;

/// Makes the program's own fonts known, those of the original languages first. One that is missing
/// is passed over: its letters then come from a substitute.
void RegisterFonts(Fonts& fonts);

/// The program from its first to its last moment: the lock against a second one, the state that the
/// windows share, the user databases of a first start, the reader. Returns the exit code.
int Main(World& world);

} // namespace lumen
