// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>
#include <QVariant>

#include <vector>

namespace lumen {

/// Where a recordset stands among its rows.
struct Cursor
{
    enum class Place {
        Nowhere, ///< opened empty: before the first and past the last at once
        Before,
        Record,  ///< on row `index`
        Deleted, ///< the row that was here is gone; the one behind it has its index now
        After
    };

    Place place = Place::Nowhere;
    int index = 0;
    qint64 deletedKey = 0; ///< of the row that was here
};

using Row = std::vector<QVariant>;

/// The rows of a result in their order, shared by a recordset and its clones. A row has a key that
/// stays the same when others come and go.
class RowSet
{
public:
    RowSet();
    virtual ~RowSet() = default;
    RowSet(const RowSet&) = delete;
    RowSet& operator=(const RowSet&) = delete;

    virtual int count() const = 0;
    virtual qint64 key(int index) const = 0;
    /// The values of the result's columns; error 3167 when the row is gone. Valid until the next
    /// call.
    virtual const Row& row(int index) = 0;
    /// One column of all rows, "" for Null; error 3167 when a row is gone.
    virtual QStringList texts(int column);
    /// -1 for a key that is not among the rows. `hint` is where it probably is.
    virtual int indexOf(qint64 key, int hint) const = 0;

    /// Tells this set of rows from all others of the process; part of each bookmark.
    quint32 serial() const { return m_serial; }

    /// Cursors that are moved on when a row goes or comes back.
    void attach(Cursor& cursor) { m_cursors.push_back(&cursor); }
    void detach(Cursor& cursor) { std::erase(m_cursors, &cursor); }

protected:
    void shiftCursors(int removed, qint64 key) const;
    /// Undoes shiftCursors(): who stood on the row stands on it again.
    void restoreCursors(int index, qint64 key) const;

private:
    quint32 m_serial;
    std::vector<Cursor*> m_cursors;
};

} // namespace lumen
