// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/twips.h"

#include <QGuiApplication>
#include <QScreen>

namespace lumen {

int screenDpi()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? qRound(screen->logicalDotsPerInch()) : 96;
}

int toPixels(int twips, int dpi)
{
    return qRound(double(twips) * dpi / kTwipsPerInch);
}

int toTwips(int pixels, int dpi)
{
    return qRound(double(pixels) * kTwipsPerInch / dpi);
}

int toPixels(int twips)
{
    return toPixels(twips, screenDpi());
}

int toTwips(int pixels)
{
    return toTwips(pixels, screenDpi());
}

} // namespace lumen
