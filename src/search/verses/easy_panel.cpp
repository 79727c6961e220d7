// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/verses/easy_panel.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kHistoryWidth = 130; // pixels; long texts are cut, the list shows them whole

} // namespace

QLayout* centred(QWidget* panel)
{
    // The panel takes the room up to its greatest width, what is left stands on both sides.
    constexpr int kPanelShare = 1000;
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(panel, kPanelShare);
    row->addStretch(1);
    return row;
}

QLabel* labelFor(QWidget* control, const QString& caption)
{
    auto* label = new QLabel(caption);
    label->setBuddy(control);
    return label;
}

EasyPanel::EasyPanel()
{
    auto* grid = new QGridLayout(pbxEasySearch);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(labelFor(cb역본, u"역본(&O):"_s), 0, 0);
    grid->addWidget(cb역본, 0, 1);
    grid->addWidget(labelFor(cb범위, u"범위(&N):"_s), 0, 2);
    grid->addWidget(cb범위, 0, 3);
    grid->addWidget(cmd책별선택, 0, 4, 1, 2);
    grid->addWidget(labelFor(tx검색, u"검색어(&W):"_s), 1, 0);
    grid->addWidget(tx검색, 1, 1);
    grid->addWidget(labelFor(cb검색, u"기록(&Y):"_s), 1, 2);
    grid->addWidget(cb검색, 1, 3);
    grid->addWidget(cmd검색, 1, 4);
    grid->addWidget(cmdKeyboard, 1, 5);
    cb검색->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cb검색->setMinimumWidth(kHistoryWidth);
    grid->setColumnStretch(1, 1);
    pbxEasySearch->setMaximumWidth(kPanelWidth);

    auto* column = new QVBoxLayout(this);
    column->addLayout(centred(pbxEasySearch));
    column->addLayout(centred(mover.panel));
    column->addStretch();
    // The order of the work: text, search, then what is changed less often.
    setTabOrder(cb역본, cb범위);
    setTabOrder(cb범위, cmd책별선택);
    setTabOrder(cmd책별선택, tx검색);
    setTabOrder(tx검색, cmd검색);
    setTabOrder(cmd검색, cb검색);
    setTabOrder(cb검색, cmdKeyboard);
}

} // namespace lumen
