// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/export/record_hwpx.h"

#include "records/export/hwpx_styles.h"
#include "records/export/hwpx_xml.h"
#include "records/export/zip_package.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>
#include <QXmlStreamWriter>

#include <functional>
#include <numeric>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// HWPUNIT: A4 with margins of 20 mm.
constexpr int kPageWidth = 59528;
constexpr int kPageHeight = 84188;
constexpr int kMargin = 5669;
constexpr int kTextWidth = kPageWidth - 2 * kMargin;
constexpr int kCellMargin = 141;
constexpr int kRowHeight = 1400; // the least one: the word processor lets a row grow

/// The part with the text.
class SectionWriter
{
public:
    SectionWriter(HwpxStyles& styles, QByteArray& bytes) : m_styles(styles), m_xml(&bytes) {}

    void write(const QTextDocument& document)
    {
        beginPart(m_xml, u"hs:sec");
        writeFrame(document.rootFrame()->begin());
        m_xml.writeEndDocument();
    }

private:
    void writeFrame(QTextFrame::iterator it);
    void beginParagraph(const QTextBlock& block);
    void writePage();
    void writePageSize();
    void writeBlock(const QTextBlock& block);
    void writeRun(const QString& text, const QTextCharFormat& format);
    void writeText(const QString& text);
    void writeTable(QTextTable& table, int width);
    void writeRows(QTextTable& table, const QList<int>& widths);
    void writeCell(QTextTable& table, const QTextTableCell& cell, const QList<int>& widths);

    HwpxStyles& m_styles;
    QXmlStreamWriter m_xml;
    int m_width = kTextWidth; ///< of the page or of the cell that is being written
    int m_paragraphs = 0;
    int m_tables = 0;
};

void SectionWriter::writeFrame(QTextFrame::iterator it)
{
    for (; !it.atEnd(); ++it) {
        if (auto* table = qobject_cast<QTextTable*>(it.currentFrame()))
            writeTable(*table, m_width);
        else if (QTextFrame* frame = it.currentFrame())
            writeFrame(frame->begin());
        else
            writeBlock(it.currentBlock());
    }
}

void SectionWriter::beginParagraph(const QTextBlock& block)
{
    const int form = m_styles.paragraph(block.blockFormat());
    const bool isFirst = m_paragraphs == 0;
    beginElement(m_xml, u"hp:p",
                 {{u"id", m_paragraphs++},
                  {u"paraPrIDRef", form},
                  {u"styleIDRef", 0},
                  {u"pageBreak", 0},
                  {u"columnBreak", 0},
                  {u"merged", 0}});
    if (isFirst)
        writePage();
}

// The page stands in the first run of the section.
void SectionWriter::writePage()
{
    beginElement(m_xml, u"hp:run", {{u"charPrIDRef", 0}});
    beginElement(m_xml, u"hp:secPr",
                 {{u"id", u""},
                  {u"textDirection", u"HORIZONTAL"},
                  {u"spaceColumns", 1134},
                  {u"tabStop", 8000},
                  {u"outlineShapeIDRef", 0},
                  {u"memoShapeIDRef", 0},
                  {u"textVerticalWidthHead", 0},
                  {u"masterPageCnt", 0}});
    writeElement(m_xml, u"hp:grid", {{u"lineGrid", 0}, {u"charGrid", 0}, {u"wonggojiFormat", 0}});
    writeElement(
        m_xml, u"hp:startNum",
        {{u"pageStartsOn", u"BOTH"}, {u"page", 0}, {u"pic", 0}, {u"tbl", 0}, {u"equation", 0}});
    writeElement(m_xml, u"hp:visibility",
                 {{u"hideFirstHeader", 0},
                  {u"hideFirstFooter", 0},
                  {u"hideFirstMasterPage", 0},
                  {u"border", u"SHOW_ALL"},
                  {u"fill", u"SHOW_ALL"},
                  {u"hideFirstPageNum", 0},
                  {u"hideFirstEmptyLine", 0},
                  {u"showLineNumber", 0}});
    writePageSize();
    m_xml.writeEndElement();
    beginElement(m_xml, u"hp:ctrl");
    writeElement(m_xml, u"hp:colPr",
                 {{u"id", u""},
                  {u"type", u"NEWSPAPER"},
                  {u"layout", u"LEFT"},
                  {u"colCount", 1},
                  {u"sameSz", 1},
                  {u"sameGap", 0}});
    m_xml.writeEndElement();
    m_xml.writeEndElement();
}

void SectionWriter::writePageSize()
{
    // The word processor calls a page WIDELY that stands upright.
    beginElement(m_xml, u"hp:pagePr",
                 {{u"landscape", u"WIDELY"},
                  {u"width", kPageWidth},
                  {u"height", kPageHeight},
                  {u"gutterType", u"LEFT_ONLY"}});
    writeElement(m_xml, u"hp:margin",
                 {{u"header", 0},
                  {u"footer", 0},
                  {u"gutter", 0},
                  {u"left", kMargin},
                  {u"right", kMargin},
                  {u"top", kMargin},
                  {u"bottom", kMargin}});
    m_xml.writeEndElement();
}

