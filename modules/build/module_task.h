// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "sources/module_source.h"
#include "sources/versification.h"
#include "sources/version_text.h"

#include <QString>

#include <functional>
#include <vector>

namespace lumen {

/// A step that puts a text right after it was read; see text_mending.h.
using Mend = void (*)(VersionText& version);

/// All that is needed to make one version module.
struct ModuleTask
{
    int code = 0;
    QString name; ///< of the version, and so of its table
    ModuleSource source;
    /// Reads the text in place of the source's own reader; the source still tells whether it is
    /// there and what it looks like.
    std::function<VersionResult()> reader;
    std::vector<Mend> mends;
    Numbering numbering = Numbering::English;
    QString ownMapping; ///< mapping files for renumbering, "" to keep the source's numbers
    QString englishMapping;
    bool isWhole = false; ///< the source is known to have words for every chapter of the canon
    PsalmNumbers psalmNumbers = PsalmNumbers::AsMapped;
    QString origin;  ///< where the text comes from, for the module's origin lines
    QString licence; ///< under what conditions
    QString hint;    ///< how to get the source when it is not there
};

/// What the user asked for beyond the ordinary.
struct BuildMode
{
    bool force = false;        ///< make what is up to date as well
    bool acceptLosses = false; ///< make a module also of a text that has lost words
};

/// What became of a task.
enum class ModuleState { Built, UpToDate, SourceMissing, Failed, Interrupted };

struct ModuleOutcome
{
    int code = 0;
    QString file; ///< of a module that is no version, without ".dts"
    QString name;
    ModuleState state = ModuleState::Failed;
    QString problem; ///< why it failed or what is missing
    CanonCheck check;
    int parts = 0;     ///< verses with a piece in front of the words
    int headings = 0;  ///< verses with a heading above
    QStringList facts; ///< counts for the line on a module that is no version
    QStringList remarks;
    double seconds = 0;
};

} // namespace lumen
