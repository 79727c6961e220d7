// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/item_boxes.h"

#include "platform/controls/combo_habits.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyle>

namespace lumen {

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent)
{
    keepComboHabits(*this);
    connect(this, &QComboBox::activated, this, [this] {
        if (onClick)
            onClick();
    });
}

void ComboBox::AddItem(const QString& text, int itemData, int index)
{
    // The toolkit chooses the first item that comes into an empty list.
    const bool unchosen = currentIndex() < 0;
    const QString typed = isEditable() ? currentText() : QString();
    insertItem(index < 0 ? count() : index, text, itemData);
    if (!unchosen)
        return;
    setCurrentIndex(-1);
    if (isEditable())
        setEditText(typed);
}

void ComboBox::RemoveItem(int index)
{
    const bool removesChoice = index == currentIndex();
    removeItem(index);
    if (removesChoice)
        setCurrentIndex(-1);
}

void ComboBox::Clear()
{
    clear();
}

void ComboBox::setListIndex(int index)
{
    if (index < -1 || index >= count() || index == currentIndex())
        return;
    setCurrentIndex(index);
    if (onClick)
        onClick();
}

int ComboBox::findItemData(int itemData) const
{
    return findData(itemData);
}

int ComboBox::findItem(const QString& text) const
{
    return findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
}

ListBox::ListBox(QWidget* parent) : QListWidget(parent)
{
    // A result list may hold tens of thousands of rows.
    setUniformItemSizes(true);
    setSelectionMode(SingleSelection);
}

void ListBox::AddItem(const QString& text, int index)
{
    const QSignalBlocker quiet(this);
    const int chosen = currentRow();
    int place = index < 0 || index > count() ? count() : index;
    if (m_sorted)
        place = sortedPlace(text);
    insertItem(place, text);
    if (chosen < 0)
        setCurrentRow(-1);
}

void ListBox::AddItems(const QStringList& texts)
{
    const QSignalBlocker quiet(this);
    setUpdatesEnabled(false);
    for (const QString& text : texts)
        AddItem(text);
    setUpdatesEnabled(true);
}

int ListBox::sortedPlace(const QString& text) const
{
    int low = 0;
    int high = count();
    while (low < high) {
        const int middle = (low + high) / 2;
        if (item(middle)->text() <= text)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

void ListBox::RemoveItem(int index)
{
    const QSignalBlocker quiet(this);
    const bool removesChoice = index == currentRow();
    delete takeItem(index);
    if (removesChoice)
        setCurrentRow(-1);
}

void ListBox::Clear()
{
    const QSignalBlocker quiet(this);
    clear();
}

void ListBox::setListIndex(int index)
{
    if (index < -1 || index >= count() || index == currentRow())
        return;
    setCurrentRow(index);
    clicked();
}

QString ListBox::List(int index) const
{
    const QListWidgetItem* found = item(index);
    return found ? found->text() : QString();
}

int ListBox::ItemData(int index) const
{
    const QListWidgetItem* found = item(index);
    return found ? found->data(Qt::UserRole).toInt() : 0;
}

void ListBox::setItemData(int index, int itemData)
{
    if (QListWidgetItem* found = item(index))
        found->setData(Qt::UserRole, itemData);
}

int ListBox::FindListItem(const QString& text) const
{
    for (int index = 0; index < count(); ++index)
        if (item(index)->text() == text)
            return index;
    return -1;
}

void ListBox::keepRoomFor(const QString& text)
{
    constexpr int kItemMargins = 4; // times the toolkit's margin: both sides, of item and text
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    setMinimumWidth(fontMetrics().horizontalAdvance(text) + kItemMargins * margin +
                    style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this) +
                    2 * frameWidth());
}

void ListBox::clicked()
{
    if (onClick)
        onClick();
}

void ListBox::mouseReleaseEvent(QMouseEvent* event)
{
    const Qt::MouseButton button = event->button();
    const QPoint position = event->globalPosition().toPoint();
    const bool onItem = itemAt(event->position().toPoint()) != nullptr;
    QListWidget::mouseReleaseEvent(event);
    if (button == Qt::LeftButton && onItem)
        clicked();
    if (onMouseUp)
        onMouseUp(button, position);
}

void ListBox::mouseDoubleClickEvent(QMouseEvent* event)
{
    const bool onItem = itemAt(event->position().toPoint()) != nullptr;
    QListWidget::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && onItem && onDblClick)
        onDblClick();
}

void ListBox::keyPressEvent(QKeyEvent* event)
{
    const int before = currentRow();
    QListWidget::keyPressEvent(event);
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (currentRow() != before)
        clicked();
    else if (enter && before >= 0 && onDblClick) {
        event->accept(); // or a dialog's default button would take it as well
        onDblClick();
    }
}

void ListBox::keyReleaseEvent(QKeyEvent* event)
{
    QListWidget::keyReleaseEvent(event);
    if (onKeyUp)
        onKeyUp(event->key());
}

} // namespace lumen
