// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/connection_pool.h"

#include <QDir>
#include <QFileInfo>

namespace lumen {

QString ConnectionPool::canonical(const QString& nativePath)
{
    const QFileInfo file(nativePath);
    const QString real = file.canonicalFilePath();
    return real.isEmpty() ? QDir::cleanPath(file.absoluteFilePath()) : real;
}

std::shared_ptr<Connection> ConnectionPool::find(const QString& nativePath) const
{
    const QString wanted = canonical(nativePath);
    for (const auto& connection : all())
        if (connection->source() == wanted || connection->store() == wanted)
            return connection;
    return nullptr;
}

std::shared_ptr<Connection> ConnectionPool::open(const ConnectionPlace& place)
{
    auto connection = std::make_shared<Connection>(place, m_commitFailed);
    std::erase_if(m_connections, [](const auto& known) { return known.expired(); });
    m_connections.push_back(connection);
    return connection;
}

std::vector<std::shared_ptr<Connection>> ConnectionPool::all() const
{
    std::vector<std::shared_ptr<Connection>> open;
    for (const auto& known : m_connections)
        if (auto connection = known.lock())
            open.push_back(std::move(connection));
    return open;
}

} // namespace lumen
