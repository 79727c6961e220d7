// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "recipes/version_task.h"

namespace lumen {

/// The file of a version's concordance, without ".dts".
QString concordanceFile(int code);
/// The code of the version that a user's table by this name is the concordance of, "101c.tsv"; 0
/// for any other name.
int concordanceOfTable(const QString& name);

/// The concordance of a version, made of the same text; its file is the version's with a "c"
/// behind.
class ConcordanceTask : public ModuleTask
{
public:
    explicit ConcordanceTask(const VersionTask& version);

    int code() const { return m_version.code(); }

    bool sourcesAreThere() const override;
    QString stamp() const override;
    /// One of a user's own table stays as it is.
    bool isCurrent(const QString& stored) const override;
    /// Of a text that has lost words none is made, as no version is.
    Result<Done> build(const BuildContext& context, ModuleStore& store,
                       ModuleReport& report) const override;

private:
    VersionTask m_version;
};

} // namespace lumen
