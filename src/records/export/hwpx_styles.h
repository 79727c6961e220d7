// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QTextBlockFormat>
#include <QTextCharFormat>

class QXmlStreamWriter;

namespace lumen {

/// HWPUNIT, the length of these files: 7200 to an inch. A pixel of a document is 1/96 inch.
constexpr int kHwpUnitsPerPixel = 75;

/// The forms of letters and paragraphs that a HWPX file uses, each once, known by number.
class HwpxStyles
{
public:
    /// Borders of tables and their cells by number.
    static constexpr int kNoBorder = 1;
    static constexpr int kThinBorder = 2;

    HwpxStyles();

    int letters(const QTextCharFormat& format);
    int paragraph(const QTextBlockFormat& format);

    /// The part that lists them.
    QByteArray headerXml() const;

private:
    struct Letters
    {
        int font = 0;
        int height = 0; ///< hundredths of a point
        QString color;
        QString shade;
        bool isBold = false;
        bool isItalic = false;
        bool isUnderlined = false;
        bool isStruckOut = false;
        QTextCharFormat::VerticalAlignment position = QTextCharFormat::AlignNormal;

        bool operator==(const Letters&) const = default;
    };
    struct Paragraph
    {
        QString alignment;
        int indent = 0; ///< of the first line; all lengths in HWPUNIT
        int left = 0;
        int right = 0;
        int above = 0;
        int below = 0;
        QString spacingType;
        int spacing = 0;

        bool operator==(const Paragraph&) const = default;
    };

    int font(const QTextCharFormat& format);
    void writeFonts(QXmlStreamWriter& xml) const;
    void writeLetters(QXmlStreamWriter& xml) const;
    void writeParagraphs(QXmlStreamWriter& xml) const;

    QList<QString> m_fonts;
    QList<Letters> m_letters;
    QList<Paragraph> m_paragraphs;
};

} // namespace lumen
