// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "text/basic_text.h"

#include <QColor>
#include <QPalette>

#include <functional>
#include <optional>

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

/// The contrast of two colours by the accessibility guidelines, 1 to 21.
double contrast(const QColor& one, const QColor& other);

/// A ground that was chosen for a light desktop, as it is shown now: on a dark desktop it gives way
/// to that role of the palette, unless it is dark itself.
QColor groundInScheme(const QColor& chosen, QPalette::ColorRole role = QPalette::Base);

/// A text colour that was chosen for a light desktop, as it is shown now: on a dark desktop it is
/// made readable on its ground.
QColor textInScheme(const QColor& ground, const QColor& chosen);

/// Gives a control the desktop's colours, its selection the active ones while another control has
/// the focus, and the ground that was chosen for it.
void showScheme(QWidget& control, std::optional<RgbLong> ground = {});

/// Calls back whenever the desktop has changed its colours, for as long as the owner lives.
void onSchemeChange(QWidget& owner, std::function<void()> follow);

} // namespace lumen
