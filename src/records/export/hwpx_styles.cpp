// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/export/hwpx_styles.h"

#include "records/export/hwpx_xml.h"

#include <QBrush>
#include <QFont>
#include <QXmlStreamWriter>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kDefaultHeight = 1000; // hundredths of a point
constexpr int kUsualSpacing = 160;   // per cent of the height, what the word processor begins with
constexpr std::array kScripts{u"HANGUL", u"LATIN",  u"HANJA", u"JAPANESE",
                              u"OTHER",  u"SYMBOL", u"USER"};
constexpr std::array kScriptNames{"hangul", "latin",  "hanja", "japanese",
                                  "other",  "symbol", "user"};

/// An element that gives each script the same value.
void writeForScripts(QXmlStreamWriter& xml, QStringView name, int value)
{
    writeElement(xml, name);
    for (const char* script : kScriptNames)
        xml.writeAttribute(QLatin1StringView(script), QString::number(value));
}

void beginList(QXmlStreamWriter& xml, QStringView name, qsizetype count)
{
    beginElement(xml, name, {{u"itemCnt", count}});
}

void writeBorder(QXmlStreamWriter& xml, int id, QStringView type)
{
    beginElement(xml, u"hh:borderFill",
                 {{u"id", id},
                  {u"threeD", 0},
                  {u"shadow", 0},
                  {u"centerLine", u"NONE"},
                  {u"breakCellSeparateLine", 0}});
    for (const QStringView slash : {u"hh:slash", u"hh:backSlash"})
        writeElement(xml, slash, {{u"type", u"NONE"}, {u"Crooked", 0}, {u"isCounter", 0}});
    for (const QStringView side :
         {u"hh:leftBorder", u"hh:rightBorder", u"hh:topBorder", u"hh:bottomBorder"})
        writeElement(xml, side, {{u"type", type}, {u"width", u"0.12 mm"}, {u"color", u"#000000"}});
    xml.writeEndElement();
}

void writeLength(QXmlStreamWriter& xml, QStringView name, int value)
{
    writeElement(xml, name, {{u"value", value}, {u"unit", u"HWPUNIT"}});
}

int units(double pixels)
{
    return qRound(pixels * kHwpUnitsPerPixel);
}

QString alignmentName(Qt::Alignment alignment)
{
    if (alignment & Qt::AlignHCenter)
        return u"CENTER"_s;
    if (alignment & Qt::AlignRight)
        return u"RIGHT"_s;
    return alignment & Qt::AlignJustify ? u"JUSTIFY"_s : u"LEFT"_s;
}

int heightOf(const QTextCharFormat& format)
{
    if (format.fontPointSize() > 0)
        return qRound(format.fontPointSize() * 100);
    const int pixels = format.property(QTextFormat::FontPixelSize).toInt();
    return pixels > 0 ? pixels * kHwpUnitsPerPixel : kDefaultHeight;
}

QString colorOf(const QBrush& brush, const QString& otherwise)
{
    return brush.style() == Qt::NoBrush ? otherwise : brush.color().name().toUpper();
}

} // namespace

HwpxStyles::HwpxStyles()
{
    // Number 0 of each is what the body style names.
    QTextCharFormat body;
    body.setFontFamilies({u"바탕"_s});
    letters(body);
    paragraph({});
}

int HwpxStyles::font(const QTextCharFormat& format)
{
    // The stand-ins of this system come first in a list of fonts: the word processor has the real
    // ones.
    const QStringList families = format.fontFamilies().toStringList();
    QString name = families.value(0, u"바탕"_s);
    for (const QString& family : families)
        if (name.startsWith(u"Noto "_s))
            name = family;
    if (name.startsWith(u"Noto "_s) || name == u"serif"_s)
        name = u"바탕"_s;
    if (!m_fonts.contains(name))
        m_fonts << name;
    return static_cast<int>(m_fonts.indexOf(name));
}

int HwpxStyles::letters(const QTextCharFormat& format)
{
    const Letters form{.font = font(format),
                       .height = heightOf(format),
                       .color = colorOf(format.foreground(), u"#000000"_s),
                       .shade = colorOf(format.background(), u"none"_s),
                       .isBold = format.fontWeight() > QFont::Medium,
                       .isItalic = format.fontItalic(),
                       .isUnderlined = format.fontUnderline(),
                       .isStruckOut = format.fontStrikeOut(),
                       .position = format.verticalAlignment()};
    if (!m_letters.contains(form))
        m_letters << form;
    return static_cast<int>(m_letters.indexOf(form));
}

int HwpxStyles::paragraph(const QTextBlockFormat& format)
{
    Paragraph form{.alignment = alignmentName(format.alignment()),
                   .indent = units(format.textIndent()),
                   .left = units(format.leftMargin()),
                   .right = units(format.rightMargin()),
                   .above = units(format.topMargin()),
                   .below = units(format.bottomMargin()),
                   .spacingType = u"PERCENT"_s,
                   .spacing = kUsualSpacing};
    switch (format.lineHeightType()) {
    case QTextBlockFormat::ProportionalHeight:
        form.spacing = qRound(kUsualSpacing * format.lineHeight() / 100);
        break;
    case QTextBlockFormat::FixedHeight:
        form.spacingType = u"FIXED"_s;
        form.spacing = units(format.lineHeight());
        break;
    case QTextBlockFormat::MinimumHeight:
        form.spacingType = u"AT_LEAST"_s;
        form.spacing = units(format.lineHeight());
        break;
    default:
        break;
    }
    if (!m_paragraphs.contains(form))
        m_paragraphs << form;
    return static_cast<int>(m_paragraphs.indexOf(form));
}

