// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/store/connection.h"

#include <memory>
#include <vector>

namespace lumen {

/// The open connections of the process, one a file. They live as long as somebody uses them.
class ConnectionPool
{
public:
    explicit ConnectionPool(Connection::CommitFailed commitFailed)
        : m_commitFailed(std::move(commitFailed))
    {
    }

    /// The connection of the file whose native path this is, whatever way it is written; nullptr
    /// when the file isn't open. A converted module is known by both its files.
    std::shared_ptr<Connection> find(const QString& nativePath) const;
    std::shared_ptr<Connection> open(const ConnectionPlace& place);
    std::vector<std::shared_ptr<Connection>> all() const;

    static QString canonical(const QString& nativePath);

private:
    Connection::CommitFailed m_commitFailed;
    std::vector<std::weak_ptr<Connection>> m_connections;
};

} // namespace lumen
