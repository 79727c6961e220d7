// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/panel_tabs.h"

#include "panel/cross_references.h"
#include "panel/hymnal/hymnal.h"
#include "panel/lookup/concordance.h"
#include "panel/lookup/dictionary_tabs.h"
#include "panel/matthew_henry.h"
#include "panel/notes/personal_notes_tab.h"
#include "panel/reference_panel.h"
#include "panel/units/unit_converter.h"
#include "panel/wesley.h"
#include "panel/words/word_analysis_tab.h"

#include <array>
#include <memory>

namespace lumen {
namespace {

template <typename Tab>
std::unique_ptr<PanelTab> made(const PanelHost& host)
{
    return std::make_unique<Tab>(host);
}

constexpr std::array kMakers{
    made<CrossReferences>, made<BibleDictionary>, made<Concordance>,      made<EnglishDictionary>,
    made<MatthewHenry>,    made<Wesley>,          made<PersonalNotesTab>, made<WordAnalysisTab>,
    made<UnitConverter>,   made<Hymnal>,
};

} // namespace

void addPanelTabs(ReferencePanel& panel, const PanelHost& host)
{
    for (const auto make : kMakers)
        panel.addTab(make(host));
}

} // namespace lumen
