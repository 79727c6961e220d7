// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

class QKeyEvent;
class QLineEdit;

namespace lumen {

/// Whether a released key has typed a character that the caret has to step back over in a Hebrew
/// version. Keys with Ctrl held never do; of the others the row of letters, digits and signs does
/// but for the key "=", of the number pad the digits, "+" and "-".
bool typesCharacter(const QKeyEvent& release);

/// Text in the Hebrew versions stands in reading order from the right: after a typed character the
/// caret steps back, so that it stays at the left of it. `version` is the name of the version.
void stepBackAfterTyping(QLineEdit& box, const QKeyEvent& release, const QString& version);

} // namespace lumen
