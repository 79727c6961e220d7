// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "text/basic_text.h"

#include <QColor>
#include <QPalette>

class QWidget;

namespace lumen {

/// An RGB long (red in the low byte) as a colour of the toolkit, and back; alpha is dropped.
QColor toColor(RgbLong color);
RgbLong toRgbLong(const QColor& color);

/// Whether a palette shows light text on a dark ground. The toolkit has no call of its own for it.
bool isDark(const QPalette& palette);

/// The colour itself when it can be read on the ground, else the same hue made lighter or darker
/// until it can: a contrast of at least 4.5 to 1, the usual limit for running text.
QColor readableOn(const QColor& ground, const QColor& color);

/// Shows the selection of a control in its active colours while another control has the focus.
void keepSelectionColors(QWidget& control);

} // namespace lumen
