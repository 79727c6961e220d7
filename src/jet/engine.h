// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/database.h"
#include "jet/import/openable_store.h"
#include "platform/open_files.h"
#include "platform/path_resolver.h"

#include <QString>

#include <functional>
#include <memory>

namespace lumen {

class ConnectionPool;
struct ConnectionPlace;
class JetError;

/// The database engine (the DBEngine of the program). Paths go through the resolver, `policies`
/// tells how each file is treated. A genuine Jet file is converted on opening: one that is only
/// read into the cache folder, any other in place after the original was put aside as "<name>.jet".
/// One that can't be replaced is read only.
class JetEngine : public OpenFiles
{
public:
    JetEngine(const PathResolver& paths, FilePolicies policies, ImportOptions options = {});
    ~JetEngine() override;

    /// 3024 no file, 3343 no database, 3031 password, 3045 when `exclusive` and open already.
    std::unique_ptr<Database> OpenDatabase(const QString& path, bool exclusive = false,
                                           bool readOnly = false, const QString& connect = {});
    /// A compact copy of `src` under `dst`; nothing is left of a failed one. `locale` may carry
    /// ";pwd=..." for the copy, `password` opens the source.
    void CompactDatabase(const QString& src, const QString& dst, const QString& locale = {},
                         const QString& password = {});

    /// Looks a whole file through: throws what OpenDatabase throws, and 3049 when the check finds a
    /// fault. A file that is open stays open.
    void CheckDatabase(const QString& path, const QString& password = {});

    /// Who speaks with the user about imports; must outlive the engine's use, nullptr for nobody.
    void setImportTalk(ImportTalk* talk) { m_options.talk = talk; }

    /// What CompactDatabase opens a file with when it is given no password.
    void setDefaultPassword(const QString& password) { m_defaultPassword = password; }

    /// Ends the implicit transaction that writes outside an explicit one have opened. The window
    /// guard calls the second when a handler failed.
    void commitAll();
    void rollbackAll();

    /// What tells where a file of the program lies.
    const PathResolver& paths() const { return m_paths; }
    bool isOpen(const QString& nativePath) const override;
    void commitPending(const QString& nativePath) override;

    /// The shared connection of a file; for data controls. Whether its user may write is that
    /// user's own affair.
    std::shared_ptr<Connection> connect(const QString& path, const QString& connect);

    /// Is told when writes could not be brought to disk behind a handler's back, on return to the
    /// event loop; without it the failure only goes to the log. The writes are undone.
    void setCommitFailed(std::function<void(const JetError&)> report);

private:
    QString existingFile(const QString& path) const;
    ConnectionPlace placeOf(const QString& native, const QString& password);

    const PathResolver& m_paths;
    FilePolicies m_policies;
    ImportOptions m_options;
    std::unique_ptr<ConnectionPool> m_pool;
    std::function<void(const JetError&)> m_commitFailed;
    bool m_opening = false;
    QString m_defaultPassword;
};

} // namespace lumen
