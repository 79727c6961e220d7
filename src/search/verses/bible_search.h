// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/data_control.h"

#include <QString>

#include <optional>

namespace lumen {

/// The open result of the easy and the power search: a query over one version, or an earlier result
/// narrowed by a filter. Failures are JetErrors; what is open then answers an earlier question, so
/// that the window closes it.
class BibleSearch
{
public:
    explicit BibleSearch(JetEngine& jet) : dacSearch(jet) {}

    DataControl dacSearch;

    /// Names the module that the next query reads, such as "C:\lumenscript\Data\101.dts". The open
    /// result stays.
    void setModule(const QString& databaseName);
    /// Runs a query anew.
    void query(const QString& sql);
    /// Keeps the records that meet the criterion; the base of the next narrowing. They stay in the
    /// version in which they were found, whatever module has been named since.
    void narrow(const QString& criterion);
    /// An open result without records, as a tab change leaves it.
    void empty(const QString& table);
    /// Closes the result and frees the module.
    void close();

    /// Exact; nothing when no result is open.
    std::optional<int> openCount() const;
    /// The same with 0 when none is open.
    int count() const { return openCount().value_or(0); }

private:
    void makeCountExact();
};

} // namespace lumen
