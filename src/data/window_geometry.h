// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/settings.h"

#include <QList>
#include <QStringView>

namespace lumen {

/// A rectangle in twips.
struct TwipsRect
{
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;

    friend bool operator==(const TwipsRect&, const TwipsRect&) = default;
};

/// A size in twips.
struct TwipsSize
{
    int Width = 0;
    int Height = 0;
};

/// Where a window's place is kept and what size it falls back to; 0 is the window's design size.
struct GeometryRow
{
    QStringView key;
    int fallbackWidth = 0;
    int fallbackHeight = 0;
};

namespace geometry {
inline constexpr GeometryRow kBible{settings_key::kBible, 12000, 8000};
inline constexpr GeometryRow kBibleMap{settings_key::kBibleMap, 9000, 8000};
inline constexpr GeometryRow kBibleSearch{settings_key::kBibleSearch, 8600, 7800};
inline constexpr GeometryRow kSManager{settings_key::kSManager};
inline constexpr GeometryRow kSMSearch{settings_key::kSMSearch, 8500, 6000};
inline constexpr GeometryRow kQTManager{settings_key::kQTManager, 9000, 8500};
inline constexpr GeometryRow kQTSearch{settings_key::kQTSearch, 9500, 6000};
inline constexpr GeometryRow kPreview{settings_key::kPreview};
inline constexpr GeometryRow kExViewer{settings_key::kExViewer, 8500, 6500};
inline constexpr GeometryRow kSendMail{settings_key::kSendMail};
/// Of fixed size: only the position is kept.
inline constexpr GeometryRow kExtract{settings_key::kExtract};
} // namespace geometry

/// Where a window comes up: the stored rectangle; centred on the first screen, which is the main
/// one, where the stored position lies outside of all `screens` or none is stored. `design` is the
/// window's size before.
TwipsRect readGeometry(RegistryStore& registry, const GeometryRow& row,
                       const QList<TwipsRect>& screens, const TwipsSize& design);
/// The position alone, for a window of fixed size; the rectangle has the design size.
TwipsRect readPosition(RegistryStore& registry, const GeometryRow& row,
                       const QList<TwipsRect>& screens, const TwipsSize& design);
/// True when the window was maximised at its last end.
bool readMaximized(RegistryStore& registry, const GeometryRow& row);
/// Writes Left, Top, Width, Height and Maximized under the window's key and leaves it the current
/// one.
void saveGeometry(RegistryStore& registry, const GeometryRow& row, const TwipsRect& place,
                  bool maximized = false);
/// Writes Left and Top only.
void savePosition(RegistryStore& registry, const GeometryRow& row, const TwipsRect& place);

} // namespace lumen
