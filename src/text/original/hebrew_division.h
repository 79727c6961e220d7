// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCache>
#include <QString>
#include <QStringList>

#include <vector>

namespace lumen {

/// What a verse is divided for.
struct HebrewTarget
{
    QString fontName;
    int fontSize = 0; ///< half points, as RTF counts
    int width = 0;    ///< twips; lines keep 100 below it
    /// Twips at the head of the first line that something else takes: a verse number, a title.
    int taken = 0;
    /// Whether the window shows the target; lines of a hidden one can't be measured.
    bool isVisible = true;
};

/// Measures where a text wraps.
class LineBreaker
{
public:
    virtual ~LineBreaker() = default;

    /// The lengths of the display lines of a text, with the blanks that end them, so that they add
    /// up to the text's length. Each line has room for such a blank, too. Size in points, width in
    /// twips, of which `taken` are not free in the first line.
    virtual std::vector<qsizetype> lineLengths(const QString& text, const QString& fontName,
                                               double pointSize, int width, int taken) = 0;
};

/// Measures with the real font. Keeps what it measured, since a chapter is composed anew with each
/// change of a parallel version.
class FontLineBreaker : public LineBreaker
{
public:
    /// \param pixelsPerTwip  of the screen; the default takes the first screen's.
    explicit FontLineBreaker(double pixelsPerTwip = 0);

    std::vector<qsizetype> lineLengths(const QString& text, const QString& fontName,
                                       double pointSize, int width, int taken) override;

private:
    double m_pixelsPerTwip;
    QCache<QString, std::vector<qsizetype>> m_cache;
};

/// A verse in display order (its first letter stands last) as the lines that it is read in. Empty
/// when the target is hidden.
QStringList hebrewLines(const QString& text, const HebrewTarget& target, LineBreaker& breaker);

/// The lines as one text, with "\par " between them for RTF, "\r\n" for plain text.
QString DivideHebrewCont(const QString& text, const HebrewTarget& target, bool asRtf,
                         LineBreaker& breaker);

/// The same with a bare line feed in plain text, which is what printed text takes.
QString DivideHebrewContForPrint(const QString& text, const HebrewTarget& target, bool asRtf,
                                 LineBreaker& breaker);

} // namespace lumen
