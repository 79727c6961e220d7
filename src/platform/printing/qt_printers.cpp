// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/printing/qt_printers.h"

#include "platform/controls/twips.h"
#include "platform/files/safe_write.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

const QString kPdfEntry = u"PDF 파일로 저장"_s;
constexpr double kTwipsPerPoint = 20;
// Dots per inch of the three qualities.
constexpr int kBestResolution = 1200;
constexpr int kUsualResolution = 600;
constexpr int kDraftResolution = 300;

/// Paper as it lies under the page: sheets count upright, a wide page lies across.
QPageLayout layoutOf(const PrintPage& page)
{
    const bool isWide = page.size.width() > page.size.height();
    const QSizeF upright = (isWide ? page.size.transposed() : page.size) / kTwipsPerPoint;
    QPageLayout layout(QPageSize(upright, QPageSize::Point, QString(), QPageSize::FuzzyMatch),
                       isWide ? QPageLayout::Landscape : QPageLayout::Portrait, {});
    layout.setMode(QPageLayout::FullPageMode);
    return layout;
}

bool paintPages(QPagedPaintDevice& device, const std::vector<PrintPage>& pages)
{
    if (pages.empty())
        return true;
    device.setPageLayout(layoutOf(pages.front()));
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (i > 0) {
            device.setPageLayout(layoutOf(pages[i]));
            if (!device.newPage())
                return false;
        }
        painter.save();
        const double dots = static_cast<double>(device.logicalDpiX()) / kTwipsPerInch;
        painter.scale(dots, dots);
        paintPage(painter, pages[i]);
        painter.restore();
    }
    return painter.end();
}

int resolutionOf(int quality)
{
    if (quality <= -4)
        return kBestResolution;
    return quality == -1 ? kDraftResolution : kUsualResolution;
}

Result<Done> printOn(QPrinter& printer, const PrintJob& job)
{
    printer.setResolution(resolutionOf(job.quality));
    printer.setFullPage(true);
    printer.setDocName(job.title);
    printer.setCreator(u"Lumenscript"_s);
    printer.setCopyCount(std::max(1, job.copies));
    if (!paintPages(printer, job.pages))
        return Failure{FailureKind::System, job.device};
    return Done{};
}

} // namespace

QStringList QtPrinters::names() const
{
    return QPrinterInfo::availablePrinterNames() << kPdfEntry;
}

QString QtPrinters::usual() const
{
    const QString name = QPrinterInfo::defaultPrinterName();
    return name.isEmpty() ? names().first() : name;
}

PrinterPapers QtPrinters::papers(const QString& device) const
{
    if (isFile(device))
        return {{}, true};
    const QPrinterInfo printer = QPrinterInfo::printerInfo(device);
    PrinterPapers papers;
    const auto measure = [](const QPageSize& size) {
        const QSizeF mm = size.size(QPageSize::Millimeter);
        return PaperMeasure{mm.width(), mm.height()};
    };
    const QList<QPageSize> sizes = printer.supportedPageSizes();
    for (const QPageSize& size : sizes)
        papers.known.push_back(measure(size));
    papers.takesAny = printer.isNull() ? false : printer.supportsCustomPageSizes();
    if (const QPageSize usual = printer.defaultPageSize(); usual.isValid())
        papers.usual = measure(usual);
    return papers;
}

bool QtPrinters::isFile(const QString& device) const
{
    return device == kPdfEntry;
}

Result<Done> QtPrinters::print(const PrintJob& job)
{
    if (isFile(job.device))
        return writeSafely(job.file, pdfOfPages(job.pages, job.title));
    const QPrinterInfo info = QPrinterInfo::printerInfo(job.device);
    if (info.isNull())
        return Failure{FailureKind::NotFound, job.device};
    QPrinter printer(info, QPrinter::HighResolution);
    return printOn(printer, job);
}

std::optional<QString> QtPrinters::setUp(QWidget* parent, const QString& device)
{
    QPrinter printer(QPrinterInfo::printerInfo(device), QPrinter::HighResolution);
    QPrintDialog dialog(&printer, parent);
    dialog.setOptions(QAbstractPrintDialog::PrintShowPageSize);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    const QString name = printer.printerName();
    return name.isEmpty() ? kPdfEntry : name;
}

QByteArray pdfOfPages(const std::vector<PrintPage>& pages, const QString& title)
{
    QByteArray bytes;
    QBuffer file(&bytes);
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    writer.setTitle(title);
    writer.setCreator(u"Lumenscript"_s);
    writer.setResolution(kBestResolution);
    const bool painted = paintPages(writer, pages);
    file.close();
    return painted ? bytes : QByteArray();
}

} // namespace lumen
