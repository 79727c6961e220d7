// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QComboBox>
#include <QListWidget>
#include <QString>

#include <functional>

namespace lumen {

/// A combo box whose event the windows can rely on; items count from 0. onClick runs when the user
/// picks an item, also the current one, and when code sets another list index; not when code sets
/// the index that is set already, and not while items are added or cleared.
class ComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBox(QWidget* parent = nullptr);

    /// Adds behind the last item, or before item `index`. A list without a choice stays without.
    void AddItem(const QString& text, int itemData = 0, int index = -1);
    void RemoveItem(int index);
    void Clear();
    int ListCount() const { return count(); }
    /// -1 when nothing is chosen.
    int ListIndex() const { return currentIndex(); }
    /// -1 clears the choice; an index beyond the list changes nothing.
    void setListIndex(int index);
    /// "" outside the list.
    QString List(int index) const { return itemText(index); }
    /// 0 outside the list.
    int ItemData(int index) const { return itemData(index).toInt(); }
    QString Text() const { return currentText(); }
    /// The first item with this number or this very text, -1 if there is none.
    int findItemData(int itemData) const;
    int findItem(const QString& text) const;

    std::function<void()> onClick;
};

/// A list box; items count from 0. onClick runs when the user picks an item, also the current one,
/// or walks to another with the keys, and when code sets another list index.
class ListBox : public QListWidget
{
    Q_OBJECT

public:
    explicit ListBox(QWidget* parent = nullptr);

    /// Adds behind the last item, or before item `index`; a sorted list finds the place itself.
    void AddItem(const QString& text, int index = -1);
    void AddItems(const QStringList& texts);
    void RemoveItem(int index);
    void Clear();
    int ListCount() const { return count(); }
    /// -1 when nothing is chosen.
    int ListIndex() const { return currentRow(); }
    /// -1 clears the choice; an index beyond the list changes nothing.
    void setListIndex(int index);
    /// "" outside the list.
    QString List(int index) const;
    /// Changes an item's text in place; nothing outside the list.
    int ItemData(int index) const;
    void setItemData(int index, int itemData);
    /// The text of the chosen item, "" without one.
    QString Text() const { return List(ListIndex()); }
    /// Keeps the items in code point order from now on. VerseIndex keys then stand in canon order.
    void setSorted(bool sorted) { m_sorted = sorted; }
    /// The first item of exactly this text, -1 if there is none.
    int FindListItem(const QString& text) const;
    /// Never becomes narrower than an item of this text takes, beside the scroll bar.
    void keepRoomFor(const QString& text);

    std::function<void()> onClick;
    /// A double click on an item, or Enter on the chosen one.
    std::function<void()> onDblClick;
    /// A button released over the list; the position is global.
    std::function<void(Qt::MouseButton button, const QPoint& position)> onMouseUp;
    std::function<void(int key)> onKeyUp;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    void clicked();
    int sortedPlace(const QString& text) const;

    bool m_sorted = false;
};

} // namespace lumen
