// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/database.h"

#include <functional>
#include <memory>
#include <vector>

namespace lumen {

class JetEngine;

/// A control that shows one column of a data control's current record and gives it back.
struct BoundColumn
{
    QString dataField;
    std::function<void(const QVariant&)> show; ///< gets a null QVariant without a record
    std::function<QVariant()> read;
};

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

    /// Shows the column's value at each reposition and behind each edit. What the user changed goes
    /// into the edit buffer at each Update, whatever began the edit; a move with such a change
    /// stores the record first. A new record gets what the control holds, changed or not.
    void bind(BoundColumn column);
    /// To be called when the user changed a bound control: begins an edit when none runs.
    void boundChanged();

    /// Called after Refresh, setRecordset and each move of the recordset.
    std::function<void()> onReposition;

private:
    void adopt(std::unique_ptr<lumen::Recordset> recordset);
    void reposition();
    void showBound();
    void writeBound();
    bool isBoundChanged() const;
    void storeChanged();

    JetEngine& m_engine;
    std::unique_ptr<lumen::Database> m_database;
    std::unique_ptr<lumen::Recordset> m_recordset;
    QString m_openName;
    QString m_openConnect;
    bool m_openReadOnly = false;
    struct Bound
    {
        BoundColumn column;
        QVariant held{}; ///< what the control made of the value that it was given

        bool isChanged() const { return column.read() != held; }
    };
    std::vector<Bound> m_bound;
    bool m_showing = false; ///< controls that report their filling are not the user
};

} // namespace lumen