void SectionWriter::writeBlock(const QTextBlock& block)
{
    beginParagraph(block);
    if (block.textList())
        writeRun(block.textList()->itemText(block) + u' ', block.charFormat());
    if (block.begin().atEnd())
        writeRun({}, block.charFormat());
    for (auto it = block.begin(); !it.atEnd(); ++it)
        writeRun(it.fragment().text(), it.fragment().charFormat());
    m_xml.writeEndElement();
}

void SectionWriter::writeRun(const QString& text, const QTextCharFormat& format)
{
    beginElement(m_xml, u"hp:run", {{u"charPrIDRef", m_styles.letters(format)}});
    beginElement(m_xml, u"hp:t");
    writeText(text);
    m_xml.writeEndElement();
    m_xml.writeEndElement();
}

void SectionWriter::writeText(const QString& text)
{
    QString plain;
    const auto flush = [this, &plain] {
        if (!plain.isEmpty())
            m_xml.writeCharacters(std::exchange(plain, {}));
    };
    for (const QChar letter : text) {
        if (letter == QChar::LineSeparator || letter == u'\n') {
            flush();
            writeElement(m_xml, u"hp:lineBreak");
        } else if (letter == u'\t') {
            flush();
            writeElement(m_xml, u"hp:tab");
        } else if (letter == QChar::ObjectReplacementCharacter) {
            plain += u"[그림]"_s;
        } else if (isXmlLetter(letter)) {
            plain += letter;
        }
    }
    flush();
}

void writeMargin(QXmlStreamWriter& xml, QStringView name, int width)
{
    writeElement(xml, name,
                 {{u"left", width}, {u"right", width}, {u"top", width}, {u"bottom", width}});
}

/// The widths of a table's columns in HWPUNIT, that together fit into `room`.
QList<int> columnWidths(const QTextTable& table, int room)
{
    const QList<QTextLength> wanted = table.format().columnWidthConstraints();
    QList<int> widths(table.columns(), room / std::max(1, table.columns()));
    for (qsizetype i = 0; i < widths.size() && i < wanted.size(); ++i) {
        if (wanted[i].type() == QTextLength::FixedLength)
            widths[i] = qRound(wanted[i].rawValue() * kHwpUnitsPerPixel);
        else if (wanted[i].type() == QTextLength::PercentageLength)
            widths[i] = qRound(wanted[i].rawValue() * room / 100);
    }
    const double sum = std::accumulate(widths.cbegin(), widths.cend(), 0.0);
    if (sum > room)
        for (int& width : widths)
            width = static_cast<int>(width * room / sum);
    return widths;
}

// A table stands in a paragraph of its own, as a letter does.
void SectionWriter::writeTable(QTextTable& table, int width)
{
    const QList<int> widths = columnWidths(table, width);
    const int border =
        table.format().border() > 0 ? HwpxStyles::kThinBorder : HwpxStyles::kNoBorder;
    beginParagraph(QTextBlock());
    beginElement(m_xml, u"hp:run", {{u"charPrIDRef", 0}});
    beginElement(m_xml, u"hp:tbl",
                 {{u"id", ++m_tables},
                  {u"zOrder", 0},
                  {u"numberingType", u"TABLE"},
                  {u"textWrap", u"TOP_AND_BOTTOM"},
                  {u"textFlow", u"BOTH_SIDES"},
                  {u"lock", 0},
                  {u"pageBreak", u"CELL"},
                  {u"rowCnt", table.rows()},
                  {u"colCnt", table.columns()},
                  {u"cellSpacing", 0},
                  {u"borderFillIDRef", border}});
    writeElement(m_xml, u"hp:sz",
                 {{u"width", std::accumulate(widths.cbegin(), widths.cend(), 0)},
                  {u"widthRelTo", u"ABSOLUTE"},
                  {u"height", kRowHeight * table.rows()},
                  {u"heightRelTo", u"ABSOLUTE"},
                  {u"protect", 0}});
    writeElement(m_xml, u"hp:pos",
                 {{u"treatAsChar", 1},
                  {u"flowWithText", 1},
                  {u"allowOverlap", 0},
                  {u"vertRelTo", u"PARA"},
                  {u"horzRelTo", u"COLUMN"},
                  {u"vertAlign", u"TOP"},
                  {u"horzAlign", u"LEFT"},
                  {u"vertOffset", 0},
                  {u"horzOffset", 0}});
    writeMargin(m_xml, u"hp:outMargin", 0);
    writeMargin(m_xml, u"hp:inMargin", kCellMargin);
    writeRows(table, widths);
    m_xml.writeEndElement();
    m_xml.writeEndElement();
    m_xml.writeEndElement();
}

void SectionWriter::writeRows(QTextTable& table, const QList<int>& widths)
{
    for (int row = 0; row < table.rows(); ++row) {
        beginElement(m_xml, u"hp:tr");
        for (int column = 0; column < table.columns(); ++column) {
            // Merged cells are met at each place that they cover.
            const QTextTableCell cell = table.cellAt(row, column);
            if (cell.row() == row && cell.column() == column)
                writeCell(table, cell, widths);
        }
        m_xml.writeEndElement();
    }
}

