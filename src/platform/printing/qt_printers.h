// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/printing/printers.h"

namespace lumen {

/// The printers that the desktop knows.
class QtPrinters : public Printers
{
public:
    QStringList names() const override;
    QString usual() const override;
    PrinterPapers papers(const QString& device) const override;
    bool isFile(const QString& device) const override;
    Result<Done> print(const PrintJob& job) override;
    std::optional<QString> setUp(QWidget* parent, const QString& device) override;
};

/// The pages as a PDF file with all fonts in it.
QByteArray pdfOfPages(const std::vector<PrintPage>& pages, const QString& title);

} // namespace lumen
