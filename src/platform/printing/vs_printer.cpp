// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/printing/vs_printer.h"

#include "platform/controls/twips.h"
#include "platform/printing/paper_table.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr double kTwipsPerMm = kTwipsPerInch / 25.4;
constexpr double kLeastSheet = 1440; // an inch: less holds no line
constexpr double kEdge = 283;        // 5 mm: printers can't reach the last of the paper
constexpr double kBandGap = 113;     // 2 mm between head or foot and the text
constexpr double kRule = 10;         // half a point
constexpr double kLeastBody = 720;   // what margins and bands leave at least
constexpr double kTwipsPerDot = 15;  // of 96 to the inch
constexpr double kFooterPoints = 10;

QSizeF sheetOf(const PaperMeasure& mm)
{
    return QSizeF(mm.width, mm.height) * kTwipsPerMm;
}

PrintLook bandLook(double points, bool bold, Qt::Alignment align)
{
    PrintLook look;
    look.points = points;
    look.bold = bold;
    look.align = align;
    return look;
}

} // namespace

VSPrinter::VSPrinter(Printers& printers) : m_printers(printers)
{
    takeStock();
}

void VSPrinter::takeStock()
{
    m_devices = m_printers.names();
    if (!m_devices.contains(m_device))
        m_device.clear();
    if (m_device.isEmpty())
        setDevice(m_printers.usual());
}

void VSPrinter::setDevice(const QString& name)
{
    if (!m_devices.contains(name) || name == m_device)
        return;
    m_device = name;
    m_papers = m_printers.papers(name);
    if (m_paper == 0 || !PaperSizes(m_paper)) {
        m_paper = paperCode(m_papers.usual).value_or(kUserPaper);
        m_sheet = sheetOf(m_papers.usual);
    }
}

bool VSPrinter::PaperSizes(int code) const
{
    return hasPaper(m_papers, code);
}

void VSPrinter::setPaperSize(int code)
{
    if (!PaperSizes(code))
        return;
    m_paper = code;
    if (const PaperRow* const row = paperRow(code))
        m_sheet = sheetOf(row->size);
}

void VSPrinter::setPaperWidth(double twips)
{
    m_sheet.setWidth(std::max(twips, kLeastSheet));
}

void VSPrinter::setPaperHeight(double twips)
{
    m_sheet.setHeight(std::max(twips, kLeastSheet));
}

QSizeF VSPrinter::pageSize() const
{
    const QSizeF sheet = m_sheet.isEmpty() ? sheetOf(PaperMeasure{210, 297}) : m_sheet;
    return Orientation == PageOrientation::Landscape ? sheet.transposed() : sheet;
}

double VSPrinter::headHeight(const QString& text) const
{
    if (text.isEmpty())
        return 0;
    return flowOfText(text.section(u'|', 0, 0) + text.section(u'|', 1, 1),
                      bandLook(HdrFontSize, HdrFontBold, Qt::AlignLeft), bodyWidth())
        .height;
}

double VSPrinter::bodyTop() const
{
    const double head = Header.isEmpty() ? 0 : kEdge + headHeight(Header) + kBandGap;
    return std::min(std::max(MarginTop, head), PageHeight() - kLeastBody);
}

double VSPrinter::bodyBottom() const
{
    const double foot = Footer.isEmpty() ? 0 : kEdge + 2 * kFooterPoints * 20 + kBandGap;
    return std::max(PageHeight() - std::max(MarginBottom, foot), bodyTop() + kLeastBody / 2);
}

void VSPrinter::StartDoc()
{
    m_pages.clear();
    m_isOpen = true;
    NewPage();
}

void VSPrinter::NewPage()
{
    if (!m_pages.empty())
        finishPage();
    m_pages.push_back({pageSize(), {}});
    if (onBeforeHeader)
        onBeforeHeader();
    drawBand(Header, kEdge, true);
    CurrentY = bodyTop();
}

void VSPrinter::finishPage()
{
    if (onBeforeFooter)
        onBeforeFooter();
    drawBand(Footer, bodyBottom() + kBandGap, false);
    drawBorder();
}

void VSPrinter::EndDoc()
{
    if (m_isOpen)
        finishPage();
    m_isOpen = false;
}

void VSPrinter::KillDoc()
{
    m_pages.clear();
    m_isOpen = false;
}

void VSPrinter::add(std::vector<PageItem> items)
{
    auto& page = m_pages.back().items;
    std::move(items.begin(), items.end(), std::back_inserter(page));
}

