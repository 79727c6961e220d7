// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/form_geometry.h"

#include "platform/controls/twips.h"
#include "platform/registry/registry_store.h"

#include <QWidget>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TwipsSize screen()
{
    const QSize size = screenTwips();
    return {size.width(), size.height()};
}

TwipsSize designOf(const QWidget& window)
{
    return {toTwips(window.width()), toTwips(window.height())};
}

TwipsRect placeOf(const QWidget& window)
{
    const bool plain = !window.isMinimized() && !window.isMaximized() && !window.isFullScreen();
    // A window's position is that of its frame, its size the one inside: move() and resize() take
    // them in the same way. The normal geometry is without a frame altogether.
    const QPoint frame = window.windowHandle() != nullptr
                             ? QPoint(window.windowHandle()->frameMargins().left(),
                                      window.windowHandle()->frameMargins().top())
                             : QPoint();
    const QPoint corner = plain ? window.pos() : window.normalGeometry().topLeft() - frame;
    const QSize size = plain ? window.size() : window.normalGeometry().size();
    return {toTwips(corner.x()), toTwips(corner.y()), toTwips(size.width()),
            toTwips(size.height())};
}

} // namespace

void Proc시동크기위치설정(RegistryStore& registry, const GeometryRow& row, QWidget& window)
{
    const TwipsRect place = readGeometry(registry, row, screen(), designOf(window));
    window.resize(toPixels(place.Width), toPixels(place.Height));
    window.move(toPixels(place.Left), toPixels(place.Top));
    if (readSwitch(registry, u"Maximized"_s, false))
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

void restorePosition(RegistryStore& registry, const GeometryRow& row, QWidget& window)
{
    const TwipsRect place = readPosition(registry, row, screen(), designOf(window));
    window.move(toPixels(place.Left), toPixels(place.Top));
}

void saveFormGeometry(RegistryStore& registry, const GeometryRow& row, const QWidget& window)
{
    saveGeometry(registry, row, placeOf(window));
    writeSwitch(registry, u"Maximized"_s, window.isMaximized());
}

void saveFormPosition(RegistryStore& registry, const GeometryRow& row, const QWidget& window)
{
    savePosition(registry, row, placeOf(window));
}

} // namespace lumen
