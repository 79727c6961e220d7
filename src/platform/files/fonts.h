// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace lumen {

/// Fonts known to the program. The Korean fonts that settings and documents name and no Linux has
/// (굴림, 굴림체, 바탕체, MS Song, the Western ones of the modules) are substituted by installed
/// ones.
class Fonts
{
public:
    virtual ~Fonts() = default;
    /// Adds a font file; 0 when it could not be added, else the number of faces.
    virtual int AddFontResource(const QString& path) = 0;
    /// The family names to offer in font lists, substituted names among them, sorted.
    virtual QStringList families() const = 0;
};

} // namespace lumen
