// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/verses/power_panel.h"

#include "platform/controls/bars/wrapping_row.h"
#include "text/basic_text.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kLeastLetters = 12;

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

/// Controls that stay side by side where the row wraps.
QWidget* group(std::initializer_list<QWidget*> controls)
{
    auto* widget = new QWidget;
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    for (QWidget* control : controls)
        row->addWidget(control);
    return widget;
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

    auto* words = new WrappingRow;
    words->addWidget(group({labelFor(txPSearch1, u"검색어(&W):"_s), txPSearch1, cbCond1}));
    words->addWidget(group({txPSearch2, cbCond2}));
    words->addWidget(group({txPSearch3, cmdPSearch, cmdPKeyboard}));

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

void PowerPanel::keepRoomForLetters(int letterWidth)
{
    for (QLineEdit* box : boxes()) {
        // The least size of a box is that of its widest letter and its frame.
        const int frame = box->minimumSizeHint().width() - box->fontMetrics().maxWidth();
        box->setMinimumWidth(kLeastLetters * letterWidth + frame);
    }
}

PowerTerms PowerPanel::terms() const
{
    return {Trim(txPSearch1->text()).toString(), Trim(txPSearch2->text()).toString(),
            Trim(txPSearch3->text()).toString(), conjunctionOf(*cbCond1), conjunctionOf(*cbCond2)};
}

} // namespace lumen
