// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/store/compact.h"

#include "jet/error.h"
#include "jet/store/functions.h"
#include "jet/store/pending_file.h"
#include "jet/store/sqlite_statement.h"
#include "jet/store/store_layout.h"
#include "platform/log.h"

#include <QFileInfo>

#include <sqlite3.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kBusyMs = 200; // the start and the end of the program wait as long

// A store that is opened to be read as a whole: for writing where possible, so that what a crash
// left half-written is undone first.
class WholeStore : public SqliteHandle
{
public:
    explicit WholeStore(const QString& store) : SqliteHandle(store, modeFor(store))
    {
        sqlite3_busy_timeout(get(), kBusyMs);
        registerJetFunctions(get());
    }

private:
    static int modeFor(const QString& store)
    {
        const int mode =
            QFileInfo(store).isWritable() ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY;
        return mode | SQLITE_OPEN_NOMUTEX;
    }
};

void checkIntegrity(const SqliteHandle& handle)
{
    SqliteStatement statement(handle.get(), "PRAGMA integrity_check(1)");
    if (statement.step() && statement.text(0) == u"ok")
        return;
    qCInfo(jetLog) << "integrity check:" << statement.text(0);
    throw jetError(ErrorNumber::kCorrupt, fileOf(handle.get()));
}

void setPassword(const QString& store, const QString& password)
{
    const SqliteHandle handle(store, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX);
    handle.run("PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF;"
               "CREATE TABLE IF NOT EXISTS MSysStore (key TEXT PRIMARY KEY, value)");
    SqliteStatement statement(handle.get(), "INSERT OR REPLACE INTO MSysStore VALUES (?, ?)");
    statement.bindAll({StoreLayout::kPasswordKey.toString(),
                       password.isEmpty() ? QVariant() : QVariant(password)});
    statement.execute();
}

} // namespace

void checkStore(const QString& store)
{
    const WholeStore handle(store);
    checkIntegrity(handle);
}

void compactStore(const QString& store, const QString& destination,
                  const std::optional<QString>& newPassword)
{
    if (QFileInfo::exists(destination))
        throw jetError(ErrorNumber::kDestinationExists, destination);
    PendingFile copy(destination);
    {
        const WholeStore handle(store);
        checkIntegrity(handle);
        SqliteStatement vacuum(handle.get(), "VACUUM INTO ?");
        vacuum.bind(1, QVariant(copy.path()));
        vacuum.execute();
    }
    if (newPassword)
        setPassword(copy.path(), *newPassword);
    copy.takeName(PendingFile::Existing::Refuse);
}

} // namespace lumen
