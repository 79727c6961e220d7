// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/bars/tool_dispatch.h"

#include <algorithm>
#include <set>

namespace lumen {
namespace {

bool isNumber(QStringView text)
{
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool needsHandler(const ToolRow& row)
{
    return row.kind != ToolKind::Menu && row.kind != ToolKind::Separator;
}

QStringList unreached(const ToolDispatch& dispatch, const std::set<QString>& reached)
{
    QStringList patterns = dispatch.patterns();
    patterns.removeIf([&](const QString& pattern) { return reached.contains(pattern); });
    return patterns;
}

} // namespace

void ToolDispatch::on(QStringView id, std::function<void()> action)
{
    m_exact[id.toString()] = [action = std::move(action)](const QString&) { action(); };
}

void ToolDispatch::onFamily(QStringView prefix, std::function<void(const QString&)> action)
{
    m_families[prefix.toString()] = std::move(action);
}

void ToolDispatch::onNumbered(QStringView prefix, std::function<void(int)> action)
{
    m_numbered[prefix.toString()] = [action = std::move(action)](const QString& rest) {
        action(rest.toInt());
    };
}

std::pair<ToolDispatch::Actions::const_iterator, const ToolDispatch::Actions*>
ToolDispatch::find(const QString& id) const
{
    if (const auto exact = m_exact.find(id); exact != m_exact.end())
        return {exact, &m_exact};
    for (const Actions* actions : {&m_numbered, &m_families}) {
        auto best = actions->end();
        for (auto it = actions->begin(); it != actions->end(); ++it) {
            const QString& prefix = it->first;
            const bool fits =
                id.startsWith(prefix) &&
                (actions == &m_families || isNumber(QStringView(id).mid(prefix.size())));
            if (fits && (best == actions->end() || prefix.size() > best->first.size()))
                best = it;
        }
        if (best != actions->end())
            return {best, actions};
    }
    return {m_exact.end(), nullptr};
}

bool ToolDispatch::run(const QString& id) const
{
    const auto [found, actions] = find(id);
    if (!actions)
        return false;
    // The handler may bind anew or close the window that owns this: run a copy.
    const auto action = found->second;
    action(actions == &m_exact ? QString() : id.mid(found->first.size()));
    return true;
}

QString ToolDispatch::patternFor(const QString& id) const
{
    const auto [found, actions] = find(id);
    if (!actions)
        return {};
    if (actions == &m_exact)
        return id;
    return found->first + (actions == &m_numbered ? u'#' : u'*');
}

QStringList ToolDispatch::patterns() const
{
    QStringList all;
    for (const auto& [id, action] : m_exact)
        all << id;
    for (const auto& [prefix, action] : m_numbered)
        all << prefix + u'#';
    for (const auto& [prefix, action] : m_families)
        all << prefix + u'*';
    return all;
}

ToolFaults unpairedTools(std::span<const ToolRow> rows, const ToolDispatch& clicks,
                         const ToolDispatch& combos)
{
    ToolFaults faults;
    std::set<QString> reachedClicks;
    std::set<QString> reachedCombos;
    for (const ToolRow& row : rows) {
        const bool isCombo = row.kind == ToolKind::Combo;
        const QString id = row.id.toString();
        const QString pattern = (isCombo ? combos : clicks).patternFor(id);
        (isCombo ? reachedCombos : reachedClicks).insert(pattern);
        if (pattern.isEmpty() && needsHandler(row))
            faults.withoutHandler << id;
    }
    faults.withoutTool = unreached(clicks, reachedClicks) + unreached(combos, reachedCombos);
    return faults;
}

} // namespace lumen
