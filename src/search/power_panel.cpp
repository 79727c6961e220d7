// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/power_panel.h"

#include "text/basic_text.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

void fillConjunctions(ComboBox& combo)
{
    combo.AddItem(u"그리고"_s);
    combo.AddItem(u"또는"_s);
}

Conjunction conjunctionOf(const ComboBox& combo)
{
    return combo.ListIndex() == static_cast<int>(Conjunction::And) ? Conjunction::And
                                                                   : Conjunction::Or;
}

} // namespace

PowerPanel::PowerPanel()
{
    fillConjunctions(*cbCond1);
    fillConjunctions(*cbCond2);

    auto* scope = new QHBoxLayout;
    scope->addWidget(labelFor(cbPVersion, u"역본(&O):"_s));
    scope->addWidget(cbPVersion);
    scope->addWidget(labelFor(cbP범위, u"범위(&N):"_s));
    scope->addWidget(cbP범위);
    scope->addWidget(cmd책별선택);
    scope->addStretch();

    auto* words = new QHBoxLayout;
    words->addWidget(labelFor(txPSearch1, u"검색어(&W):"_s));
    for (QWidget* control : std::initializer_list<QWidget*>{
             txPSearch1, cbCond1, txPSearch2, cbCond2, txPSearch3, cmdPSearch, cmdPKeyboard})
        words->addWidget(control);

    auto* rows = new QVBoxLayout(pbxPowerSearch);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(scope);
    rows->addLayout(words);
    pbxPowerSearch->setMaximumWidth(kPanelWidth);

    auto* column = new QVBoxLayout(this);
    column->addLayout(centred(pbxPowerSearch));
    column->addLayout(centred(mover.panel));
    column->addStretch();
}

PowerTerms PowerPanel::terms() const
{
    return {Trim(txPSearch1->text()).toString(), Trim(txPSearch2->text()).toString(),
            Trim(txPSearch3->text()).toString(), conjunctionOf(*cbCond1), conjunctionOf(*cbCond2)};
}

} // namespace lumen
