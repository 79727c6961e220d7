// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files/virtual_drives.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStorageInfo>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kNoSuchRoot = 1;
constexpr int kFixedDisc = 3;
constexpr int kCdRom = 5;
// A listing read this soon after its folder changed may miss a change within the same tick of the
// file system's clock; it is read again at the next miss.
constexpr int kSettleMs = 100;

QString folded(const QString& name)
{
    return name.normalized(QString::NormalizationForm_C).toCaseFolded();
}

QString below(const QString& folder, const QString& name)
{
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

QDateTime changedAt(const QString& path)
{
    return QFileInfo(path).lastModified();
}

bool hasDataFolder(const QString& folder)
{
    const QStringList found = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    return std::any_of(found.cbegin(), found.cend(),
                       [](const QString& name) { return folded(name) == u"data"; });
}

QString programFolder()
{
    const QString named = qEnvironmentVariable("LUMENSCRIPT_HOME");
    if (!named.isEmpty())
        return QDir(named).absolutePath();
    QString own = QCoreApplication::applicationDirPath();
    if (hasDataFolder(own))
        return own;
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           u"/lumenscript"_s;
}

QStringList mountedDiscs()
{
    QStringList roots;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        const QByteArray type = volume.fileSystemType();
        if ((type == "iso9660" || type == "udf") && hasDataFolder(volume.rootPath()))
            roots << volume.rootPath();
    }
    return roots;
}

// The path's parts behind the drive. Steps to a parent folder end at the root.
QStringList partsOf(QStringView path)
{
    QStringList parts;
    for (QStringView part : path.split(u'\\', Qt::SkipEmptyParts)) {
        if (part == u".")
            continue;
        if (part != u"..")
            parts << part.toString();
        else if (!parts.isEmpty())
            parts.removeLast();
    }
    return parts;
}

} // namespace

DriveFolders findDriveFolders()
{
    DriveFolders folders{programFolder(), mountedDiscs()};
    QDir().mkpath(folders.program);
    const QString installed =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../share/lumenscript"_s);
    if (hasDataFolder(installed))
        folders.disc << installed;
    return folders;
}

VirtualDrives::VirtualDrives(DriveFolders folders) : m_folders(std::move(folders))
{
    m_folders.program = QDir::cleanPath(m_folders.program);
    m_root = QFileInfo(m_folders.program).path();
}

QString VirtualDrives::nativePath(const QString& path) const
{
    if (path.startsWith(u'/'))
        return path;
    if (path.size() < 2 || path[1] != u':')
        return {};
    const QStringList parts = partsOf(QString(path.sliced(2)).replace(u'/', u'\\'));
    switch (path[0].toUpper().unicode()) {
    case u'C':
        return found(m_root, parts);
    case u'D': {
        for (const QString& root : m_folders.disc) {
            QString native = found(root, parts);
            if (QFileInfo::exists(native))
                return native;
        }
        return m_folders.disc.isEmpty() ? QString() : found(m_folders.disc.first(), parts);
    }
    default:
        return {};
    }
}

// Follows the path as far as it exists; what is missing keeps the spelling that was asked for.
QString VirtualDrives::found(const QString& root, const QStringList& parts) const
{
    QString native = root;
    for (const QString& part : parts)
        native = below(native, entry(native, part).value_or(part));
    return native;
}

std::optional<QString> VirtualDrives::entry(const QString& folder, const QString& name) const
{
    if (QFileInfo::exists(below(folder, name)))
        return name;
    const QString actual = listing(folder).names.value(folded(name));
    if (actual.isEmpty() || !QFileInfo::exists(below(folder, actual)))
        return {};
    return actual;
}

const VirtualDrives::Listing& VirtualDrives::listing(const QString& folder) const
{
    Listing& known = m_listings[folder];
    const QDateTime changed = QFileInfo(folder).lastModified();
    if (known.settled && known.changed == changed)
        return known;
    known.changed = changed;
    known.settled = changed.isValid() && changed.msecsTo(QDateTime::currentDateTime()) > kSettleMs;
    known.names.clear();
    // Of two names that differ by case or composition alone the newer file is found; the order by
    // name decides where both are of one time.
    const QStringList names =
        QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& name : names) {
        QString& chosen = known.names[folded(name)];
        if (chosen.isEmpty() || changedAt(below(folder, chosen)) < changedAt(below(folder, name)))
            chosen = name;
    }
    return known;
}

QString VirtualDrives::driveStrings() const
{
    QString drives = u"C:\\"_s + QChar(u'\0');
    if (!m_folders.disc.isEmpty())
        drives += u"D:\\"_s + QChar(u'\0');
    return drives;
}

int VirtualDrives::driveType(const QString& root) const
{
    const QString drive = root.left(2).toUpper();
    if (drive == u"C:")
        return kFixedDisc;
    return drive == u"D:" && !m_folders.disc.isEmpty() ? kCdRom : kNoSuchRoot;
}

QString VirtualDrives::appPath() const
{
    return u"C:\\"_s + QFileInfo(m_folders.program).fileName();
}

} // namespace lumen
