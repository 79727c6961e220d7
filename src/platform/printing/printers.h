// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/printing/print_page.h"
#include "platform/result.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class QWidget;

namespace lumen {

/// A sheet upright, in millimetres.
struct PaperMeasure
{
    double width = 0;
    double height = 0;
};

/// What a printer can do with paper.
struct PrinterPapers
{
    std::vector<PaperMeasure> known;
    bool takesAny = false; ///< any of the program's papers, and sizes of the user's own
    PaperMeasure usual{210, 297};
};

/// Pages on their way to a printer.
struct PrintJob
{
    QString device;
    QString title;
    std::vector<PrintPage> pages; ///< each in its own size
    int copies = 1;
    int quality = -2; ///< -4 the best, -2 usual, -1 a draft
    QString file;     ///< native path, for the entry that makes a PDF file
};

/// The printers of the system, and behind them an entry that keeps pages as a PDF file, so that
/// there is always one.
class Printers
{
public:
    virtual ~Printers() = default;
    virtual QStringList names() const = 0;
    /// One of the names; "" when there is none.
    virtual QString usual() const = 0;
    virtual PrinterPapers papers(const QString& device) const = 0;
    /// The entry that asks for a file name.
    virtual bool isFile(const QString& device) const = 0;
    /// A printer that has gone is NotFound, a file that can't be written as SafeWrite tells it.
    virtual Result<Done> print(const PrintJob& job) = 0;
    /// The system's dialog of printer and properties: the printer chosen, nothing when it was
    /// cancelled.
    virtual std::optional<QString> setUp(QWidget* parent, const QString& device) = 0;
};

} // namespace lumen
