// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls/text/text_control.h"
#include "text/original/hebrew_division.h"

#include <QString>

namespace lumen {

struct FontSettings;

/// Shows a verse of any version in a text box: in the version's font and direction, a Hebrew one
/// in lines that are cut to the width of the box, anew when that changes.
class VerseBox
{
public:
    /// Box and fonts outlive this.
    VerseBox(TextControl& box, const FontSettings& fonts);

    /// `verse` is unscrambled; "" empties the box.
    void show(const QString& verse, int code);

private:
    void put();

    TextControl& m_box;
    const FontSettings& m_fonts;
    FontLineBreaker m_lineBreaker;
    QString m_verse;
    int m_code = 0;
};

} // namespace lumen
