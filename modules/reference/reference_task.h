// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "reference/module_task.h"

#include <functional>

namespace lumen {

/// Fills the tables of a module; Cancelled when the store says so.
using FillModule = std::function<Result<ModuleReport>(ModuleStore& store)>;

/// Files that stand beside a module, such as the tunes of a hymnal. The folder is the module's.
struct Companions
{
    std::function<bool(const QString& folder)> areThere;
    /// Yields lines for the report.
    std::function<Result<QStringList>(const QString& folder)> write;
};

/// Whether a module is made of what comes with packages and the program or of a user's own files.
enum class Supply { Installed, Own };

/// A module that is no version: analyses, lists, dictionaries, references.
class ReferenceTask : public ModuleTask
{
public:
    QStringList sources;
    /// What enriches the module when it is there. A module that has it is not made anew without it.
    QStringList enrichment;
    FillModule fill;
    Companions companions;
    Supply supply = Supply::Installed;

    bool sourcesAreThere() const override;
    QString stamp() const override;
    /// One made with an enrichment that is away today stays as it is, and so does one of a user's
    /// own files when they aren't named this time.
    bool isCurrent(const QString& stored) const override;
    bool companionsAreThere(const QString& folder, const QString& stored) const override;
    Result<Done> build(const BuildContext& context, ModuleStore& store,
                       ModuleReport& report) const override;

private:
    bool isLeftToUser(const QString& stored) const;
};

} // namespace lumen
