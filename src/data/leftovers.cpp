// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/leftovers.h"

#include "data/compact_and_backup.h"
#include "data/module_path.h"
#include "platform/temporary_file.h"

#include <QFileInfo>
#include <QHash>
#include <QSet>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

/// The files that are written, by folder.
class WrittenFiles
{
public:
    void add(const QString& nativePath)
    {
        const QFileInfo file(nativePath);
        addTo(file);
        // A link is followed when its file is written anew.
        if (file.isSymLink() && file.exists())
            addTo(QFileInfo(file.canonicalFilePath()));
    }

    void removeLeftovers() const
    {
        for (auto folder = m_names.cbegin(); folder != m_names.cend(); ++folder)
            lumen::removeLeftovers(folder.key(), [&](const QString& name) {
                const QString put = name.section(kAside.toString(), 0, 0);
                return folder->contains(folded(put));
            });
    }

private:
    static constexpr QStringView kAside = u".damaged"; // what a restored backup puts aside

    static QString folded(const QString& name)
    {
        return name.normalized(QString::NormalizationForm_C).toCaseFolded();
    }

    void addTo(const QFileInfo& file)
    {
        m_names[file.absolutePath()].insert(folded(file.fileName()));
    }

    QHash<QString, QSet<QString>> m_names;
};

} // namespace

void removeUserLeftovers(const QString& appPath, const QString& settingsFile,
                         const PathResolver& paths)
{
    WrittenFiles written;
    const auto add = [&](QStringView folder, QStringView name) {
        if (!name.isEmpty())
            written.add(paths.nativePath(joinedPath(appPath, folder.toString() + name.toString())));
    };
    const QString backups = backupFolder(appPath);
    for (const UserFile& file : user_file::kAll) {
        add(u"\\Data", file.name);
        if (file.compacting != Compacting::No)
            add(u"\\Data", file.copyName());
        if (file.backedUp)
            for (const QString& backup : {file.name.toString(), file.formerBackupName()})
                written.add(paths.nativePath(backups + backup));
    }
    add(u"\\Data", kStoreTrial);
    written.add(settingsFile);
    written.removeLeftovers();
}

} // namespace lumen
