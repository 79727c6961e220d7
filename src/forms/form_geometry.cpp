// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/form_geometry.h"

#include "platform/controls/twips.h"
#include "platform/registry/registry_store.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr const char* kPlainFrame = "plainFrame"; // property: QMargins

TwipsRect inTwips(const QRect& pixels)
{
    return {toTwips(pixels.left()), toTwips(pixels.top()), toTwips(pixels.width()),
            toTwips(pixels.height())};
}

QList<TwipsRect> screens()
{
    const QScreen* const main = QGuiApplication::primaryScreen();
    QList<TwipsRect> found{inTwips(main->geometry())};
    for (const QScreen* screen : QGuiApplication::screens())
        if (screen != main)
            found << inTwips(screen->geometry());
    return found;
}

TwipsSize designOf(const QWidget& window)
{
    return {toTwips(window.width()), toTwips(window.height())};
}

bool isPlain(const QWidget& window)
{
    return !window.isMinimized() && !window.isMaximized() && !window.isFullScreen();
}

/// Notes how wide a window's frame is while it is neither maximised nor minimised: window managers
/// take borders away from a maximised one.
class FrameWatch : public QObject
{
public:
    explicit FrameWatch(QWidget& window) : QObject(&window) { window.installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto& window = static_cast<QWidget&>(*watched);
        const bool placed = event->type() == QEvent::Move || event->type() == QEvent::Resize;
        if (placed && isPlain(window) && window.windowHandle() != nullptr)
            window.setProperty(kPlainFrame,
                               QVariant::fromValue(window.windowHandle()->frameMargins()));
        return false;
    }
};

TwipsRect placeOf(const QWidget& window)
{
    // A window's position is that of its frame, its size the one inside: move() and resize() take
    // them in the same way.
    if (isPlain(window))
        return inTwips({window.pos(), window.size()});
    // The normal geometry is without a frame; of a window that was never without its state it is
    // still what move() was told.
    const auto frame = window.property(kPlainFrame).value<QMargins>();
    const QRect normal = window.normalGeometry();
    return inTwips({normal.topLeft() - QPoint(frame.left(), frame.top()), normal.size()});
}

/// The frame that the desktop puts around windows, as those on show have it; none before the
/// first.
QMargins usualFrame()
{
    QMargins frame;
    for (const QWindow* window : QGuiApplication::topLevelWindows())
        if (window->isVisible() && window->windowStates() == Qt::WindowNoState &&
            window->frameMargins().top() > frame.top())
            frame = window->frameMargins();
    return frame;
}

/// The place of a window as the screen that it stands on shows it whole: screens get smaller, and
/// what lies below a panel or beyond the edge can't be dragged back by everyone. The position is
/// that of the frame, the size the one inside.
QRect whollyVisible(const QRect& window)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    int most = 0;
    for (const QScreen* one : QGuiApplication::screens()) {
        const QRect shared = one->geometry().intersected(window);
        if (!shared.isEmpty() && shared.width() * shared.height() > most) {
            most = shared.width() * shared.height();
            screen = one;
        }
    }
    QRect room = screen->availableGeometry();
    const QMargins frame = usualFrame();
    room.setSize(room.size() - QSize(frame.left() + frame.right(), frame.top() + frame.bottom()));
    QRect placed(window.topLeft(), window.size().boundedTo(room.size()));
    placed.moveLeft(std::clamp(placed.left(), room.left(), room.right() + 1 - placed.width()));
    placed.moveTop(std::clamp(placed.top(), room.top(), room.bottom() + 1 - placed.height()));
    return placed;
}

QRect inPixels(const TwipsRect& place)
{
    return {toPixels(place.Left), toPixels(place.Top), toPixels(place.Width),
            toPixels(place.Height)};
}

} // namespace

void Proc시동크기위치설정(RegistryStore& registry, const GeometryRow& row, QWidget& window)
{
    const TwipsRect place = readGeometry(registry, row, screens(), designOf(window));
    const QRect visible = whollyVisible(inPixels(place));
    window.resize(visible.size());
    window.move(visible.topLeft());
    if (readMaximized(registry, row))
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    new FrameWatch(window);
}

void restorePosition(RegistryStore& registry, const GeometryRow& row, QWidget& window)
{
    const TwipsRect place = readPosition(registry, row, screens(), designOf(window));
    window.move(whollyVisible(inPixels(place)).topLeft());
}

void saveFormGeometry(RegistryStore& registry, const GeometryRow& row, const QWidget& window)
{
    saveGeometry(registry, row, placeOf(window), window.isMaximized());
}

void saveFormPosition(RegistryStore& registry, const GeometryRow& row, const QWidget& window)
{
    savePosition(registry, row, placeOf(window));
}

} // namespace lumen
