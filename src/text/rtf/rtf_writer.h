// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "text/basic_text.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>

namespace lumen {

// What every RTF document of the program is put together from, as text; toRtfBytes() ends it.

/// How characters beyond ASCII stand: as bytes of code page 949, or as \'xx for programs that take
/// seven bits only.
enum class RtfCoding { EightBit, SevenBit };

/// Composed RTF as bytes of code page 949; what the page lacks is written as \uN?, with a signed
/// 16-bit number for each UTF-16 unit.
QByteArray toRtfBytes(QStringView rtf, RtfCoding coding = RtfCoding::EightBit);

/// The three signs of the format with a backslash before them, "" for any other character.
QStringView quotedRtfSign(char16_t unit);

/// What a font is told to hold. Bytes beyond ASCII are read by it, so that a Western one takes such
/// characters as \uN? only.
enum class RtfFace { Korean, Western };

/// Plain text as RTF: signs quoted, tabs and line breaks as words, other control characters left
/// out.
QString rtfText(QStringView text, RtfFace face = RtfFace::Korean);

/// "{\f2\fnil\fcharset129 굴림;}". What would end a name in the table is taken out of it.
QString rtfFontEntry(int number, QStringView family, RtfFace face, QString name);
/// "\red0\green0\blue255;".
QString rtfColorEntry(RgbLong color);
/// "\f2\fs20\cf1", each where it is given; sizes are half points.
QString rtfRunWords(std::optional<int> font, int halfPoints, std::optional<int> color);

/// Fonts and colours of a document, numbered as they come up.
class RtfTables
{
public:
    explicit RtfTables(int firstFont) : m_firstFont(firstFont) {}

    int fontNumber(const QString& name, RtfFace face);
    /// From 1: colour 0 is the automatic one.
    int colorNumber(RgbLong color);

    const QString& fontEntries() const { return m_fontEntries; }
    const QString& colorEntries() const { return m_colorEntries; }

private:
    int m_firstFont;
    QStringList m_fonts;
    QList<RgbLong> m_colors;
    QString m_fontEntries;
    QString m_colorEntries;
};

} // namespace lumen
