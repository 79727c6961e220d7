// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "recipes/version_task.h"

namespace lumen {

/// The concordance of a version, made of the same text; its file is the version's with a "c"
/// behind.
class ConcordanceTask : public ModuleTask
{
public:
    explicit ConcordanceTask(const VersionTask& version);

    int code() const { return m_version.code(); }

    bool sourcesAreThere() const override;
    QString stamp() const override;
    /// Of a text that has lost words none is made, as no version is.
    Result<Done> build(const BuildContext& context, ModuleStore& store,
                       ModuleReport& report) const override;

private:
    VersionTask m_version;
};

} // namespace lumen