void VSPrinter::fill(const QRectF& box)
{
    m_pages.back().items.emplace_back(PageFill{box, Qt::black});
}

void VSPrinter::drawBand(const QString& text, double top, bool isHeader)
{
    constexpr std::array aligns{Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    const QStringList parts = text.split(u'|');
    const double points = isHeader ? HdrFontSize : kFooterPoints;
    // The page number at the right keeps its room, however long the left part is.
    const double number = parts.size() > 2 && !parts[2].isEmpty() ? bodyWidth() / 5 : 0;
    for (qsizetype i = 0; i < std::min<qsizetype>(parts.size(), 3); ++i) {
        if (parts[i].isEmpty())
            continue;
        PrintLook look =
            bandLook(points, isHeader && HdrFontBold, aligns[static_cast<std::size_t>(i)]);
        const double width = i == 2 ? bodyWidth() : bodyWidth() - number;
        TextFlow flow = flowOfText(parts[i], look, width);
        // Two lines at the foot; a longer query ends there.
        const std::size_t shown =
            isHeader ? flow.bands.size() : std::min<std::size_t>(flow.bands.size(), 2);
        add(flow.piece(0, shown, {MarginLeft, top}));
    }
}

void VSPrinter::drawBorder()
{
    const double left = MarginLeft;
    const double width = bodyWidth();
    const double top = bodyTop() - kBandGap / 2;
    const double bottom = bodyBottom() + kBandGap / 2;
    using Border = lumen::PageBorder;
    if (PageBorder == Border::Top || PageBorder == Border::TopBottom || PageBorder == Border::Box)
        fill({left, top, width, kRule});
    if (PageBorder == Border::Bottom || PageBorder == Border::TopBottom ||
        PageBorder == Border::Box)
        fill({left, bottom, width, kRule});
    if (PageBorder == Border::Box) {
        fill({left - kRule, top, kRule, bottom - top + kRule});
        fill({left + width, top, kRule, bottom - top + kRule});
    }
}

void VSPrinter::addFlow(const TextFlow& flow, double left)
{
    std::size_t next = 0;
    while (next < flow.bands.size()) {
        const bool isTop = CurrentY <= bodyTop();
        const std::size_t behind = flow.fitting(next, bodyBottom() - CurrentY, isTop);
        if (behind == next) {
            NewPage();
            continue;
        }
        add(flow.piece(next, behind, {left, CurrentY}));
        CurrentY += flow.heightOf(next, behind);
        next = behind;
        if (next < flow.bands.size())
            NewPage();
    }
}

void VSPrinter::addText(const QString& text, const PrintLook& look)
{
    addFlow(flowOfText(text, look, bodyWidth()), MarginLeft);
}

void VSPrinter::addRtf(const QString& rtf, int tabWidth)
{
    addFlow(flowOfRtf(rtf, bodyWidth(), bodyBottom() - bodyTop(), tabWidth), MarginLeft);
}

void VSPrinter::addDocument(QTextDocument& document)
{
    addFlow(flowOfDocument(document, bodyWidth(), bodyBottom() - bodyTop()), MarginLeft);
}

void VSPrinter::addPicture(const QImage& picture)
{
    if (picture.isNull())
        return;
    QSizeF size = QSizeF(picture.size()) * kTwipsPerDot;
    const QSizeF room(bodyWidth(), bodyBottom() - bodyTop());
    if (size.width() > room.width() || size.height() > room.height())
        size.scale(room, Qt::KeepAspectRatio);
    if (CurrentY + size.height() > bodyBottom() + 1)
        NewPage();
    add({PagePicture{{{MarginLeft, CurrentY}, size}, picture}});
    CurrentY += size.height();
}

PrintJob VSPrinter::job(int fromPage, int toPage) const
{
    PrintJob job{m_device, DocName, {}, Copies, PrintQuality, {}};
    const int last = fromPage > 0 ? std::min(toPage, PageCount()) : PageCount();
    for (int page = std::max(1, fromPage); page <= last; ++page)
        job.pages.push_back(m_pages[static_cast<std::size_t>(page - 1)]);
    return job;
}

Result<Done> VSPrinter::PrintDoc(int fromPage, int toPage, const QString& file)
{
    PrintJob job = this->job(fromPage, toPage);
    job.file = file;
    return m_printers.print(job);
}

} // namespace lumen
