// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/units/unit_converter.h"

#include "platform/controls/bars/wrapping_row.h"
#include "text/basic_text.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace lumen {

using namespace Qt::StringLiterals;

UnitConverter::UnitConverter(const PanelHost&) : m_page(new QWidget)
{
    layOut();
    wire();
    tx단위(1)->setReadOnly(true);
    Op무게->setChecked(true);
    fillUnits();
}

QString UnitConverter::unitCaption(int index)
{
    return index == 0 ? u"바꿀 단위"_s : u"바뀐 단위"_s;
}

QString UnitConverter::valueCaption(int index)
{
    return index == 0 ? u"바꿀 값"_s : u"바뀐 값"_s;
}

void UnitConverter::enter()
{
    if (setStatus)
        setStatus(QString());
    Op무게->setChecked(true);
    fillUnits();
}

void UnitConverter::Proc단위변환()
{
    const int from = cb단위명(0)->ListIndex();
    const int to = cb단위명(1)->ListIndex();
    if (from < 0 || to < 0)
        return;
    const double factor =
        unitFactor(family(), static_cast<std::size_t>(from), static_cast<std::size_t>(to));
    tx단위(1)->setText(numberText(Val(tx단위(0)->text()) * factor));
    tx단위(1)->setCursorPosition(0);
}

void UnitConverter::layOut()
{
    auto* options = new WrappingRow;
    for (QRadioButton* option : {Op무게, Op길이, Op부피, Op화폐})
        options->addWidget(option);
    auto* values = new QGridLayout;
    for (const int index : {0, 1}) {
        auto* label = new QLabel(index == 0 ? u"값"_s : u"결과"_s);
        label->setBuddy(tx단위(index));
        values->addWidget(label, index, 0);
        values->addWidget(tx단위(index), index, 1);
        values->addWidget(cb단위명(index), index, 2);
        // A long unit gives way to the number beside it.
        cb단위명(index)->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    }
    values->setColumnStretch(1, 1);
    values->setColumnStretch(2, 1);
    auto* layout = new QVBoxLayout(m_page);
    layout->addLayout(options);
    layout->addLayout(values);
    layout->addStretch();
    m_page->setFocusProxy(tx단위(0));
}

void UnitConverter::wire()
{
    for (QRadioButton* option : {Op무게, Op길이, Op부피, Op화폐})
        QObject::connect(option, &QRadioButton::clicked, m_page, [this] { fillUnits(); });
    for (ComboBox* units : cb단위명)
        units->onClick = [this] { Proc단위변환(); };
    QObject::connect(tx단위(0), &QLineEdit::returnPressed, m_page, [this] { Proc단위변환(); });
}

UnitFamily UnitConverter::family() const
{
    if (Op무게->isChecked())
        return UnitFamily::Weight;
    if (Op길이->isChecked())
        return UnitFamily::Length;
    return Op부피->isChecked() ? UnitFamily::Volume : UnitFamily::Money;
}

void UnitConverter::fillUnits()
{
    for (ComboBox* units : cb단위명) {
        units->Clear();
        for (const QStringView unit : unitsOf(family()))
            units->AddItem(unit.toString());
    }
    // Nothing is worked out before the second list has its choice.
    for (ComboBox* units : cb단위명)
        units->setListIndex(0);
}

} // namespace lumen
