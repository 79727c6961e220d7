// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace lumen {

/// The bookmarks in the user's order and the selected one, without the list box that shows them.
/// Positions are zero-based; -1 means that none is selected.
class BookmarkList
{
public:
    BookmarkList() = default;
    explicit BookmarkList(QStringList references) : m_references(std::move(references)) {}

    const QStringList& references() const { return m_references; }
    int selected() const { return m_selected; }
    void select(int position);

    /// Puts a reference at the head and selects it. One that is there already is ignored, and the
    /// selection stays.
    void add(const QString& reference);
    /// Removes the selected one; the one behind it, else the new last one is selected.
    void remove();
    void moveUp();
    void moveDown();

private:
    void moveTo(int position);

    QStringList m_references;
    int m_selected = -1;
};

} // namespace lumen
