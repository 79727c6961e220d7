// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/window_geometry.h"

#include "platform/registry/registry_store.h"

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

int placeOf(const RegistryStore& registry, const QString& name, int screen, int window)
{
    const int place = readNumber(registry, name, 0);
    return place < kFirstPlace || place > screen ? centred(screen, window) : place;
}

int extentOf(const RegistryStore& registry, const QString& name, int smallest, int screen,
             int fallback)
{
    const int extent = readNumber(registry, name, 0);
    return extent < smallest || extent > screen ? fallback : extent;
}

bool hasPosition(const RegistryStore& registry)
{
    return !registry.GetValue(u"Left"_s, ValueKind::Long).isEmpty();
}

// Without a stored position the window stands centred.
TwipsRect placed(const RegistryStore& registry, const TwipsSize& screen, const TwipsSize& size)
{
    if (!hasPosition(registry))
        return {centred(screen.Width, size.Width), centred(screen.Height, size.Height), size.Width,
                size.Height};
    return {placeOf(registry, u"Left"_s, screen.Width, size.Width),
            placeOf(registry, u"Top"_s, screen.Height, size.Height), size.Width, size.Height};
}

} // namespace

TwipsRect readGeometry(RegistryStore& registry, const GeometryRow& row, const TwipsSize& screen,
                       const TwipsSize& design)
{
    registry.OpenKey(settingsPath(row.key));
    const TwipsSize fallback{row.fallbackWidth > 0 ? row.fallbackWidth : design.Width,
                             row.fallbackHeight > 0 ? row.fallbackHeight : design.Height};
    // Size first: a window whose position is off the screen is centred with the size it will have.
    const TwipsSize size{
        extentOf(registry, u"Width"_s, kMinWidth, screen.Width, fallback.Width),
        extentOf(registry, u"Height"_s, kMinHeight, screen.Height, fallback.Height)};
    return placed(registry, screen, hasPosition(registry) ? size : fallback);
}

TwipsRect readPosition(RegistryStore& registry, const GeometryRow& row, const TwipsSize& screen,
                       const TwipsSize& design)
{
    registry.OpenKey(settingsPath(row.key));
    return placed(registry, screen, design);
}

void saveGeometry(RegistryStore& registry, const GeometryRow& row, const TwipsRect& place)
{
    savePosition(registry, row, place);
    writeNumber(registry, u"Width"_s, place.Width);
    writeNumber(registry, u"Height"_s, place.Height);
}

void savePosition(RegistryStore& registry, const GeometryRow& row, const TwipsRect& place)
{
    registry.OpenKey(settingsPath(row.key));
    writeNumber(registry, u"Left"_s, place.Left);
    writeNumber(registry, u"Top"_s, place.Top);
}

} // namespace lumen
