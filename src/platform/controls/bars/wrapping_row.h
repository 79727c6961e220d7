// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLayout>
#include <QList>

#include <memory>
#include <vector>

namespace lumen {

/// Lays its items out side by side and begins a further line where the next one doesn't fit, like
/// words in a paragraph. The items of a line share what room is left. It is as narrow as its widest
/// item and as high as its width asks for.
class WrappingRow : public QLayout
{
public:
    WrappingRow();

    void addItem(QLayoutItem* item) override;
    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    void setGeometry(const QRect& place) override;

private:
    using Line = QList<QLayoutItem*>;
    QList<Line> lines(int width) const;
    int gap() const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

} // namespace lumen
