// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/rows/row_set.h"

#include <atomic>

namespace lumen {

namespace {

quint32 nextSerial()
{
    static std::atomic<quint32> last = 0;
    return ++last;
}

} // namespace

RowSet::RowSet() : m_serial(nextSerial()) {}

QStringList RowSet::texts(int column)
{
    QStringList texts;
    texts.reserve(count());
    for (int index = 0; index < count(); ++index)
        texts << row(index)[static_cast<std::size_t>(column)].toString();
    return texts;
}

void RowSet::shiftCursors(int removed, qint64 key) const
{
    for (Cursor* cursor : m_cursors) {
        const bool here = cursor->place == Cursor::Place::Record && cursor->index == removed;
        if (here)
            *cursor = {Cursor::Place::Deleted, removed, key};
        else if (cursor->index > removed)
            --cursor->index;
    }
}

void RowSet::restoreCursors(int index, qint64 key) const
{
    for (Cursor* cursor : m_cursors) {
        const bool deleted = cursor->place == Cursor::Place::Deleted;
        if (deleted && cursor->index == index && cursor->deletedKey == key)
            cursor->place = Cursor::Place::Record;
        else if (cursor->index > index || (cursor->index == index && !deleted))
            ++cursor->index;
    }
}

} // namespace lumen
