// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/store/field_types.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <memory>

namespace lumen {

class RecordsetState; // keys, rows read ahead, connection; recordset_state.h

/// What a table recordset needs to be told apart from a query.
enum class RecordsetType { Automatic, Table, Dynaset };

enum class EditMode { None = 0, Edit = 1, Add = 2 };

class Recordset;

/// What a data control is told by its recordset.
struct RecordsetWatch
{
    std::function<void()> onReposition{}; ///< behind each move
    std::function<void()> beforeMove{};   ///< before each move and AddNew, while an edit runs
    std::function<void()> beforeUpdate{}; ///< bound columns go into the edit buffer here
    std::function<void()> onEditEnded{};  ///< behind Update and CancelUpdate
};

/// One column of the current record (or of the edit buffer while an edit runs). A light value that
/// must not outlive its recordset.
class Field
{
public:
    /// The value; a null QVariant is a database Null. 3021 without a record, 3167 when it is gone.
    QVariant Value() const;
    /// Puts a value into the edit buffer: 3020 outside an edit, 3163 longer than Size, 3421.
    void setValue(const QVariant& value);
    QString Name() const;
    FieldType Type() const;
    /// Characters of a text column, 0 for all others.
    int Size() const;
    /// At most `length` UTF-16 units of a long text from `offset` (zero-based); "" at its end.
    QString GetChunk(qsizetype offset, qsizetype length) const;

private:
    friend class Recordset;
    Field(Recordset& recordset, int index) : m_recordset(&recordset), m_index(index) {}

    Recordset* m_recordset;
    int m_index;
};

/// A field as text: "" for Null.
QString Text(const Field& field);
/// A field as an integer, 0 for Null or text that is no number.
int Number(const Field& field);

/// An ordered result: keys are read at opening, rows on demand. RecordCount is exact at once.
/// Record positions are zero-based. Every failure is a JetError.
class Recordset
{
public:
    explicit Recordset(std::unique_ptr<RecordsetState> state);
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    int RecordCount() const;
    /// Before the first record / past the last; both on an empty recordset. ("EOF" is a macro.)
    bool Bof() const;
    bool Eof() const;
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    /// -1 without a current record. Setting RecordCount or more gives Eof, below 0 is error 3001.
    int AbsolutePosition() const;
    void setAbsolutePosition(int position);

    /// Opaque; valid in this recordset and its clones until it is closed or refreshed.
    QByteArray Bookmark() const;
    void setBookmark(const QByteArray& bookmark);
    QByteArray LastModified() const;

    Field Fields(QStringView name);
    Field Fields(int index);
    int FieldCount() const;

    EditMode editMode() const;
    void AddNew();
    void Edit();
    void Update();
    void CancelUpdate();
    void Delete();

    /// One column of all records in their order, "" for Null. The position stays. Much quicker than
    /// a walk; 3167 when a record is gone.
    QStringList columnTexts(QStringView name) const;

    /// A criterion for OpenRecordset(); no effect on this recordset itself.
    QString Filter() const;
    void setFilter(const QString& criterion);
    /// The records of this one that meet Filter, in the same order, by the same connection.
    std::unique_ptr<Recordset> OpenRecordset();
    /// The same keys and bookmarks with a position and an edit state of its own.
    std::unique_ptr<Recordset> Clone();

    void FindFirst(const QString& criterion);
    bool NoMatch() const;

    /// Table recordsets only: the index by name, then Seek with comparison "=" and a value.
    void setIndex(const QString& name);
    void Seek(const QString& comparison, const QVariant& value);

    /// For the data control that owns the recordset.
    void setWatch(RecordsetWatch watch);

    /// Commits what this recordset wrote; any further use is error 3420.
    void Close();
    bool isClosed() const;

private:
    friend class Field;
    std::unique_ptr<RecordsetState> m_state;
};

} // namespace lumen
