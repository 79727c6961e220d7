// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/printing/print_table.h"
#include "platform/printing/printers.h"

#include <QRectF>
#include <QString>

#include <functional>
#include <vector>

namespace lumen {

/// Which margins have a line; the values are those of the list that shows them.
enum class PageBorder { None, Bottom, Top, TopBottom, Box };
enum class PageOrientation { Portrait, Landscape };

/// A document that is laid out once, in pages of recorded items, and then painted wherever it is
/// asked for: preview, printer and PDF file break lines and pages at the same places. Lengths are
/// twips.
///
/// Between StartDoc and EndDoc texts, tables and pictures are put one below the other from the
/// upper margin of the first page. Changing a property lays nothing out anew: whoever does that
/// makes the document again.
class VSPrinter
{
public:
    explicit VSPrinter(Printers& printers);

    // Device and paper
    int NDevices() const { return static_cast<int>(m_devices.size()); }
    QString Devices(int index) const { return m_devices.value(index); }
    const QString& Device() const { return m_device; }
    /// A printer that isn't there leaves the former one.
    void setDevice(const QString& name);
    /// Looks anew which printers there are.
    void takeStock();
    int PaperSize() const { return m_paper; }
    /// A code of the paper table; one that the device lacks changes nothing.
    void setPaperSize(int code);
    bool PaperSizes(int code) const;
    /// The sheet upright.
    double PaperWidth() const { return m_sheet.width(); }
    double PaperHeight() const { return m_sheet.height(); }
    /// Sizes of the user's own; below the least sheet that can be laid out they are raised to it.
    void setPaperWidth(double twips);
    void setPaperHeight(double twips);
    PageOrientation Orientation = PageOrientation::Portrait;
    /// The page as it is read: a sheet lying across is as wide as it is high.
    double PageWidth() const { return pageSize().width(); }
    double PageHeight() const { return pageSize().height(); }

    double MarginLeft = kDefaultMargin;
    double MarginTop = kDefaultMargin;
    double MarginRight = kDefaultMargin;
    double MarginBottom = kDefaultMargin;
    lumen::PageBorder PageBorder = lumen::PageBorder::None;
    int Copies = 1;
    int PrintQuality = -2; ///< as PrintJob has it

    // Head and foot: "left|middle|right", lines parted by "\n"
    QString Header;
    QString Footer;
    double HdrFontSize = 10; ///< points
    bool HdrFontBold = false;
    /// Run before head and foot of a page are drawn, so that they can be set for it.
    std::function<void()> onBeforeHeader;
    std::function<void()> onBeforeFooter;

    // The document
    void StartDoc();
    void EndDoc();
    /// Throws the document away.
    void KillDoc();
    void NewPage();
    int CurrentPage() const { return static_cast<int>(m_pages.size()); }
    int PageCount() const { return static_cast<int>(m_pages.size()); }
    const std::vector<PrintPage>& pages() const { return m_pages; }
    /// The height on the page at which the next thing is put.
    double CurrentY = 0;
    double bodyWidth() const { return std::max(1.0, PageWidth() - MarginLeft - MarginRight); }
    double bodyTop() const;
    double bodyBottom() const;

    void addText(const QString& text, const PrintLook& look);
    /// Tab stops in twips; 0: the text's own.
    void addRtf(const QString& rtf, int tabWidth = 0);
    void addDocument(QTextDocument& document);
    void addTable(const PrintTable& table);
    /// Cells parted by the first sign of TableSep, rows by its second.
    void AddTable(const QString& format, const QString& header, const QString& body);
    QString TableSep = QStringLiteral("\t\n");
    /// As large as it fits between the margins, never larger than its dots at 96 to the inch.
    void addPicture(const QImage& picture);

    /// Prints pages from 1; 0 as the first stands for all. The file is for the device that makes
    /// one.
    Result<Done> PrintDoc(int fromPage = 0, int toPage = 0, const QString& file = {});
    /// What PrintDoc hands over, for callers that print several documents into one file.
    PrintJob job(int fromPage = 0, int toPage = 0) const;
    bool printsFile() const { return m_printers.isFile(m_device); }
    Printers& printers() { return m_printers; }
    /// Name of the document in the printer's queue.
    QString DocName;

    static constexpr double kDefaultMargin = 1133.86; ///< 2 cm

private:
    QSizeF pageSize() const;
    void addFlow(const TextFlow& flow, double left);
    void finishPage();
    void add(std::vector<PageItem> items);
    void fill(const QRectF& box);
    double headHeight(const QString& text) const;
    void drawBand(const QString& text, double top, bool isHeader);
    void drawBorder();

    // Tables, see vs_printer_table.cpp
    struct LaidCell
    {
        TextFlow flow;
        double left = 0;
        double width = 0;
        std::size_t next = 0; ///< the first band that has not been put on a page
    };
    using LaidRow = std::vector<LaidCell>;
    LaidRow layRow(const PrintTable& table, const PrintRow& row) const;
    void placeRow(const PrintTable& table, LaidRow& row, const std::function<void()>& newPage);
    void drawPiece(const PrintTable& table, LaidRow& row, double room);

    Printers& m_printers;
    QStringList m_devices;
    QString m_device;
    PrinterPapers m_papers;
    int m_paper = 0;
    QSizeF m_sheet;
    std::vector<PrintPage> m_pages;
    bool m_isOpen = false;
};

} // namespace lumen
