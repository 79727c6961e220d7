// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/printing/paper_table.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace lumen {
namespace {

constexpr double inch(double inches)
{
    return inches * 25.4;
}

// Names and codes as print drivers have them; the codes of fractions in some names are no slip of
// this table. The engineering sheets C, D and E are 17, 22 and 34 inches wide.
constexpr std::array kRows{
    PaperRow{1, u"Letter 8 1/2 x 11 in", {inch(8.5), inch(11)}},
    PaperRow{2, u"Letter Small 8 1/2 x 11 in", {inch(8.5), inch(11)}},
    PaperRow{3, u"Tabloid 11 x 17 in", {inch(11), inch(17)}},
    PaperRow{4, u"Ledger 17 x 11 in", {inch(17), inch(11)}},
    PaperRow{5, u"Legal 8 1/2 x 14 in", {inch(8.5), inch(14)}},
    PaperRow{6, u"Statement 5 1/2 x 8 1/2 in", {inch(5.5), inch(8.5)}},
    PaperRow{7, u"Executive 7 1/4 x 10 1/2 in", {inch(7.25), inch(10.5)}},
    PaperRow{8, u"A3 297 x 420 mm", {297, 420}},
    PaperRow{9, u"A4 210 x 297 mm", {210, 297}},
    PaperRow{10, u"A4 Small 210 x 297 mm", {210, 297}},
    PaperRow{11, u"A5 148 x 210 mm", {148, 210}},
    PaperRow{12, u"B4 (JIS) 250 x 354", {250, 354}},
    PaperRow{13, u"B5 (JIS) 182 x 257 mm", {182, 257}},
    PaperRow{14, u"Folio 8 1/2 x 13 in", {inch(8.5), inch(13)}},
    PaperRow{15, u"Quarto 215 x 275 mm", {215, 275}},
    PaperRow{16, u"10x14 in", {inch(10), inch(14)}},
    PaperRow{17, u"11x17 in", {inch(11), inch(17)}},
    PaperRow{18, u"Note 8 1/2 x 11 in", {inch(8.5), inch(11)}},
    PaperRow{19, u"Envelope #9 3 7/8 x 8 7/8", {inch(3.875), inch(8.875)}},
    PaperRow{20, u"Envelope #10 4 1/8 x 9 1/2", {inch(4.125), inch(9.5)}},
    PaperRow{21, u"Envelope #11 4 1/2 x 10 3/8", {inch(4.5), inch(10.375)}},
    PaperRow{22, u"Envelope #12 4 \\276 x 11", {inch(4.75), inch(11)}},
    PaperRow{23, u"Envelope #14 5 x 11 1/2", {inch(5), inch(11.5)}},
    PaperRow{24, u"C size sheet", {inch(17), inch(22)}},
    PaperRow{25, u"D size sheet", {inch(22), inch(34)}},
    PaperRow{26, u"E size sheet", {inch(34), inch(44)}},
    PaperRow{27, u"Envelope DL 110 x 220mm", {110, 220}},
    PaperRow{28, u"Envelope C5 162 x 229 mm", {162, 229}},
    PaperRow{29, u"Envelope C3  324 x 458 mm", {324, 458}},
    PaperRow{30, u"Envelope C4  229 x 324 mm", {229, 324}},
    PaperRow{31, u"Envelope C6  114 x 162 mm", {114, 162}},
    PaperRow{32, u"Envelope C65 114 x 229 mm", {114, 229}},
    PaperRow{33, u"Envelope B4  250 x 353 mm", {250, 353}},
    PaperRow{34, u"Envelope B5  176 x 250 mm", {176, 250}},
    PaperRow{35, u"Envelope B6  176 x 125 mm", {176, 125}},
    PaperRow{36, u"Envelope 110 x 230 mm", {110, 230}},
    PaperRow{37, u"Envelope Monarch 3.875 x 7.5 in", {inch(3.875), inch(7.5)}},
    PaperRow{38, u"6 3/4 Envelope 3 5/8 x 6 1/2 in", {inch(3.625), inch(6.5)}},
    PaperRow{39, u"US Std Fanfold 14 7/8 x 11 in", {inch(14.875), inch(11)}},
    PaperRow{40, u"German Std Fanfold 8 1/2 x 12 in", {inch(8.5), inch(12)}},
    PaperRow{41, u"German Legal Fanfold 8 1/2 x 13 in", {inch(8.5), inch(13)}},
    PaperRow{42, u"B4 (ISO) 250 x 353 mm", {250, 353}},
    PaperRow{43, u"Japanese Postcard 100 x 148 mm", {100, 148}},
    PaperRow{44, u"9 x 11 in", {inch(9), inch(11)}},
    PaperRow{45, u"10 x 11 in", {inch(10), inch(11)}},
    PaperRow{46, u"15 x 11 in", {inch(15), inch(11)}},
    PaperRow{47, u"Envelope Invite 220 x 220 mm", {220, 220}},
    PaperRow{50, u"Letter Extra 9 \\275 x 12 in", {inch(9.5), inch(12)}},
    PaperRow{51, u"Legal Extra 9 \\275 x 15 in", {inch(9.5), inch(15)}},
    PaperRow{52, u"Tabloid Extra 11.69 x 18 in", {inch(11.69), inch(18)}},
    PaperRow{53, u"A4 Extra 9.27 x 12.69 in", {inch(9.27), inch(12.69)}},
    PaperRow{54, u"Letter Transverse 8 \\275 x 11 in", {inch(8.5), inch(11)}},
    PaperRow{55, u"A4 Transverse 210 x 297 mm", {210, 297}},
    PaperRow{56, u"Letter Extra Transverse 9\\275 x 12 in", {inch(9.5), inch(12)}},
    PaperRow{57, u"SuperA/SuperA/A4 227 x 356 mm", {227, 356}},
    PaperRow{58, u"SuperB/SuperB/A3 305 x 487 mm", {305, 487}},
    PaperRow{59, u"Letter Plus 8.5 x 12.69 in", {inch(8.5), inch(12.69)}},
    PaperRow{60, u"A4 Plus 210 x 330 mm", {210, 330}},
    PaperRow{61, u"A5 Transverse 148 x 210 mm", {148, 210}},
    PaperRow{62, u"B5 (JIS) Transverse 182 x 257 mm", {182, 257}},
    PaperRow{63, u"A3 Extra 322 x 445 mm", {322, 445}},
    PaperRow{64, u"A5 Extra 174 x 235 mm", {174, 235}},
    PaperRow{65, u"B5 (ISO) Extra 201 x 276 mm", {201, 276}},
    PaperRow{66, u"A2 420 x 594 mm", {420, 594}},
    PaperRow{67, u"A3 Transverse 297 x 420 mm", {297, 420}},
    PaperRow{68, u"A3 Extra Transverse 322 x 445 mm", {322, 445}},
};
static_assert(kRows.size() == 66 && kRows.back().code == kPaperCodes - 1);

constexpr double kSameWithin = 1; // millimetres: drivers round

bool isSame(const PaperMeasure& a, const PaperMeasure& b)
{
    return std::abs(a.width - b.width) <= kSameWithin &&
           std::abs(a.height - b.height) <= kSameWithin;
}

} // namespace

std::span<const PaperRow> paperRows()
{
    return kRows;
}

const PaperRow* paperRow(int code)
{
    const auto row = std::find_if(kRows.begin(), kRows.end(),
                                  [code](const PaperRow& each) { return each.code == code; });
    return row == kRows.end() ? nullptr : &*row;
}

bool hasPaper(const PrinterPapers& papers, int code)
{
    if (papers.takesAny && code == kUserPaper)
        return true;
    const PaperRow* const row = paperRow(code);
    if (row == nullptr)
        return false;
    return papers.takesAny ||
           std::any_of(papers.known.begin(), papers.known.end(),
                       [row](const PaperMeasure& known) { return isSame(known, row->size); });
}

std::optional<int> paperCode(const PaperMeasure& size)
{
    // The usual sheet first: several codes have its measures.
    if (isSame(paperRow(kPaperA4)->size, size))
        return kPaperA4;
    for (const PaperRow& row : kRows)
        if (isSame(row.size, size))
            return row.code;
    return {};
}

} // namespace lumen
