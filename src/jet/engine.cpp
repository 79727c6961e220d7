// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/engine.h"

#include "jet/connect_string.h"
#include "jet/connection_pool.h"
#include "jet/error.h"
#include "jet/store/compact.h"
#include "platform/log.h"

#include <QFileInfo>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace lumen {

JetEngine::JetEngine(const PathResolver& paths, FilePolicies policies, ImportOptions options)
    : m_paths(paths), m_policies(std::move(policies)), m_options(std::move(options)),
      m_pool(std::make_unique<ConnectionPool>([this](const JetError& error) {
          qCWarning(jetLog) << "writes were undone:" << error.what();
          if (m_commitFailed)
              m_commitFailed(error);
      }))
{
}

JetEngine::~JetEngine() = default;

void JetEngine::setCommitFailed(std::function<void(const JetError&)> report)
{
    m_commitFailed = std::move(report);
}

QString JetEngine::existingFile(const QString& path) const
{
    const QString native = m_paths.nativePath(path);
    if (native.isEmpty() || !QFileInfo(native).isFile())
        throw jetError(ErrorNumber::kFileNotFound, native.isEmpty() ? path : native);
    return ConnectionPool::canonical(native);
}

/// Where to open a file, in canonical form as the pool compares it.
ConnectionPlace JetEngine::placeOf(const QString& native, const QString& password)
{
    // While an import shows its progress, timers run: none of them may begin a second one.
    if (m_opening)
        throw jetError(ErrorNumber::kAlreadyInUse, native);
    const QScopedValueRollback opening(m_opening, true);
    const FilePolicy policy = m_policies(native);
    const QString store = openableStore({native, password, policy}, m_options);
    return {native, ConnectionPool::canonical(store), policy};
}

std::shared_ptr<Connection> JetEngine::connect(const QString& path, const QString& connect)
{
    const QString native = existingFile(path);
    const QString password = passwordOf(connect).value_or(QString());
    auto connection = m_pool->find(native);
    if (connection && connection->isExclusive())
        throw jetError(ErrorNumber::kAlreadyInUse, native);
    if (!connection)
        connection = m_pool->open(placeOf(native, password));
    if (!connection->takesPassword(password))
        throw jetError(ErrorNumber::kWrongPassword, native);
    return connection;
}

std::unique_ptr<Database> JetEngine::OpenDatabase(const QString& path, bool exclusive,
                                                  bool readOnly, const QString& connect)
{
    if (const QString native = existingFile(path); exclusive && m_pool->find(native))
        throw jetError(ErrorNumber::kAlreadyInUse, native);
    auto connection = this->connect(path, connect);
    if (exclusive)
        connection->setExclusive();
    return std::make_unique<Database>(std::move(connection), readOnly);
}

void JetEngine::CompactDatabase(const QString& src, const QString& dst, const QString& locale,
                                const QString& password)
{
    const QString native = existingFile(src);
    const QString destination = m_paths.nativePath(dst);
    if (destination.isEmpty())
        throw jetError(ErrorNumber::kFileNotFound, dst);
    if (QFileInfo::exists(destination))
        throw jetError(ErrorNumber::kDestinationExists, destination);
    if (m_pool->find(native))
        throw jetError(ErrorNumber::kOpenElsewhere, native);
    const QString given =
        passwordOf(password).value_or(password.isEmpty() ? m_defaultPassword : password);
    const ConnectionPlace place = placeOf(native, given);
    // The copy comes over the original: one made of what merely shows it would lose the rest.
    if (place.policy.isIrreplaceable() && place.store != native)
        throw jetError(ErrorNumber::kReadOnly, native);
    // Opening it tells whether the password is right and undoes what a crash left.
    if (!Connection(place, {}).takesPassword(given))
        throw jetError(ErrorNumber::kWrongPassword, native);
    compactStore(place.store, destination, passwordOf(locale));
}

void JetEngine::CheckDatabase(const QString& path, const QString& password)
{
    commitPending(existingFile(path));
    const auto connection = connect(path, password.isEmpty() ? QString() : u";pwd="_s + password);
    checkStore(placeOf(existingFile(path), password).store);
}

void JetEngine::commitAll()
{
    for (const auto& connection : m_pool->all())
        connection->commitImplicit();
}

void JetEngine::rollbackAll()
{
    for (const auto& connection : m_pool->all())
        connection->rollback();
}

bool JetEngine::isOpen(const QString& nativePath) const
{
    return m_pool->find(nativePath) != nullptr;
}

void JetEngine::commitPending(const QString& nativePath)
{
    if (const auto connection = m_pool->find(nativePath))
        connection->commitImplicit();
}

} // namespace lumen
