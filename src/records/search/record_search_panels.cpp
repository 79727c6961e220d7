// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/search/record_search_panels.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// A choice of dates reads "설교일이": the column and a particle.
constexpr qsizetype kDayColumnLength = 3;

QLabel* labelFor(QWidget* control, const QString& text)
{
    auto* label = new QLabel(text);
    label->setBuddy(control);
    return label;
}

void fillTargets(ComboBox& combo, const RecordProfile& profile)
{
    for (const RecordColumn& text : profile.texts)
        combo.AddItem(text.plain.toString());
    combo.setListIndex(0);
}

void fillScopes(ComboBox& combo)
{
    combo.AddItem(u"전체"_s);
    combo.AddItem(u"검색된 것 내"_s);
    combo.setListIndex(0);
}

record_condition::Connector connectorOf(const ComboBox& combo)
{
    return combo.ListIndex() == 0 ? record_condition::Connector::And
                                  : record_condition::Connector::Or;
}

} // namespace

DaySearchPanel::DaySearchPanel(const RecordProfile& profile) : m_profile(profile)
{
    for (ComboBox* choice : {cb날짜일치, cb날짜범위})
        for (const QStringView day : profile.dateChoices)
            choice->AddItem(day.toString());
    for (QDateEdit* day : {dtp날짜일치, dtp날짜시작, dtp날짜끝}) {
        day->setDisplayFormat(u"yyyy-MM-dd"_s);
        day->setCalendarPopup(true);
    }
    cb분류->setEditable(true);
    cb분류->setInsertPolicy(QComboBox::NoInsert);

    auto* options = new QButtonGroup(this);
    for (QRadioButton* option : {op날짜일치, op날짜범위, Op분류})
        options->addButton(option);

    auto* rows = new QGridLayout(this);
    rows->addWidget(op날짜일치, 0, 0);
    rows->addWidget(cb날짜일치, 0, 1);
    rows->addWidget(dtp날짜일치, 0, 2);
    rows->addWidget(op날짜범위, 1, 0);
    rows->addWidget(cb날짜범위, 1, 1);
    rows->addWidget(dtp날짜시작, 1, 2);
    rows->addWidget(new QLabel(u"~"_s), 1, 3);
    rows->addWidget(dtp날짜끝, 1, 4);
    rows->addWidget(Op분류, 2, 0);
    rows->addWidget(cb분류, 2, 1, 1, 2);
    rows->addWidget(cmd검색, 2, 4);
    rows->setColumnStretch(5, 1);
    // One notebook has a single date, which nobody has to choose.
    for (ComboBox* choice : {cb날짜일치, cb날짜범위})
        choice->setVisible(!profile.dateChoices.empty());

    const auto chooses = [](QRadioButton* option) {
        return [option] { option->setChecked(true); };
    };
    cb날짜일치->onClick = chooses(op날짜일치);
    cb날짜범위->onClick = chooses(op날짜범위);
    connect(dtp날짜일치, &QDateEdit::dateChanged, this, chooses(op날짜일치));
    connect(dtp날짜시작, &QDateEdit::dateChanged, this, chooses(op날짜범위));
    connect(dtp날짜끝, &QDateEdit::dateChanged, this, chooses(op날짜범위));
    cb분류->onClick = chooses(Op분류);
    connect(cb분류, &QComboBox::editTextChanged, this, chooses(Op분류));
}

QString DaySearchPanel::dayColumn(const ComboBox& choice) const
{
    return m_profile.dateChoices.empty() ? m_profile.writtenDay.toString()
                                         : choice.Text().left(kDayColumnLength);
}

void DaySearchPanel::reset(const QDate& today)
{
    cb날짜일치->setListIndex(0);
    cb날짜범위->setListIndex(0);
    dtp날짜일치->setDate(today);
    dtp날짜시작->setDate(QDate(1999, 1, 1));
    dtp날짜끝->setDate(today);
    cb분류->setListIndex(0);
    op날짜일치->setChecked(true);
}

EasyRecordSearchPanel::EasyRecordSearchPanel(const RecordProfile& profile)
{
    cb검색->setEditable(true);
    cb검색->setInsertPolicy(QComboBox::NoInsert);
    cb검색->setMinimumContentsLength(16);
    fillTargets(*cb대상, profile);
    fillScopes(*cb범위);
    auto* rows = new QGridLayout(this);
    rows->addWidget(labelFor(cb검색, u"검색어(&W):"_s), 0, 0);
    rows->addWidget(cb검색, 0, 1, 1, 3);
    rows->addWidget(cmd검색, 0, 4);
    rows->addWidget(labelFor(cb대상, u"대상(&O):"_s), 1, 0);
    rows->addWidget(cb대상, 1, 1);
    rows->addWidget(labelFor(cb범위, u"범위(&N):"_s), 1, 2);
    rows->addWidget(cb범위, 1, 3);
    rows->setColumnStretch(3, 1);
    rows->setColumnStretch(5, 1);
    rows->setRowStretch(2, 1);
}

PowerRecordSearchPanel::PowerRecordSearchPanel(const RecordProfile& profile)
{
    for (ComboBox* condition : {cbCond1, cbCond2}) {
        condition->AddItem(u"그리고"_s);
        condition->AddItem(u"또는"_s);
        condition->setListIndex(0);
    }
    fillTargets(*cbP대상, profile);
    fillScopes(*cbP범위);
    auto* words = new QHBoxLayout;
    for (QWidget* control :
         std::initializer_list<QWidget*>{labelFor(txPSearch1, u"검색어(&W):"_s), txPSearch1,
                                         cbCond1, txPSearch2, cbCond2, txPSearch3})
        words->addWidget(control);
    auto* choices = new QHBoxLayout;
    for (QWidget* control :
         std::initializer_list<QWidget*>{labelFor(cbP대상, u"대상(&O):"_s), cbP대상,
                                         labelFor(cbP범위, u"범위(&N):"_s), cbP범위, cmd검색})
        choices->addWidget(control);
    choices->insertStretch(4);
    auto* column = new QVBoxLayout(this);
    column->addLayout(words);
    column->addLayout(choices);
    column->addStretch();
}

record_condition::Terms PowerRecordSearchPanel::terms() const
{
    return {{txPSearch1->text(), txPSearch2->text(), txPSearch3->text()},
            {connectorOf(*cbCond1), connectorOf(*cbCond2)}};
}

} // namespace lumen
