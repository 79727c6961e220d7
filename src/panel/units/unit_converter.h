// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "panel/panel_host.h"
#include "panel/panel_tab.h"
#include "panel/units/unit_tables.h"
#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"

#include <QLineEdit>
#include <QRadioButton>
#include <QWidget>

namespace lumen {

/// The tab "유틸리티": the measures of the Bible in each other and in today's units. It follows no
/// verse and reads no module.
class UnitConverter : public PanelTab
{
public:
    explicit UnitConverter(const PanelHost& host);

    QStringView caption() const override { return panel_caption::kUtilities; }
    QWidget* page() override { return m_page; }
    /// Begins with the weights.
    void enter() override;
    void showPlace() override {}

    /// Puts value times factor into the result box.
    void Proc단위변환();

private:
    QWidget* m_page; // before the controls, which it takes over

public:
    QRadioButton* Op길이 = named<QRadioButton>(u"Op길이", u"길이");
    QRadioButton* Op무게 = named<QRadioButton>(u"Op무게", u"무게");
    QRadioButton* Op부피 = named<QRadioButton>(u"Op부피", u"부피");
    QRadioButton* Op화폐 = named<QRadioButton>(u"Op화폐", u"화폐");
    ControlArray<ComboBox, 2> cb단위명{u"cb단위명", unitCaption};
    ControlArray<QLineEdit, 2> tx단위{u"tx단위", valueCaption};

private:
    static QString unitCaption(int index);
    static QString valueCaption(int index);
    void layOut();
    void wire();
    UnitFamily family() const;
    void fillUnits();
};

} // namespace lumen
