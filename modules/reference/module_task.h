// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"
#include "reference/module_store.h"

#include <QString>
#include <QStringList>

namespace lumen {

/// What is to be said about the content of a module.
struct ModuleReport
{
    QStringList facts;   ///< counts, for the line on the module
    QStringList details; ///< lines for the report: what was left out, mended or looks odd
};

/// What the user asked for beyond the ordinary.
struct BuildMode
{
    bool force = false;        ///< make what is up to date as well
    bool acceptLosses = false; ///< make a module also of a text that has lost words
};

/// What a task is to know of the work besides its sources.
struct BuildContext
{
    QString former; ///< the module's file, which may hold the module as it was made before
    BuildMode mode;
};

/// One module to be made, a version or another: what it is, which sources it names and how its
/// tables are filled. The builder knows nothing more of a module.
class ModuleTask
{
public:
    virtual ~ModuleTask() = default;

    QString file;    ///< without ".dts"; that of a version is its code
    QString name;    ///< for the user; of a version also its table
    QString origin;  ///< where the content comes from, for the module's origin lines
    QString licence; ///< under what conditions
    QString hint;    ///< how to get a source that is not there
    StoreUse use = StoreUse::OnlyRead;
    bool takesLongest = false; ///< is begun before all others

    virtual bool sourcesAreThere() const = 0;
    /// Tells the making apart: the rules, the options and the state of the sources' files.
    virtual QString stamp() const = 0;
    /// Whether a module with this stored stamp needs no making.
    virtual bool isCurrent(const QString& stored) const { return stored == stamp(); }
    /// Whether the files are there that go with the current module of this stamp in a folder.
    virtual bool companionsAreThere(const QString& /*folder*/, const QString& /*stored*/) const
    {
        return true;
    }
    /// Fills the tables. Cancelled when the store says so; what the report holds is told as well
    /// when the module is refused.
    virtual Result<Done> build(const BuildContext& context, ModuleStore& store,
                               ModuleReport& report) const = 0;

protected:
    ModuleTask() = default;
    ModuleTask(const ModuleTask&) = default;
    ModuleTask(ModuleTask&&) = default;
    ModuleTask& operator=(const ModuleTask&) = default;
    ModuleTask& operator=(ModuleTask&&) = default;
};

} // namespace lumen
