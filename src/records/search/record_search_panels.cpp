// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/search/record_search_panels.h"

#include "platform/controls/bars/wrapping_row.h"

#include <QButtonGroup>
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

    // They stand in frames of their own, in which each would be alone.
    auto* options = new QButtonGroup(this);
    for (QRadioButton* option : {op날짜일치, op날짜범위, Op분류})
        options->addButton(option);

    auto* rows = new WrappingRow;
    rows->addWidget(group({op날짜일치, cb날짜일치, dtp날짜일치}));
    rows->addWidget(group({op날짜범위, cb날짜범위, dtp날짜시작, new QLabel(u"~"_s), dtp날짜끝}));
    rows->addWidget(group({Op분류, cb분류, cmd검색}));
    auto* column = new QVBoxLayout(this);
    column->addLayout(rows);
    column->addStretch();
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
    auto* rows = new WrappingRow;
    rows->addWidget(group({labelFor(cb검색, u"검색어(&W):"_s), cb검색, cmd검색}));
    rows->addWidget(group(
        {labelFor(cb대상, u"대상(&O):"_s), cb대상, labelFor(cb범위, u"범위(&N):"_s), cb범위}));
    auto* column = new QVBoxLayout(this);
    column->addLayout(rows);
    column->addStretch();
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
    auto* rows = new WrappingRow;
    rows->addWidget(group({labelFor(txPSearch1, u"검색어(&W):"_s), txPSearch1, cbCond1}));
    rows->addWidget(group({txPSearch2, cbCond2}));
    rows->addWidget(group({txPSearch3, cmd검색}));
    rows->addWidget(group(
        {labelFor(cbP대상, u"대상(&O):"_s), cbP대상, labelFor(cbP범위, u"범위(&N):"_s), cbP범위}));
    auto* column = new QVBoxLayout(this);
    column->addLayout(rows);
    column->addStretch();
}

record_condition::Terms PowerRecordSearchPanel::terms() const
{
    return {{txPSearch1->text(), txPSearch2->text(), txPSearch3->text()},
            {connectorOf(*cbCond1), connectorOf(*cbCond2)}};
}

} // namespace lumen
