// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/window_geometry.h"

class QWidget;

namespace lumen {

class RegistryStore;

/// Moves and sizes a window as its row of the settings says, and maximises one that was closed so.
/// Its size before is its design size.
void Proc시동크기위치설정(RegistryStore& registry, const GeometryRow& row, QWidget& window);
/// The same for a window of fixed size: only the position.
void restorePosition(RegistryStore& registry, const GeometryRow& row, QWidget& window);

/// Writes where the window stands, of a minimised or maximised one where it stood before. Its key
/// stays the current one, for the window's further values; the caller flushes.
void saveFormGeometry(RegistryStore& registry, const GeometryRow& row, const QWidget& window);
void saveFormPosition(RegistryStore& registry, const GeometryRow& row, const QWidget& window);

} // namespace lumen
