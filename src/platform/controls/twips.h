// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace lumen {

/// A twip is 1/1440 inch; settings and window places count in twips, whatever the screen.
inline constexpr int kTwipsPerInch = 1440;

/// The logical resolution of the primary screen in dots per inch; 96 without a screen.
int screenDpi();
/// Twips to pixels and back, rounded, by the primary screen's logical resolution.
int toPixels(int twips);
int toTwips(int pixels);
/// The same for a given resolution.
int toPixels(int twips, int dpi);
int toTwips(int pixels, int dpi);

} // namespace lumen
