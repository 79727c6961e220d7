// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/window_geometry.h"

#include "platform/registry/registry_store.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <span>

namespace lumen {
namespace {

// A window may stand this much before the screen's edge, in twips.
constexpr int kFirstPlace = -60;
constexpr int kMinWidth = 7000;
constexpr int kMinHeight = 6100;

int centred(int screen, int window)
{
    return (screen - window) / 2;
}

bool isWithin(int place, int start, int extent)
{
    return place >= start + kFirstPlace && place <= start + extent;
}

qint64 sharedLength(int start, int extent, int otherStart, int otherExtent)
{
    return std::max(0, std::min(start + extent, otherStart + otherExtent) -
                           std::max(start, otherStart));
}

qint64 sharedArea(const TwipsRect& one, const TwipsRect& other)
{
    return sharedLength(one.Left, one.Width, other.Left, other.Width) *
           sharedLength(one.Top, one.Height, other.Top, other.Height);
}

constexpr int kNotStored = std::numeric_limits<int>::min();

/// What is kept of a window's place.
struct StoredPlace
{
    int Left = kNotStored;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    bool Maximized = false;

    TwipsRect rect() const { return {Left, Top, Width, Height}; }
};

using Row = SettingRow<StoredPlace>;
constexpr std::array kPlaceRows{
    Row{u"Left", settingAt<&StoredPlace::Left>},
    Row{u"Top", settingAt<&StoredPlace::Top>},
    Row{u"Width", settingAt<&StoredPlace::Width>},
    Row{u"Height", settingAt<&StoredPlace::Height>},
    Row{u"Maximized", settingAt<&StoredPlace::Maximized>},
};
constexpr std::size_t kPositionRows = 2;

StoredPlace readPlace(RegistryStore& registry, const GeometryRow& row)
{
    return readSettings(registry, SettingTable<StoredPlace>{row.key, kPlaceRows});
}

/// The rectangle as it is stored; nothing without a position.
std::optional<TwipsRect> storedPlace(RegistryStore& registry, const GeometryRow& row)
{
    const StoredPlace place = readPlace(registry, row);
    return place.Left == kNotStored ? std::nullopt : std::optional(place.rect());
}

/// The screen that a window stands on: of those that hold its corner the one that shows most of
/// it; the main one when no screen does.
TwipsRect screenOf(const QList<TwipsRect>& screens, const TwipsRect& window)
{
    TwipsRect home = screens.front();
    qint64 shown = -1;
    for (const TwipsRect& screen : screens) {
        const bool holdsCorner = isWithin(window.Left, screen.Left, screen.Width) &&
                                 isWithin(window.Top, screen.Top, screen.Height);
        if (holdsCorner && sharedArea(screen, window) > shown) {
            home = screen;
            shown = sharedArea(screen, window);
        }
    }
    return home;
}

int extentOr(int fallback, int extent, int smallest, int screen)
{
    return extent < smallest || extent > screen ? fallback : extent;
}

TwipsRect placedOn(const TwipsRect& screen, const TwipsRect& window)
{
    TwipsRect placed = window;
    if (!isWithin(window.Left, screen.Left, screen.Width))
        placed.Left = screen.Left + centred(screen.Width, window.Width);
    if (!isWithin(window.Top, screen.Top, screen.Height))
        placed.Top = screen.Top + centred(screen.Height, window.Height);
    return placed;
}

TwipsRect centredOn(const TwipsRect& screen, const TwipsSize& size)
{
    return {screen.Left + centred(screen.Width, size.Width),
            screen.Top + centred(screen.Height, size.Height), size.Width, size.Height};
}

} // namespace

TwipsRect readGeometry(RegistryStore& registry, const GeometryRow& row,
                       const QList<TwipsRect>& screens, const TwipsSize& design)
{
    const std::optional<TwipsRect> stored = storedPlace(registry, row);
    const TwipsRect screen = stored ? screenOf(screens, *stored) : screens.front();
    // A screen of large pixels may be smaller than the fallback.
    const TwipsSize fallback{
        std::min(row.fallbackWidth > 0 ? row.fallbackWidth : design.Width, screen.Width),
        std::min(row.fallbackHeight > 0 ? row.fallbackHeight : design.Height, screen.Height)};
    if (!stored)
        return centredOn(screen, fallback);
    // Size first: a window whose position is off the screen is centred with the size it will have.
    return placedOn(screen, {stored->Left, stored->Top,
                             extentOr(fallback.Width, stored->Width, kMinWidth, screen.Width),
                             extentOr(fallback.Height, stored->Height, kMinHeight, screen.Height)});
}

TwipsRect readPosition(RegistryStore& registry, const GeometryRow& row,
                       const QList<TwipsRect>& screens, const TwipsSize& design)
{
    const std::optional<TwipsRect> stored = storedPlace(registry, row);
    if (!stored)
        return centredOn(screens.front(), design);
    const TwipsRect window{stored->Left, stored->Top, design.Width, design.Height};
    return placedOn(screenOf(screens, window), window);
}

bool readMaximized(RegistryStore& registry, const GeometryRow& row)
{
    return readPlace(registry, row).Maximized;
}

void saveGeometry(RegistryStore& registry, const GeometryRow& row, const TwipsRect& place,
                  bool maximized)
{
    saveSettings<StoredPlace>(registry, {row.key, kPlaceRows},
                              {place.Left, place.Top, place.Width, place.Height, maximized});
}

void savePosition(RegistryStore& registry, const GeometryRow& row, const TwipsRect& place)
{
    saveSettings<StoredPlace>(registry, {row.key, std::span(kPlaceRows).first(kPositionRows)},
                              {.Left = place.Left, .Top = place.Top});
}

} // namespace lumen
