// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/bars/wrapping_row.h"

#include <algorithm>

namespace lumen {
namespace {

int heightOf(const QList<QLayoutItem*>& line)
{
    int height = 0;
    for (const QLayoutItem* item : line)
        height = std::max(height, item->sizeHint().height());
    return height;
}

int leastWidthOf(const QList<QLayoutItem*>& line, int gap)
{
    int width = -gap;
    for (const QLayoutItem* item : line)
        width += item->minimumSize().width() + gap;
    return width;
}

} // namespace

WrappingRow::WrappingRow()
{
    setContentsMargins(0, 0, 0, 0);
}

void WrappingRow::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
    invalidate();
}

int WrappingRow::count() const
{
    return static_cast<int>(m_items.size());
}

QLayoutItem* WrappingRow::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* WrappingRow::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    QLayoutItem* item = m_items[static_cast<std::size_t>(index)].release();
    m_items.erase(m_items.begin() + index);
    invalidate();
    return item;
}

int WrappingRow::gap() const
{
    return std::max(0, spacing());
}

QList<WrappingRow::Line> WrappingRow::lines(int width) const
{
    QList<Line> lines;
    for (const auto& item : m_items) {
        if (item->isEmpty())
            continue;
        if (lines.isEmpty() || leastWidthOf(lines.last() + Line{item.get()}, gap()) > width)
            lines << Line();
        lines.last() << item.get();
    }
    return lines;
}

QSize WrappingRow::sizeHint() const
{
    Line all;
    for (const auto& item : m_items)
        all << item.get();
    return {std::max(0, leastWidthOf(all, gap())), heightOf(all)};
}

QSize WrappingRow::minimumSize() const
{
    QSize size;
    for (const auto& item : m_items)
        size = size.expandedTo(item->minimumSize());
    return size;
}

int WrappingRow::heightForWidth(int width) const
{
    int height = -gap();
    for (const Line& line : lines(width))
        height += heightOf(line) + gap();
    return std::max(0, height);
}

void WrappingRow::setGeometry(const QRect& place)
{
    QLayout::setGeometry(place);
    int top = place.top();
    for (const Line& line : lines(place.width())) {
        int left = place.left();
        int spare = std::max(0, place.width() - leastWidthOf(line, gap()));
        for (qsizetype at = 0; at < line.size(); ++at) {
            const int more = spare / static_cast<int>(line.size() - at);
            spare -= more;
            const int width = line[at]->minimumSize().width() + more;
            line[at]->setGeometry({left, top, width, heightOf(line)});
            left += width + gap();
        }
        top += heightOf(line) + gap();
    }
}

} // namespace lumen
