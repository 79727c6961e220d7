// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "reference/module_task.h"

#include <functional>

namespace lumen {

/// Fills the tables of a module; Cancelled when the store says so.
using FillModule = std::function<Result<ModuleReport>(ModuleStore& store)>;

/// A module that is no version: analyses, lists, dictionaries, references.
class ReferenceTask : public ModuleTask
{
public:
    QStringList sources;
    /// What enriches the module when it is there. A module that has it is not made anew without it.
    QStringList enrichment;
    FillModule fill;

    bool sourcesAreThere() const override;
    QString stamp() const override;
    /// One made with an enrichment that is away today stays as it is.
    bool isCurrent(const QString& stored) const override;
    Result<Done> build(const BuildContext& context, ModuleStore& store,
                       ModuleReport& report) const override;
};

} // namespace lumen
