// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/database.h"
#include "jet/error.h"
#include "platform/log.h"

namespace lumen {

/// One step on disk: what is written between here and commit() is there whole, or not at all when
/// the block is left before.
class Transaction
{
public:
    explicit Transaction(Database& database) : m_database(database) { database.BeginTrans(); }
    ~Transaction()
    {
        if (!m_open)
            return;
        try {
            m_database.Rollback();
        } catch (const JetError& error) {
            // A database closed within the block has undone its writes itself.
            qCWarning(jetLog) << "rollback failed:" << error.text();
        }
    }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Throws JetError when the disk refuses; the block then undoes what was written.
    void commit()
    {
        m_database.CommitTrans();
        m_open = false;
    }

private:
    Database& m_database;
    bool m_open = true;
};

} // namespace lumen
