// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/printing/printers.h"

#include <algorithm>
#include <map>
#include <optional>
#include <vector>

namespace lumen {

/// Printers that a test names, and the jobs that came to them.
class ScriptedPrinters : public Printers
{
public:
    std::map<QString, PrinterPapers> devices{{QStringLiteral("사무실"), {{}, true}}};
    QString file = QStringLiteral("PDF"); ///< the device that makes files, when it is among them
    std::optional<Failure> failure;       ///< what the next jobs end with
    std::optional<QString> chosen;        ///< what the dialog of printers answers
    std::vector<PrintJob> jobs;

    QStringList names() const override
    {
        QStringList names;
        for (const auto& [name, papers] : devices)
            names << name;
        return names;
    }
    QString usual() const override { return names().value(0); }
    PrinterPapers papers(const QString& device) const override
    {
        const auto found = devices.find(device);
        return found == devices.end() ? PrinterPapers() : found->second;
    }
    bool isFile(const QString& device) const override { return device == file; }
    Result<Done> print(const PrintJob& job) override
    {
        if (failure)
            return *failure;
        jobs.push_back(job);
        return Done{};
    }
    std::optional<QString> setUp(QWidget*, const QString&) override { return chosen; }
};

} // namespace lumen
