// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/results/verse_copy.h"

#include "data/version_font.h"
#include "text/rtf/rtf_writer.h"

#include <QStringList>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr RgbLong kLabelColor = RGB(0, 0, 255);

QString unicodeOf(const CopiedVerse& verse)
{
    return unicodeText(verse.code, verse.text);
}

/// What stands behind a label: as in the text view, where stored Hebrew runs from the right.
QString separator(const CopiedVerse& verse, OriginalText originals)
{
    const bool fromRight =
        scriptOf(verse.code) == Script::Hebrew && originals == OriginalText::FontCodes;
    return fromRight ? u"   "_s : u"\t"_s;
}

QString plainText(const std::vector<CopiedVerse>& verses, OriginalText originals)
{
    QStringList lines;
    for (const CopiedVerse& verse : verses) {
        QString line;
        if (!verse.label.isEmpty())
            line = verse.label + separator(verse, originals);
        lines << line + (originals == OriginalText::Unicode ? unicodeOf(verse) : verse.text);
    }
    return lines.join(u"\r\n"_s);
}

// HTML

QString htmlText(const QString& text)
{
    QString html = text.toHtmlEscaped();
    html.replace(u"\r\n"_s, u"<br>"_s);
    return html;
}

QString htmlColor(RgbLong color)
{
    const auto part = [](int value) { return QString::number(value, 16).rightJustified(2, u'0'); };
    return u'#' + part(redPart(color)) + part(greenPart(color)) + part(bluePart(color));
}

QString htmlVerse(const CopiedVerse& verse)
{
    QString style =
        u"font-size:%1pt;color:%2"_s.arg(verse.halfPoints / 2.0).arg(htmlColor(verse.color));
    // The program's own fonts draw codes: Unicode is left to the fonts of the reading program.
    if (scriptOf(verse.code) == Script::Other)
        style.prepend(u"font-family:'%1';"_s.arg(QString(verse.font).remove(u'\'')));
    QString label;
    if (!verse.label.isEmpty())
        label = u"<span style=\"color:%1\">%2</span>&#160;"_s.arg(htmlColor(kLabelColor),
                                                                  verse.label.toHtmlEscaped());
    return u"%1<span style=\"%2\">"_s.arg(label, style.toHtmlEscaped()) +
           htmlText(unicodeOf(verse)) + u"</span>"_s;
}

QString htmlParagraph(const CopiedVerse& verse)
{
    switch (scriptOf(verse.code)) {
    case Script::Hebrew:
        return u"<p dir=\"rtl\" lang=\"he\">"_s;
    case Script::Greek:
        return u"<p lang=\"grc\">"_s;
    case Script::Other:
        break;
    }
    return u"<p>"_s;
}

QString htmlDocument(const std::vector<CopiedVerse>& verses, const QString& ending)
{
    QString html = u"<html><head><meta charset=\"utf-8\"></head><body>"_s;
    for (const CopiedVerse& verse : verses) {
        html += htmlParagraph(verse) + htmlVerse(verse);
        if (&verse == &verses.back() && !ending.isEmpty())
            html += u"<span dir=\"ltr\">"_s + htmlText(ending) + u"</span>"_s;
        html += u"</p>"_s;
    }
    return html + u"</body></html>"_s;
}

// RTF

class RtfCopy
{
public:
    explicit RtfCopy(OriginalText originals) : m_originals(originals)
    {
        m_tables.colorNumber(kLabelColor);
    }

    void add(const CopiedVerse& verse, const QString& ending)
    {
        const bool unicode =
            m_originals == OriginalText::Unicode && scriptOf(verse.code) != Script::Other;
        const bool western = versionRow(verse.code).face->western && !unicode;
        const RtfFace face = western ? RtfFace::Western : RtfFace::Korean;
        std::optional<int> font;
        if (!unicode)
            font = m_tables.fontNumber(verse.font, face);
        m_body += u"\\pard"_s + paragraph(verse);
        if (!verse.label.isEmpty())
            m_body +=
                u"{\\cf1 "_s + rtfText(verse.label) + u'}' + rtfText(separator(verse, m_originals));
        m_body += u'{' + rtfRunWords(font, verse.halfPoints, m_tables.colorNumber(verse.color)) +
                  u' ' + rtfText(unicode ? unicodeOf(verse) : verse.text, face) + u'}';
        m_body += rtfText(ending) + u"\\par "_s;
    }

    QByteArray document() const
    {
        return toRtfBytes(u"{\\rtf1\\ansi\\ansicpg949\\deff0{\\fonttbl"_s +
                          rtfFontEntry(0, u"fnil", RtfFace::Korean, u"굴림"_s) +
                          m_tables.fontEntries() + u"}{\\colortbl;"_s + m_tables.colorEntries() +
                          u'}' + m_body + u'}');
    }

private:
    QString paragraph(const CopiedVerse& verse) const
    {
        if (scriptOf(verse.code) != Script::Hebrew)
            return u"\\ql "_s;
        return m_originals == OriginalText::Unicode ? u"\\rtlpar\\qr "_s : u"\\ltrpar\\qr "_s;
    }

    OriginalText m_originals;
    RtfTables m_tables{1}; // behind the document's own font
    QString m_body;
};

} // namespace

ClipboardContent composeVerseCopy(const std::vector<CopiedVerse>& verses, const QString& ending,
                                  OriginalText originals)
{
    if (verses.empty())
        return {};
    RtfCopy rtf(originals);
    for (const CopiedVerse& verse : verses)
        rtf.add(verse, &verse == &verses.back() ? ending : QString());
    return {plainText(verses, originals) + ending, htmlDocument(verses, ending), rtf.document()};
}

} // namespace lumen
