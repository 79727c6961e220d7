// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/views/chapter_document.h"

#include "platform/controls/twips.h"

#include <QFont>
#include <QFontMetricsF>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace lumen {

namespace {

constexpr int kLanguageBarBlanks = 30;
// The colour table's entries: base, then the parallel versions behind the mini-title colour.
constexpr std::array kSlotColor{0, 2, 3, 4};

/// Collects RTF and counts the characters that the control will show for it.
class Composer
{
public:
    Composer(const ChapterStyle& style, ComposedChapter& chapter)
        : m_style(style), m_rtf(chapter.rtf), m_rows(chapter.rows)
    {
    }

    void languageBarLine();
    void row(const ChapterSource& source, const ChapterVerse& verse);
    int position() const { return m_position; }

private:
    struct Face
    {
        VersionRtfFont font;
        int halfPoints;
    };

    Face face(int code) const;
    void heading(const Face& face, const QString& title);
    void verseText(const ChapterSource& source, const QString& stored, int halfPoints,
                   const VerseHead& head);
    void text(const QString& plain);

    const ChapterStyle& m_style;
    QString& m_rtf;
    std::vector<ComposedRow>& m_rows;
    int m_position = 0;
};

void Composer::text(const QString& plain)
{
    m_rtf += RtfEscape(QStringView(plain));
    m_position += static_cast<int>(plain.size());
}

void Composer::languageBarLine()
{
    m_rtf += QString(kLanguageBarBlanks, u' ') + u"\\par"_s;
    m_position += kLanguageBarBlanks + 1;
}

Composer::Face Composer::face(int code) const
{
    const VersionRtfFont font = GetVersionRtfFont(code, m_style.fonts).value_or(VersionRtfFont{});
    const int textSize = rtfSizes(m_style.rtf.fontSize).text;
    return {font, scaledSize(font.factor, textSize)};
}

void Composer::heading(const Face& face, const QString& title)
{
    const bool preview = m_style.kind == DocumentKind::Preview;
    m_rtf +=
        face.font.paragraph + u"\t{\\f%1\\cf1\\b\\fs%2"_s.arg(face.font.font).arg(face.halfPoints);
    m_rtf += preview ? u"["_s : u"『"_s;
    text(title);
    m_rtf += preview ? u"]}\\par\\par"_s : u"』}\\par\\par"_s;
    m_position += 1 + 2 + 2; // the tab, the marks, two paragraph ends
}

void Composer::verseText(const ChapterSource& source, const QString& stored, int halfPoints,
                         const VerseHead& head)
{
    if (!isHebrewVersion(source.code)) {
        text(stored);
        return;
    }
    // The order is unscramble, divide, escape; the divider's own "\par" must not be escaped.
    const QString font = GetVersionFont(source.code, m_style.fonts).font;
    const QStringList lines =
        m_style.divideHebrew(stored, font, halfPoints, head).split(u"\\par "_s);
    for (qsizetype line = 0; line < lines.size(); ++line) {
        if (line > 0) {
            m_rtf += u"\\par "_s;
            ++m_position;
        }
        text(lines[line]);
    }
}

void Composer::row(const ChapterSource& source, const ChapterVerse& verse)
{
    const Face look = face(source.code);
    const bool decorated = source.slot == 0 && m_style.showMiniTitle;
    if (decorated && !verse.miniTitle.isEmpty())
        heading(look, verse.miniTitle);

    ComposedRow shown{source.slot, source.code, verse.verse, m_position, 0, 0, verse.cont};
    const QString number = QString::number(verse.verse);
    // Where the text runs from the right, a tab would throw it to the other side.
    const QString separator = isHebrewVersion(source.code) ? u"   "_s : u"\t"_s;
    m_rtf += look.font.paragraph +
             u"{\\f5\\fs%1\\cf5 %2}"_s.arg(rtfSizes(m_style.rtf.fontSize).verseNumber).arg(number);
    m_rtf += separator + u"\\f%1\\cf%2\\fs%3 "_s.arg(look.font.font)
                             .arg(kSlotColor[static_cast<size_t>(source.slot)])
                             .arg(look.halfPoints);
    m_position += static_cast<int>(number.size() + separator.size());
    shown.textStart = m_position;
    if (decorated) {
        shown.text.prepend(verse.part);
        text(verse.part);
    }
    verseText(source, verse.cont, look.halfPoints,
              {number, separator, decorated ? verse.part : QString()});
    shown.textEnd = m_position;
    m_rows.push_back(shown);
    m_rtf += u"\\par "_s;
    ++m_position;
}

} // namespace

const ChapterVerse* ChapterSource::find(int verse) const
{
    const auto found = std::find_if(verses.begin(), verses.end(), [verse](const ChapterVerse& row) {
        return row.verse == verse;
    });
    return found == verses.end() ? nullptr : &*found;
}

int ChapterSource::lastVerse() const
{
    int last = 0;
    for (const ChapterVerse& row : verses)
        last = std::max(last, row.verse);
    return last;
}

int headWidth(const VerseHead& head, const RtfSettings& settings, const QString& fontName,
              int halfPoints)
{
    const RtfSizes sizes = rtfSizes(settings.fontSize);
    const auto width = [](const QString& text, const QString& family, int size) {
        QFont font(family);
        font.setPointSizeF(size / 2.0);
        return QFontMetricsF(font).horizontalAdvance(text);
    };
    // Which font draws the separator hangs on what the machine has in place of the document's first
    // one: the widest of those that stand near counts.
    const double separator = std::max({width(head.separator, u"MS Sans Serif"_s, sizes.text),
                                       width(head.separator, settings.mainFont, sizes.text),
                                       width(head.separator, fontName, halfPoints)});
    const double pixels = width(head.number, u"굴림체"_s, sizes.verseNumber) + separator +
                          width(head.part, fontName, halfPoints);
    return toTwips(static_cast<int>(std::ceil(pixels)) + 1);
}

ComposedChapter composeChapter(const std::vector<ChapterSource>& sources, const ChapterStyle& style)
{
    ComposedChapter chapter;
    if (sources.empty() || sources.front().verses.empty())
        return chapter;

    chapter.rtf = rtfDocumentHeader(style.rtf);
    Composer composer(style, chapter);
    if (style.languageBar)
        composer.languageBarLine();
    for (const ChapterVerse& base : sources.front().verses) {
        const int start = composer.position();
        composer.row(sources.front(), base);
        for (size_t parallel = 1; parallel < sources.size(); ++parallel)
            if (const ChapterVerse* const verse = sources[parallel].find(base.verse))
                composer.row(sources[parallel], *verse);
        chapter.positions.add({start, composer.position() - start, base.verse});
    }
    chapter.rtf += u"}"_s;
    return chapter;
}

} // namespace lumen
