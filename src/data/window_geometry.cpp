// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/window_geometry.h"

#include "platform/registry/registry_store.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

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

/// The rectangle as it is stored; nothing without a position.
std::optional<TwipsRect> storedPlace(RegistryStore& registry, const GeometryRow& row)
{
    registry.OpenKey(settingsPath(row.key));
    if (registry.GetValue(u"Left"_s, ValueKind::Long).isEmpty())
        return std::nullopt;
    return TwipsRect{readNumber(registry, u"Left"_s, 0), readNumber(registry, u"Top"_s, 0),
                     readNumber(registry, u"Width"_s, 0), readNumber(registry, u"Height"_s, 0)};
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
    const TwipsSize fallback{row.fallbackWidth > 0 ? row.fallbackWidth : design.Width,
                             row.fallbackHeight > 0 ? row.fallbackHeight : design.Height};
    const std::optional<TwipsRect> stored = storedPlace(registry, row);
    if (!stored)
        return centredOn(screens.front(), fallback);
    const TwipsRect screen = screenOf(screens, *stored);
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
    registry.OpenKey(settingsPath(row.key));
    return readSwitch(registry, u"Maximized"_s, false);
}

void saveGeometry(RegistryStore& registry, const GeometryRow& row, const TwipsRect& place,
                  bool maximized)
{
    savePosition(registry, row, place);
    writeNumber(registry, u"Width"_s, place.Width);
    writeNumber(registry, u"Height"_s, place.Height);
    writeSwitch(registry, u"Maximized"_s, maximized);
}

void savePosition(RegistryStore& registry, const GeometryRow& row, const TwipsRect& place)
{
    registry.OpenKey(settingsPath(row.key));
    writeNumber(registry, u"Left"_s, place.Left);
    writeNumber(registry, u"Top"_s, place.Top);
}

} // namespace lumen