void HwpxStyles::writeFonts(QXmlStreamWriter& xml) const
{
    beginList(xml, u"hh:fontfaces", kScripts.size());
    for (const char16_t* script : kScripts) {
        beginElement(xml, u"hh:fontface", {{u"lang", script}, {u"fontCnt", m_fonts.size()}});
        for (qsizetype i = 0; i < m_fonts.size(); ++i)
            writeElement(
                xml, u"hh:font",
                {{u"id", i}, {u"face", m_fonts[i]}, {u"type", u"TTF"}, {u"isEmbedded", 0}});
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

void HwpxStyles::writeLetters(QXmlStreamWriter& xml) const
{
    beginList(xml, u"hh:charProperties", m_letters.size());
    for (qsizetype i = 0; i < m_letters.size(); ++i) {
        const Letters& form = m_letters[i];
        beginElement(xml, u"hh:charPr",
                     {{u"id", i},
                      {u"height", form.height},
                      {u"textColor", form.color},
                      {u"shadeColor", form.shade},
                      {u"useFontSpace", 0},
                      {u"useKerning", 0},
                      {u"symMark", u"NONE"},
                      {u"borderFillIDRef", kNoBorder}});
        writeForScripts(xml, u"hh:fontRef", form.font);
        writeForScripts(xml, u"hh:ratio", 100);
        writeForScripts(xml, u"hh:spacing", 0);
        writeForScripts(xml, u"hh:relSz", 100);
        writeForScripts(xml, u"hh:offset", 0);
        if (form.isItalic)
            writeElement(xml, u"hh:italic");
        if (form.isBold)
            writeElement(xml, u"hh:bold");
        writeElement(xml, u"hh:underline",
                     {{u"type", form.isUnderlined ? u"BOTTOM" : u"NONE"},
                      {u"shape", u"SOLID"},
                      {u"color", form.color}});
        writeElement(xml, u"hh:strikeout",
                     {{u"shape", form.isStruckOut ? u"SOLID" : u"NONE"}, {u"color", form.color}});
        if (form.position == QTextCharFormat::AlignSuperScript)
            writeElement(xml, u"hh:supscript");
        if (form.position == QTextCharFormat::AlignSubScript)
            writeElement(xml, u"hh:subscript");
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

void HwpxStyles::writeParagraphs(QXmlStreamWriter& xml) const
{
    beginList(xml, u"hh:paraProperties", m_paragraphs.size());
    for (qsizetype i = 0; i < m_paragraphs.size(); ++i) {
        const Paragraph& form = m_paragraphs[i];
        beginElement(xml, u"hh:paraPr", {{u"id", i}, {u"tabPrIDRef", 0}});
        writeElement(xml, u"hh:align",
                     {{u"horizontal", form.alignment}, {u"vertical", u"BASELINE"}});
        writeElement(xml, u"hh:heading", {{u"type", u"NONE"}, {u"idRef", 0}, {u"level", 0}});
        writeElement(xml, u"hh:breakSetting",
                     {{u"breakLatinWord", u"KEEP_WORD"},
                      {u"breakNonLatinWord", u"BREAK_WORD"},
                      {u"lineWrap", u"BREAK"}});
        beginElement(xml, u"hh:margin");
        writeLength(xml, u"hc:intent", form.indent);
        writeLength(xml, u"hc:left", form.left);
        writeLength(xml, u"hc:right", form.right);
        writeLength(xml, u"hc:prev", form.above);
        writeLength(xml, u"hc:next", form.below);
        xml.writeEndElement();
        writeElement(
            xml, u"hh:lineSpacing",
            {{u"type", form.spacingType}, {u"value", form.spacing}, {u"unit", u"HWPUNIT"}});
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

QByteArray HwpxStyles::headerXml() const
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    beginPart(xml, u"hh:head", {{u"version", u"1.4"}, {u"secCnt", 1}});
    writeElement(xml, u"hh:beginNum",
                 {{u"page", 1},
                  {u"footnote", 1},
                  {u"endnote", 1},
                  {u"pic", 1},
                  {u"tbl", 1},
                  {u"equation", 1}});
    beginElement(xml, u"hh:refList");
    writeFonts(xml);
    beginList(xml, u"hh:borderFills", 2);
    writeBorder(xml, kNoBorder, u"NONE");
    writeBorder(xml, kThinBorder, u"SOLID");
    xml.writeEndElement();
    writeLetters(xml);
    beginList(xml, u"hh:tabProperties", 1);
    writeElement(xml, u"hh:tabPr", {{u"id", 0}, {u"autoTabLeft", 0}, {u"autoTabRight", 0}});
    xml.writeEndElement();
    writeParagraphs(xml);
    beginList(xml, u"hh:styles", 1);
    writeElement(xml, u"hh:style",
                 {{u"id", 0},
                  {u"type", u"PARA"},
                  {u"name", u"바탕글"},
                  {u"engName", u"Normal"},
                  {u"paraPrIDRef", 0},
                  {u"charPrIDRef", 0},
                  {u"nextStyleIDRef", 0},
                  {u"langID", 1042},
                  {u"lockForm", 0}});
    xml.writeEndDocument();
    return bytes;
}

} // namespace lumen
