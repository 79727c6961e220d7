// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls/bars/tool_row.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <span>
#include <utility>

namespace lumen {

/// Leads a tool's id to what it does: exact ids first, then numbered ids, then families, the
/// longest prefix first.
class ToolDispatch
{
public:
    void on(QStringView id, std::function<void()> action);
    /// All ids that begin with `prefix`; the action gets the rest.
    void onFamily(QStringView prefix, std::function<void(const QString& rest)> action);
    /// All ids that consist of `prefix` and digits only; the action gets the number.
    void onNumbered(QStringView prefix, std::function<void(int number)> action);

    /// False when nothing handles the id.
    bool run(const QString& id) const;
    /// What handles an id: the id itself, "prefix#" for a number, "prefix*" for a family, "" if
    /// nothing does.
    QString patternFor(const QString& id) const;
    /// The patterns of all handlers.
    QStringList patterns() const;

private:
    using Actions = std::map<QString, std::function<void(const QString& rest)>>;

    std::pair<Actions::const_iterator, const Actions*> find(const QString& id) const;

    Actions m_exact;
    Actions m_numbered; // by prefix
    Actions m_families; // by prefix
};

/// What does not fit between a window's tools and its handlers; both empty when all is well.
struct ToolFaults
{
    QStringList withoutHandler; ///< ids of tools that nothing handles
    QStringList withoutTool;    ///< handlers ("ID_x", "ID_x#", "ID_x*") that no tool reaches
};

/// Pairs a window's tools with its two dispatches: `combos` answers the Combo tools, `clicks` all
/// others. Menus and Separators need no handler.
ToolFaults unpairedTools(std::span<const ToolRow> rows, const ToolDispatch& clicks,
                         const ToolDispatch& combos = {});

} // namespace lumen
