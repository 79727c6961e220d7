// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>

namespace lumen {

/// What a font makes of a text in one line: a line of numbers for each glyph's outline, in font
/// units and where it is drawn, sorted; so the same picture gives the same list, whatever the
/// glyphs' order and names. A glyph that another family draws counts as "not drawn by the font".
QStringList drawnOutlines(const QString& family, const QString& text);

/// Left and right edge of what is drawn, in font units.
struct DrawnEdges
{
    double left = 0;
    double right = 0;
};
DrawnEdges drawnEdges(const QString& family, const QString& text);

/// The folder with the fonts that scripts/build-fonts made: $LUMENSCRIPT_FONTS, else build/fonts.
QString builtFontFolder();

/// Makes the built fonts known to the test program. They are missing only when the script was not
/// run, and then the tests fail.
class BuiltFontsTest : public testing::Test
{
protected:
    static void SetUpTestSuite();
};

} // namespace lumen
