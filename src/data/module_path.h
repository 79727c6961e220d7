// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "platform/files/file_system.h"

#include <QString>
#include <QStringView>

#include <optional>

namespace lumen {

/// Root plus a relative name that begins with a backslash, each doubled backslash made one:
/// "C:\" and "\data\101.dts" give "C:\data\101.dts".
QString joinedPath(QStringView root, QStringView relative);

/// True if the file is under AppPath or under the CD drive.
bool moduleExists(const FileSystem& files, const AppState& state, QStringView relative);

/// The path under AppPath if the file is there, else the one on the CD drive if it is there.
std::optional<QString> findModule(const FileSystem& files, const AppState& state,
                                  QStringView relative);

/// The path to open: on the CD drive if the file is only there, else under AppPath, there or not.
QString modulePath(const FileSystem& files, const AppState& state, QStringView relative);

/// "\Data\101.dts"; `suffix` "c" gives the concordance module.
QString versionFile(int code, QStringView suffix = {});

} // namespace lumen
