// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/results/page_mover.h"
#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

namespace lumen {

/// The greatest width of the input panels, pixels.
inline constexpr int kPanelWidth = 900;

/// Centres a panel in a row of its own.
QLayout* centred(QWidget* panel);
/// A label in front of a control; "&" in its caption leads to the control.
QLabel* labelFor(QWidget* control, const QString& caption);

/// The tab "쉬운 검색": one text in one translation.
class EasyPanel : public QWidget // no Q_OBJECT: moc cannot read the members
{
public:
    EasyPanel();

    QWidget* pbxEasySearch = named<QWidget>(u"pbxEasySearch");
    ComboBox* cb역본 = named<ComboBox>(u"cb역본", u"역본");
    ComboBox* cb범위 = named<ComboBox>(u"cb범위", u"범위");
    QPushButton* cmd책별선택 = named<QPushButton>(u"cmd책별선택(0)", u"책별 선택(&L)...");
    QLineEdit* tx검색 = named<QLineEdit>(u"tx검색", u"검색어");
    QPushButton* cmd검색 = named<QPushButton>(u"cmd검색", u"검색(&S)");
    QPushButton* cmdKeyboard = named<QPushButton>(u"cmdKeyboard", u"자판(&K)...");
    ComboBox* cb검색 = named<ComboBox>(u"cb검색", u"검색 기록");
    PageMover mover{u"pbxPageMover", u"img이전", u"cb페이지", u"img이후"};
};

} // namespace lumen
