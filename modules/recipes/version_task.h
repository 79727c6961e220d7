// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "reference/module_task.h"
#include "sources/module_source.h"
#include "sources/versification.h"
#include "sources/version_text.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace lumen {

/// A step that puts a text right after it was read; see text_mending.h.
using Mend = void (*)(VersionText& version);

/// The module of a version: one row a verse.
class VersionTask : public ModuleTask
{
public:
    /// The code gives the file its name.
    void setCode(int code);
    int code() const { return m_code; }

    ModuleSource source;
    /// Reads the text in place of the source's own reader; the source still tells whether it is
    /// there and what it looks like.
    std::function<VersionResult()> reader;
    std::vector<Mend> mends;
    Numbering numbering = Numbering::English;
    QString ownMapping; ///< mapping files for renumbering, "" to keep the source's numbers
    QString englishMapping;
    QString headings;     ///< table of verse and heading for a source without headings, "" for none
    bool isWhole = false; ///< the source is known to have words for every chapter of the canon
    PsalmNumbers psalmNumbers = PsalmNumbers::AsMapped;

    bool sourcesAreThere() const override;
    QString stamp() const override;
    /// The text, mended and in the canon's order, or why there is none.
    std::shared_ptr<const VersionResult> text() const;
    /// From now on this task and its copies read the text once, all together. Nothing that the
    /// text depends on may be changed any more.
    void shareText();
    /// A text that has lost words is refused unless the user accepts it.
    Result<Done> build(const BuildContext& context, ModuleStore& store,
                       ModuleReport& report) const override;

private:
    struct HeldText;

    VersionResult readText() const;

    int m_code = 0;
    std::shared_ptr<HeldText> m_shared;
};

/// The table of a version: one row a verse in canon order with its keys, testament and group; the
/// words scrambled, the part and the heading plain. Cancelled when the store says so.
Result<Done> writeVersion(ModuleStore& store, const QString& table, const VersionText& version);

} // namespace lumen
