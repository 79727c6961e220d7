// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/jet/database.h"

#include <functional>
#include <memory>

namespace lumen {

class JetEngine;

/// A data control: name, connect string and source are plain text until Refresh opens them.
class DataControl
{
public:
    explicit DataControl(JetEngine& engine) : m_engine(engine) {}
    ~DataControl();
    DataControl(const DataControl&) = delete;
    DataControl& operator=(const DataControl&) = delete;

    QString DatabaseName;
    QString Connect;
    QString RecordSource;
    bool ReadOnly = false;

    /// Opens RecordSource (and the database, when name or connect string changed) on its first
    /// record. On an error the former recordset stays and the error is thrown.
    void Refresh();
    /// nullptr when nothing is open.
    lumen::Recordset* Recordset() const { return m_recordset.get(); }
    /// Takes over a recordset, such as the clone of a filtered one, or nothing.
    void setRecordset(std::unique_ptr<lumen::Recordset> recordset);
    lumen::Database* Database() const { return m_database.get(); }
    /// Closes recordset and database, so that the file is free.
    void Close();

    /// Called after Refresh and setRecordset.
    std::function<void()> onReposition;

private:
    JetEngine& m_engine;
    std::unique_ptr<lumen::Database> m_database;
    std::unique_ptr<lumen::Recordset> m_recordset;
    QString m_openName;
    QString m_openConnect;
};

} // namespace lumen
