// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"
#include "records/search/record_search.h"

#include <QDateEdit>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>

namespace lumen {

/// The first tab of a notebook's search: a day, days from and to, or a category.
class DaySearchPanel : public QWidget // no Q_OBJECT: moc cannot read the members' names
{
public:
    explicit DaySearchPanel(const RecordProfile& profile);

    /// The date column that a condition is about.
    QString dayColumn(const ComboBox& choice) const;
    /// First entries, 1999-01-01 to `today`.
    void reset(const QDate& today);

    QRadioButton* op날짜일치 = named<QRadioButton>(u"op날짜일치", u"날짜(&D)");
    QRadioButton* op날짜범위 = named<QRadioButton>(u"op날짜범위", u"기간(&R)");
    QRadioButton* Op분류 = named<QRadioButton>(u"Op분류", u"분류(&G)");
    ComboBox* cb날짜일치 = named<ComboBox>(u"cb날짜일치", u"어느 날짜");
    ComboBox* cb날짜범위 = named<ComboBox>(u"cb날짜범위", u"어느 기간");
    ComboBox* cb분류 = named<ComboBox>(u"cb분류", u"분류");
    QDateEdit* dtp날짜일치 = named<QDateEdit>(u"dtp날짜일치", u"날짜");
    QDateEdit* dtp날짜시작 = named<QDateEdit>(u"dtp날짜시작", u"첫날");
    QDateEdit* dtp날짜끝 = named<QDateEdit>(u"dtp날짜끝", u"끝날");
    QPushButton* cmd검색 = named<QPushButton>(u"cmd날짜분류별검색", u"검색(&S)");

private:
    const RecordProfile& m_profile;
};

/// The second tab: a word in one of the texts.
class EasyRecordSearchPanel : public QWidget
{
public:
    explicit EasyRecordSearchPanel(const RecordProfile& profile);

    ComboBox* cb검색 = named<ComboBox>(u"cb검색", u"검색어");
    ComboBox* cb대상 = named<ComboBox>(u"cb대상", u"대상");
    ComboBox* cb범위 = named<ComboBox>(u"cb범위", u"범위");
    QPushButton* cmd검색 = named<QPushButton>(u"cmd내용별쉬운검색", u"검색(&S)");
};

/// The third tab: up to three words in one of the texts.
class PowerRecordSearchPanel : public QWidget
{
public:
    explicit PowerRecordSearchPanel(const RecordProfile& profile);

    std::array<QLineEdit*, 3> boxes() const { return {txPSearch1, txPSearch2, txPSearch3}; }
    record_condition::Terms terms() const;

    QLineEdit* txPSearch1 = named<QLineEdit>(u"txPSearch1", u"첫째 검색어");
    QLineEdit* txPSearch2 = named<QLineEdit>(u"txPSearch2", u"둘째 검색어");
    QLineEdit* txPSearch3 = named<QLineEdit>(u"txPSearch3", u"셋째 검색어");
    ComboBox* cbCond1 = named<ComboBox>(u"cbCond1", u"첫째 연결");
    ComboBox* cbCond2 = named<ComboBox>(u"cbCond2", u"둘째 연결");
    ComboBox* cbP대상 = named<ComboBox>(u"cbP대상", u"대상");
    ComboBox* cbP범위 = named<ComboBox>(u"cbP범위", u"범위");
    QPushButton* cmd검색 = named<QPushButton>(u"cmd내용별파워검색", u"검색(&S)");
};

} // namespace lumen
