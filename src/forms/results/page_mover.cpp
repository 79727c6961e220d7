// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/results/page_mover.h"

#include "platform/controls/named.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kPageLabelLength = 16; // " 31101 ~  31150"

QToolButton* pageButton(QStringView name, Qt::ArrowType arrow, const QString& tip)
{
    auto* button = named<QToolButton>(name);
    button->setArrowType(arrow);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

PageMover::PageMover(QStringView panelName, QStringView previousName, QStringView comboName,
                     QStringView nextName)
    : panel(named<QWidget>(panelName)),
      previous(pageButton(previousName, Qt::LeftArrow, u"이전 쪽"_s)),
      pages(named<ComboBox>(comboName, u"쪽")),
      next(pageButton(nextName, Qt::RightArrow, u"다음 쪽"_s))
{
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(previous);
    row->addWidget(pages);
    row->addWidget(next);
    panel->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    // A result of a whole Bible has more than 600 pages: their texts aren't measured one by one.
    pages->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    pages->setMinimumContentsLength(kPageLabelLength);
}

} // namespace lumen