void SectionWriter::writeCell(QTextTable& table, const QTextTableCell& cell,
                              const QList<int>& widths)
{
    const auto first = widths.cbegin() + cell.column();
    const int width = std::accumulate(first, first + cell.columnSpan(), 0);
    const int border =
        table.format().border() > 0 ? HwpxStyles::kThinBorder : HwpxStyles::kNoBorder;
    beginElement(m_xml, u"hp:tc",
                 {{u"name", u""},
                  {u"header", 0},
                  {u"hasMargin", 1},
                  {u"protect", 0},
                  {u"editable", 0},
                  {u"dirty", 0},
                  {u"borderFillIDRef", border}});
    beginElement(m_xml, u"hp:subList",
                 {{u"id", u""},
                  {u"textDirection", u"HORIZONTAL"},
                  {u"lineWrap", u"BREAK"},
                  {u"vertAlign", u"TOP"}});
    const int outer = std::exchange(m_width, width - 2 * kCellMargin);
    writeFrame(cell.begin());
    m_width = outer;
    m_xml.writeEndElement();
    writeElement(m_xml, u"hp:cellAddr", {{u"colAddr", cell.column()}, {u"rowAddr", cell.row()}});
    writeElement(m_xml, u"hp:cellSpan",
                 {{u"colSpan", cell.columnSpan()}, {u"rowSpan", cell.rowSpan()}});
    writeElement(m_xml, u"hp:cellSz",
                 {{u"width", width}, {u"height", kRowHeight * cell.rowSpan()}});
    writeMargin(m_xml, u"hp:cellMargin", kCellMargin);
    m_xml.writeEndElement();
}

QByteArray part(QStringView root, HwpxAttributes attributes,
                const std::function<void(QXmlStreamWriter&)>& writeContent = {})
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    beginPart(xml, root, attributes);
    if (writeContent)
        writeContent(xml);
    xml.writeEndDocument();
    return bytes;
}

QByteArray versionXml()
{
    // "tagetApplication" is how the format spells it.
    return part(u"hv:HCFVersion", {{u"tagetApplication", u"WORDPROCESSOR"},
                                   {u"major", 5},
                                   {u"minor", 0},
                                   {u"micro", 5},
                                   {u"buildNumber", 0},
                                   {u"os", 1},
                                   {u"xmlVersion", u"1.4"},
                                   {u"application", u"Lumenscript"},
                                   {u"appVersion", u"2.0"}});
}

QByteArray containerXml()
{
    return part(u"ocf:container", {}, [](QXmlStreamWriter& xml) {
        beginElement(xml, u"ocf:rootfiles");
        writeElement(xml, u"ocf:rootfile",
                     {{u"full-path", u"Contents/content.hpf"},
                      {u"media-type", u"application/hwpml-package+xml"}});
    });
}

QByteArray contentList(QString title)
{
    title.removeIf([](QChar letter) { return !isXmlLetter(letter); });
    const auto write = [&title](QXmlStreamWriter& xml) {
        beginElement(xml, u"opf:metadata");
        xml.writeTextElement(u"opf:title"_s, title);
        xml.writeTextElement(u"opf:language"_s, u"ko"_s);
        xml.writeEndElement();
        beginElement(xml, u"opf:manifest");
        for (const auto& [id, path] : {std::pair(u"header", u"Contents/header.xml"),
                                       std::pair(u"section0", u"Contents/section0.xml"),
                                       std::pair(u"settings", u"settings.xml")})
            writeElement(xml, u"opf:item",
                         {{u"id", id}, {u"href", path}, {u"media-type", u"application/xml"}});
        xml.writeEndElement();
        beginElement(xml, u"opf:spine");
        for (const QStringView id : {u"header", u"section0"})
            writeElement(xml, u"opf:itemref", {{u"idref", id}, {u"linear", u"yes"}});
    };
    return part(u"opf:package", {{u"version", u""}, {u"unique-identifier", u""}, {u"id", u""}},
                write);
}

QByteArray settingsXml()
{
    return part(u"ha:HWPApplicationSetting", {}, [](QXmlStreamWriter& xml) {
        writeElement(xml, u"ha:CaretPosition", {{u"listIDRef", 0}, {u"paraIDRef", 0}, {u"pos", 0}});
    });
}

} // namespace

QByteArray hwpxBytes(const QTextDocument& document, const QString& title)
{
    HwpxStyles styles;
    QByteArray section;
    SectionWriter(styles, section).write(document);
    // The first part tells the kind of the file by its place, so it is neither moved nor packed.
    return zipPackage({{"mimetype", "application/hwp+zip", false},
                       {"version.xml", versionXml()},
                       {"META-INF/container.xml", containerXml()},
                       {"META-INF/manifest.xml", part(u"odf:manifest", {})},
                       {"Contents/content.hpf", contentList(title)},
                       {"Contents/header.xml", styles.headerXml()},
                       {"Contents/section0.xml", section},
                       {"settings.xml", settingsXml()}});
}

} // namespace lumen
