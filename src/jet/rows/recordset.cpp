// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/rows/recordset.h"

#include "jet/error.h"
#include "jet/rows/recordset_state.h"
#include "jet/store/field_types.h"

#include <QDataStream>

#include <cmath>
#include <limits>

namespace lumen {

using Place = Cursor::Place;

QVariant Field::Value() const
{
    RecordsetState& state = *m_recordset->m_state;
    state.needOpen();
    const auto at = static_cast<std::size_t>(m_index);
    if (state.editMode != EditMode::None)
        return state.buffer[at];
    return state.rows().row(state.currentIndex())[at];
}

QString Field::Name() const
{
    return m_recordset->m_state->columns[static_cast<std::size_t>(m_index)].name;
}

FieldType Field::Type() const
{
    m_recordset->m_state->needOpen();
    return m_recordset->m_state->columns[static_cast<std::size_t>(m_index)].column->type;
}

int Field::Size() const
{
    m_recordset->m_state->needOpen();
    return m_recordset->m_state->columns[static_cast<std::size_t>(m_index)].column->size;
}

QString Field::GetChunk(qsizetype offset, qsizetype length) const
{
    if (offset < 0 || length < 0)
        throw jetError(ErrorNumber::kInvalidArgument);
    return Value().toString().mid(offset, length);
}

QString Text(const Field& field)
{
    const QVariant value = field.Value();
    if (value.typeId() == QMetaType::Double)
        return sqlNumber(value.toDouble());
    return value.toString();
}

int Number(const Field& field)
{
    const QVariant value = field.Value();
    if (value.typeId() == QMetaType::Int)
        return value.toInt();
    const double number = value.typeId() == QMetaType::QString
                              ? parseNumber(value.toString().toUtf8()).value_or(0)
                              : value.toDouble();
    const bool fits = std::abs(number) <= std::numeric_limits<int>::max();
    return fits ? static_cast<int>(number) : 0;
}

Recordset::Recordset(std::unique_ptr<RecordsetState> state) : m_state(std::move(state)) {}

Recordset::~Recordset() = default;

int Recordset::RecordCount() const
{
    m_state->needOpen();
    return m_state->rows().count();
}

bool Recordset::Bof() const
{
    m_state->needOpen();
    const Place place = m_state->cursor.place;
    return place == Place::Nowhere || place == Place::Before ||
           (place == Place::After && RecordCount() == 0);
}

bool Recordset::Eof() const
{
    m_state->needOpen();
    const Place place = m_state->cursor.place;
    return place == Place::Nowhere || place == Place::After ||
           (place == Place::Before && RecordCount() == 0);
}

void Recordset::MoveFirst()
{
    if (RecordCount() == 0)
        throw jetError(ErrorNumber::kNoCurrentRecord);
    m_state->goTo(0);
}

void Recordset::MoveLast()
{
    if (RecordCount() == 0)
        throw jetError(ErrorNumber::kNoCurrentRecord);
    m_state->goTo(RecordCount() - 1);
}

void Recordset::MoveNext()
{
    if (Eof())
        throw jetError(ErrorNumber::kNoCurrentRecord);
    const Cursor& cursor = m_state->cursor;
    int next = 0;
    if (cursor.place == Place::Record)
        next = cursor.index + 1;
    else if (cursor.place == Place::Deleted)
        next = cursor.index;
    if (next < RecordCount())
        m_state->goTo(next);
    else
        m_state->moveTo({Place::After, 0});
}

void Recordset::MovePrevious()
{
    if (Bof())
        throw jetError(ErrorNumber::kNoCurrentRecord);
    const Cursor& cursor = m_state->cursor;
    const int next = cursor.place == Place::After ? RecordCount() - 1 : cursor.index - 1;
    if (next >= 0)
        m_state->goTo(next);
    else
        m_state->moveTo({Place::Before, 0});
}

int Recordset::AbsolutePosition() const
{
    m_state->needOpen();
    return m_state->cursor.place == Place::Record ? m_state->cursor.index : -1;
}

void Recordset::setAbsolutePosition(int position)
{
    if (position < 0)
        throw jetError(ErrorNumber::kInvalidArgument, QString::number(position));
    const int count = RecordCount();
    if (position < count)
        m_state->goTo(position);
    else
        m_state->moveTo({count == 0 ? Place::Nowhere : Place::After, 0});
}

QByteArray Recordset::Bookmark() const
{
    return m_state->bookmarkOf(m_state->currentIndex());
}

void Recordset::setBookmark(const QByteArray& bookmark)
{
    m_state->needOpen();
    QDataStream stream(bookmark);
    quint32 serial = 0;
    qint64 key = 0;
    int hint = 0;
    stream >> serial >> key >> hint;
    if (stream.status() != QDataStream::Ok || serial != m_state->rows().serial())
        throw jetError(ErrorNumber::kStaleBookmark);
    const int index = m_state->rows().indexOf(key, hint);
    if (index < 0)
        throw jetError(ErrorNumber::kRecordDeleted, m_state->connection->source());
    m_state->goTo(index);
}

QByteArray Recordset::LastModified() const
{
    m_state->needOpen();
    if (m_state->lastModified.isEmpty())
        throw jetError(ErrorNumber::kNoCurrentRecord);
    return m_state->lastModified;
}

Field Recordset::Fields(QStringView name)
{
    m_state->needOpen();
    return {*this, m_state->columnNamed(name)};
}

Field Recordset::Fields(int index)
{
    m_state->needOpen();
    if (index < 0 || index >= FieldCount())
        throw jetError(ErrorNumber::kNoSuchItem, QString::number(index));
    return {*this, index};
}

QStringList Recordset::columnTexts(QStringView name) const
{
    m_state->needOpen();
    return m_state->rows().texts(m_state->columnNamed(name));
}

int Recordset::FieldCount() const
{
    m_state->needOpen();
    return static_cast<int>(m_state->columns.size());
}

std::unique_ptr<Recordset> Recordset::Clone()
{
    m_state->needOpen();
    if (m_state->keyed)
        return std::make_unique<Recordset>(m_state->derive(m_state->keyed));
    return std::make_unique<Recordset>(m_state->derive(m_state->fixed));
}

void Recordset::setWatch(RecordsetWatch watch)
{
    m_state->needOpen();
    m_state->watch = std::move(watch);
}

void Recordset::Close()
{
    if (m_state->isClosed())
        return;
    m_state->connection->commitImplicit();
    m_state->close();
}

bool Recordset::isClosed() const
{
    return m_state->isClosed();
}

} // namespace lumen
