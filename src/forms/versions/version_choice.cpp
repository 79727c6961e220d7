// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/versions/version_choice.h"

#include "data/module_path.h"
#include "forms/services.h"
#include "forms/versions/version_combo.h"
#include "platform/dialogs/message_boxes.h"

#include <algorithm>

namespace lumen {

VersionChoice::VersionChoice(Services& services, const AppState& state,
                             const VersionChoiceRule& rule)
    : m_services(services), m_state(state), m_rule(rule),
      m_items(SetClassicCombo(state.installed, rule.number))
{
}

void VersionChoice::fill(ComboBox& combo) const
{
    fillVersionCombo(combo, m_items);
}

ChosenVersion VersionChoice::choose(QWidget* parent, int index, bool loading)
{
    if (index < 0 || index >= m_items.size())
        return {false, m_previousIndex, 0, {}, {}};
    const VersionItem& item = m_items[index];
    if (item.code == 0) {
        m_previousIndex = index;
        return {true, index, 0, kNoVersion.toString(), {}};
    }
    if (!item.present) {
        if (loading)
            return moveOn(index);
        return refuse(parent, item.code, AbsentVersion::ComboRow, m_previousIndex);
    }
    const auto path = findModule(m_services.files, m_state, versionFile(item.code));
    if (!path) {
        const bool back = m_rule.afterMissingFile == AfterMissingFile::Previous;
        return refuse(parent, item.code, m_rule.missingFile, back ? m_previousIndex : 0);
    }
    m_previousIndex = index;
    return {true, index, item.code, versionName(item.code, m_state.installed), *path};
}

ChosenVersion VersionChoice::moveOn(int index) const
{
    // Without any version there is nowhere to go.
    const bool nowhere = std::none_of(m_items.begin(), m_items.end(),
                                      [](const VersionItem& item) { return item.present; });
    if (nowhere)
        return {false, index, 0, {}, {}};
    const bool last = index == m_items.size() - 1;
    const bool oneBack = last && m_rule.pastLastRow == PastLastRow::OneBack;
    return {false, oneBack ? index - 1 : nextVersionIndex(m_items, index), 0, {}, {}};
}

ChosenVersion VersionChoice::refuse(QWidget* parent, int code, AbsentVersion how, int backTo) const
{
    m_services.messages.show(parent, absentVersionMessage(code, how));
    return {false, backTo, 0, {}, {}};
}

} // namespace lumen
