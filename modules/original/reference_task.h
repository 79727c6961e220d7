// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "original/module_store.h"
#include "original/original_corpus.h"
#include "platform/result.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace lumen {

/// What is to be said about a module that was made.
struct ReferenceReport
{
    QStringList facts;   ///< shares and counts, for the line on the module
    QStringList remarks; ///< for the report
};

/// Fills the tables of a module; Cancelled when the store says so.
using FillModule = Result<ReferenceReport> (*)(OriginalCorpus& corpus, ModuleStore& store);

/// A module that is no version: analyses, lists, dictionaries, references.
struct ReferenceTask
{
    QString file; ///< without ".dts"
    QString name; ///< for the user
    QStringList sources;
    QString origin;
    QString licence;
    QString hint; ///< how to get a source that is not there
    FillModule fill = nullptr;
    /// What enriches the module when it is there. A module that has it is not made anew without it.
    QStringList enrichment;
    StoreUse use = StoreUse::OnlyRead;
};

/// All of them, whether their sources are there or not.
std::vector<ReferenceTask> referenceTasks(const OriginalSources& sources);

} // namespace lumen
