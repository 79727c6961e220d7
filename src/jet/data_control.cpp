// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/data_control.h"

#include "jet/engine.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace lumen {

DataControl::~DataControl()
{
    // The reposition handler belongs to a window that is being taken apart.
    if (m_recordset && !m_recordset->isClosed())
        m_recordset->setWatch({});
    m_recordset.reset();
    if (m_database)
        m_database->release();
}

void DataControl::Refresh()
{
    std::unique_ptr<lumen::Database> opened;
    const bool same = m_database && !m_database->isClosed() && DatabaseName == m_openName &&
                      Connect == m_openConnect && ReadOnly == m_openReadOnly;
    if (!same)
        opened =
            std::make_unique<lumen::Database>(m_engine.connect(DatabaseName, Connect), ReadOnly);
    auto recordset = (same ? m_database : opened)->OpenRecordset(RecordSource);
    if (opened) {
        // Recordsets that others have made from the former one go on with its file.
        m_recordset.reset();
        if (m_database)
            m_database->release();
        m_database = std::move(opened);
        m_openName = DatabaseName;
        m_openConnect = Connect;
        m_openReadOnly = ReadOnly;
    }
    adopt(std::move(recordset));
}

void DataControl::setRecordset(std::unique_ptr<lumen::Recordset> recordset)
{
    adopt(std::move(recordset));
}

void DataControl::adopt(std::unique_ptr<lumen::Recordset> recordset)
{
    m_recordset = std::move(recordset);
    if (m_recordset)
        m_recordset->setWatch({.onReposition = [this] { reposition(); },
                               .beforeMove = [this] { storeChanged(); },
                               .beforeUpdate = [this] { writeBound(); },
                               .onEditEnded = [this] { showBound(); }});
    reposition();
}

void DataControl::Close()
{
    if (m_recordset)
        m_recordset->Close();
    m_recordset.reset();
    if (m_database)
        m_database->Close();
    m_database.reset();
}

void DataControl::bind(BoundColumn column)
{
    const QVariant held = column.read();
    m_bound.push_back({std::move(column), held});
}

void DataControl::boundChanged()
{
    if (!m_showing && m_recordset && !m_recordset->isClosed() &&
        m_recordset->AbsolutePosition() >= 0 && m_recordset->editMode() == EditMode::None)
        m_recordset->Edit();
}

void DataControl::reposition()
{
    showBound();
    if (onReposition)
        onReposition();
}

void DataControl::showBound()
{
    const QScopedValueRollback showing(m_showing, true);
    const bool hasRecord = m_recordset && m_recordset->AbsolutePosition() >= 0;
    for (auto& [column, held] : m_bound) {
        column.show(hasRecord ? m_recordset->Fields(column.dataField).Value() : QVariant());
        held = column.read();
    }
}

void DataControl::writeBound()
{
    // The controls still show the record from which a new one was begun.
    const bool isNew = m_recordset->editMode() == EditMode::Add;
    for (const Bound& bound : m_bound)
        if (isNew || bound.isChanged())
            m_recordset->Fields(bound.column.dataField).setValue(bound.column.read());
}

bool DataControl::isBoundChanged() const
{
    return std::any_of(m_bound.begin(), m_bound.end(),
                       [](const Bound& bound) { return bound.isChanged(); });
}

void DataControl::storeChanged()
{
    if (isBoundChanged())
        m_recordset->Update();
}

} // namespace lumen
