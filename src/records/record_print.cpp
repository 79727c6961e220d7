// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/record_print.h"

#include "records/search/record_search.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kBodyText = 2;

/// The labels of the printed form, wide as the form has them.
constexpr std::array<QStringView, kRecordTexts> kSermonLabels{u"제 목", u"말 씀", u"", u"기 도",
                                                              u"요 약"};
constexpr std::array<QStringView, kRecordTexts> kQuietTimeLabels{u"제 목", u"말 씀", u"", u"기 도",
                                                                 u"적 용"};

QString rtfOf(const RecordBoxes& boxes, int text)
{
    return boxes.plainText(text).isEmpty() ? QString() : boxes.rtf(text);
}

} // namespace

RecordSheet recordSheet(const RecordProfile& profile, const RecordBoxes& boxes)
{
    RecordSheet sheet;
    const RecordSheet::Field written{u"작성일"_s, dayString(boxes.writtenDay())};
    const RecordSheet::Field category{u"분 류"_s, boxes.category()};
    if (profile.hasPreachedDay())
        sheet.head = {RecordSheet::Field{u"설교일"_s, dayString(boxes.preachedDay())}, written,
                      category};
    else
        sheet.head = {written, category, RecordSheet::Field()};
    const auto& labels = profile.hasPreachedDay() ? kSermonLabels : kQuietTimeLabels;
    for (int text = 0; text < kRecordTexts; ++text)
        if (text != kBodyText)
            sheet.fields.emplace_back(labels[static_cast<std::size_t>(text)].toString(),
                                      rtfOf(boxes, text));
    sheet.body = rtfOf(boxes, kBodyText);
    return sheet;
}

PrintRequest recordRequest(const RecordProfile& profile, const RecordBoxes& boxes)
{
    PrintRequest request;
    request.source = profile.printSource.toString();
    request.footerLeft = boxes.plainText(kTitleText);
    request.docName = request.footerLeft;
    request.layOut = [&profile, &boxes](VSPrinter& vp, bool) {
        layOutRecord(vp, recordSheet(profile, boxes));
    };
    return request;
}

RecordListSheet recordListSheet(const RecordProfile& profile, RecordSearch& search, int first,
                                int behind)
{
    RecordListSheet sheet;
    std::vector<std::size_t> shown;
    for (std::size_t i = 0; i < profile.resultColumns.size(); ++i) {
        const RecordResultColumn& column = profile.resultColumns[i];
        if (column.width == 0)
            continue;
        shown.push_back(i);
        const bool isBody = column.column == profile.texts[kBodyText].plain;
        sheet.headers << (isBody ? column.column : column.header).toString();
        sheet.longTexts.push_back(std::ranges::find(profile.texts, column.column,
                                                    &RecordColumn::plain) != profile.texts.end());
    }
    for (int row = first; row < behind; ++row) {
        const auto cells = search.row(row);
        if (!cells)
            continue;
        QStringList printed;
        for (std::size_t column : shown) {
            const QString cell = cells->at(static_cast<qsizetype>(column));
            printed << (sheet.longTexts[static_cast<std::size_t>(printed.size())]
                            ? printedCell(cell)
                            : QString(cell).replace(u'\t', u' '));
        }
        sheet.rows.push_back(printed);
    }
    return sheet;
}

} // namespace lumen
