// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/files/drives.h"
#include "platform/path_resolver.h"

#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace lumen {

/// The native folders behind the drives.
struct DriveFolders
{
    /// The program's folder; drive C: is its parent.
    QString program;
    /// What drive D:, a CD-ROM, shows: a file is looked up in each in turn. Empty: no such drive.
    QStringList disc;
};

/// The folders of this machine. The program's folder is the one that LUMENSCRIPT_HOME names, else
/// the executable's when a Data folder stands beside it, else $XDG_DATA_HOME/lumenscript, which is
/// made when missing. The disc shows mounted optical media with a Data folder and then the modules
/// of an installed package, `<prefix>/share/lumenscript`.
DriveFolders findDriveFolders();

/// The drives C: and D: as folders of this machine. Names are matched without regard to case and to
/// how Hangul is composed; an exact match goes first, then the newer of several.
class VirtualDrives : public PathResolver, public Drives
{
public:
    explicit VirtualDrives(DriveFolders folders);

    QString nativePath(const QString& path) const override;
    QString driveStrings() const override;
    int driveType(const QString& root) const override;
    QString appPath() const override;

private:
    struct Listing
    {
        QDateTime changed;
        bool settled = false;
        QHash<QString, QString> names; // by folded name
    };

    QString found(const QString& root, const QStringList& parts) const;
    std::optional<QString> entry(const QString& folder, const QString& name) const;
    const Listing& listing(const QString& folder) const;

    DriveFolders m_folders;
    QString m_root; // of drive C:
    mutable QHash<QString, Listing> m_listings;
};

} // namespace lumen
