// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/lookup/verse_box.h"

#include "data/version_font.h"

#include <QTextDocument>

namespace lumen {
namespace {

constexpr int kTextPoints = 10;

} // namespace

VerseBox::VerseBox(TextControl& box, const FontSettings& fonts) : m_box(box), m_fonts(fonts)
{
    m_box.onResizeEnded = [this] {
        if (isHebrewVersion(m_code))
            put();
    };
}

void VerseBox::show(const QString& verse, int code)
{
    m_verse = verse;
    m_code = code;
    put();
}

void VerseBox::put()
{
    const VersionFont versionFont = GetVersionFont(m_code, m_fonts);
    const int points = scaledSize(versionFont.factor, kTextPoints);
    QFont font(versionFont.font);
    font.setPointSize(points);
    m_box.setFont(font);
    const HebrewTarget target{versionFont.font, 2 * points, m_box.textWidth()};
    const bool hebrew = isHebrewVersion(m_code);
    m_box.setText(hebrew ? DivideHebrewCont(m_verse, target, false, m_lineBreaker) : m_verse);
    QTextOption direction = m_box.document()->defaultTextOption();
    direction.setAlignment(hebrew ? Qt::AlignRight : Qt::AlignLeft);
    m_box.document()->setDefaultTextOption(direction);
}

} // namespace lumen
