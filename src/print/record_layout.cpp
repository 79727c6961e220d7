// SPDX-License-Identifier: GPL-2.0-or-later
#include "print/record_layout.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kHeadColumns = 6;
constexpr double kUnits = 9; // of the page width: labels take one, values two
constexpr double kPoints = 10;
constexpr double kPadding = 90;   // twips: the text keeps clear of the lines
constexpr double kGapBelow = 240; // twips between table and text
constexpr double kLongShare = 0.157;
constexpr qsizetype kPreviewLetters = 30;

/// The notebooks' tables reckon with two margins like the left one.
double tableWidth(const VSPrinter& vp)
{
    return std::max(1.0, vp.PageWidth() - 2 * vp.MarginLeft);
}

PrintLook valueLook()
{
    PrintLook look;
    look.family = u"굴림체"_s;
    look.points = kPoints;
    return look;
}

PrintCell label(const QString& text)
{
    PrintLook look = valueLook();
    look.bold = true;
    look.align = Qt::AlignHCenter;
    return {text, look};
}

PrintTable headTable(const VSPrinter& vp)
{
    PrintTable table;
    table.padding = kPadding;
    const double unit = tableWidth(vp) / kUnits;
    for (int column = 0; column < kHeadColumns; ++column)
        table.columns.push_back({column % 2 == 0 ? unit : 2 * unit, valueLook()});
    return table;
}

void drawRecord(VSPrinter& vp, const PrintRow& head, const std::vector<PrintRow>& fields)
{
    PrintTable table = headTable(vp);
    table.rows.push_back(head);
    table.rows.insert(table.rows.end(), fields.begin(), fields.end());
    vp.addTable(table);
    vp.CurrentY += kGapBelow;
}

} // namespace

void layOutRecord(VSPrinter& vp, const RecordSheet& sheet)
{
    PrintRow head;
    for (const auto& [name, value] : sheet.head) {
        head.push_back(label(name));
        head.push_back({value, valueLook()});
    }
    std::vector<PrintRow> rows;
    for (const auto& [name, text] : sheet.fields) {
        PrintCell value{QString(), valueLook(), text};
        value.columns = kHeadColumns - 1;
        rows.push_back({label(name), value});
    }
    drawRecord(vp, head, rows);
    if (!sheet.body.isEmpty())
        vp.addRtf(sheet.body);
}

void layOutSamplePage(VSPrinter& vp)
{
    const PrintRow head{label(u"SermonDay"_s), {QString(), valueLook()},
                        label(u"WriteDay"_s),  {QString(), valueLook()},
                        label(u"Category"_s),  {u"Class content here!"_s, valueLook()}};
    const std::array rows{RecordSheet::Field{u"Title"_s, u"Title Here"_s},
                          RecordSheet::Field{u"Bible"_s, u"Bible text here!"_s},
                          RecordSheet::Field{u"Pray"_s, u"Pray text here!"_s},
                          RecordSheet::Field{u"Concise"_s, u"Concist Text Here"_s}};
    std::vector<PrintRow> fields;
    for (const auto& [name, text] : rows) {
        PrintCell value{text, valueLook()};
        value.columns = kHeadColumns - 1;
        fields.push_back({label(name), value});
    }
    drawRecord(vp, head, fields);
    vp.addText(u"Sermon COnt here!!!"_s, valueLook());
}

void layOutRecordList(VSPrinter& vp, const RecordListSheet& sheet)
{
    const double width = tableWidth(vp);
    const auto longOnes = std::count(sheet.longTexts.begin(), sheet.longTexts.end(), true);
    const double shortShare =
        (1 - kLongShare * static_cast<double>(longOnes)) /
        std::max(1.0, static_cast<double>(sheet.longTexts.size()) - static_cast<double>(longOnes));
    QStringList format;
    for (const bool isLong : sheet.longTexts)
        format << u"^+"_s + QString::number(width * (isLong ? kLongShare : shortShare));
    QStringList body;
    for (const QStringList& row : sheet.rows)
        body << row.join(u'\t');
    vp.TableSep = u"\t\n"_s;
    vp.AddTable(format.join(u'\t'), sheet.headers.join(u'\t'), body.join(u'\n'));
}

QString printedCell(QString text)
{
    if (text.size() > kPreviewLetters)
        text = text.first(kPreviewLetters) + u"..."_s;
    return text.remove(u'\r').replace(u'\t', u' ').replace(u'\n', u' ');
}

} // namespace lumen
