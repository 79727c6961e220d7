// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/splitter.h"

#include "platform/controls/twips.h"

#include <algorithm>

namespace lumen {

Splitter::Splitter(Qt::Orientation orientation, QWidget* parent) : QSplitter(orientation, parent)
{
    setChildrenCollapsible(false);
    connect(this, &QSplitter::splitterMoved, this, [this] {
        const QList<int> panes = sizes();
        const int total = length();
        if (total > 0)
            m_ratio = double(panes.first()) / total;
        if (onMoved)
            onMoved();
    });
}

int Splitter::length() const
{
    const QList<int> panes = sizes();
    return panes.size() < 2 ? 0 : panes[0] + panes[1];
}

double Splitter::ratio() const
{
    return m_ratio;
}

void Splitter::setRatio(double ratio)
{
    m_ratio = std::clamp(ratio, 0.0, 1.0);
    applyRatio();
}

int Splitter::paneTwips(int pane) const
{
    return toTwips(sizes().value(pane));
}

void Splitter::setPaneTwips(int pane, int twips)
{
    const int total = length();
    if (total <= 0)
        return;
    const double share = std::clamp(double(toPixels(twips)) / total, 0.0, 1.0);
    setRatio(pane == 0 ? share : 1 - share);
}

void Splitter::applyRatio()
{
    const int total = length();
    if (total <= 0)
        return;
    const int first = qRound(total * m_ratio);
    setSizes({first, total - first});
}

void Splitter::resizeEvent(QResizeEvent* event)
{
    QSplitter::resizeEvent(event);
    applyRatio();
}

} // namespace lumen
