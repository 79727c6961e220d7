// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/data_control.h"
#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <functional>

namespace lumen {

struct AppState;
struct Services;

inline constexpr QStringView kHymnalModule = u"\\Data\\z201.dts";

/// The query for the hymns with a word in a field, by the index of the combo of fields: 0 looks in
/// all of them. An empty word finds every hymn that has the field.
QString hymnSearchQuery(int field, const QString& word);

/// Finds hymns by a word. It stands open beside the reader, so that one hymn after another can be
/// looked at and played.
class dlog찬송가검색 : public QDialog // no Q_OBJECT: moc cannot read the name
{
public:
    dlog찬송가검색(Services& services, const AppState& state, QWidget* parent);

    /// Comes to the front, ready for a word.
    void begin();
    /// Closes itself and its file.
    void release();

    /// A hymn of the result was opened.
    std::function<void(int number)> onChosen;

    QLineEdit* tx검색어 = named<QLineEdit>(u"tx검색어", u"검색어");
    ComboBox* fieldCombo = named<ComboBox>(u"fieldCombo", u"찾을 곳");
    QPushButton* cmd검색 = named<QPushButton>(u"cmd검색", u"검색");
    QPushButton* closeButton = named<QPushButton>(u"closeButton", u"닫기");
    ListBox* lst검색결과 = named<ListBox>(u"lst검색결과", u"검색 결과");
    QLabel* statusPanel1 = named<QLabel>(u"statusPanel1");

private:
    void layOut();
    void cmd검색_Click();
    void choose();

    Services& m_services;
    const AppState& m_state;
    DataControl m_hymns;
};

} // namespace lumen
