// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/module_path.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// Nothing is mended on the CD drive, whose name carries no backslash.
QString discPath(const AppState& state, QStringView relative)
{
    return state.CdDrive + relative.toString();
}

} // namespace

QString joinedPath(QStringView root, QStringView relative)
{
    QString path = root.toString() + relative.toString();
    return path.replace(u"\\\\"_s, u"\\"_s);
}

bool moduleExists(const FileSystem& files, const AppState& state, QStringView relative)
{
    return findModule(files, state, relative).has_value();
}

std::optional<QString> findModule(const FileSystem& files, const AppState& state,
                                  QStringView relative)
{
    QString path = modulePath(files, state, relative);
    if (!files.FileExists(path))
        return {};
    return path;
}

QString modulePath(const FileSystem& files, const AppState& state, QStringView relative)
{
    QString path = joinedPath(state.AppPath, relative);
    if (files.FileExists(path))
        return path;
    // A message on a module that is nowhere names the place where the user can put it.
    const QString onDisc = discPath(state, relative);
    return files.FileExists(onDisc) ? onDisc : path;
}

QString versionFile(int code, QStringView suffix)
{
    return u"\\Data\\"_s + QString::number(code) + suffix.toString() + u".dts"_s;
}

} // namespace lumen
