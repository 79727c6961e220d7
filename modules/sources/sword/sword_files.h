// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "sources/version_text.h"

#include <QByteArray>
#include <QString>

namespace lumen {

/// What the readers of SWORD's data files share.
namespace SwordFiles {

/// A failure that names the file without its folder.
Failure fault(const QString& path, const QString& reason);
/// The whole file.
Result<QByteArray> bytes(const QString& path);
/// The number of four bytes, the lowest first; `at` must lie inside.
quint32 number(const QByteArray& bytes, qsizetype at);
/// What zlib has compressed, of a known size; "" when it is damaged.
QByteArray inflated(const QByteArray& packed, qsizetype size);
/// The same where the size is not told.
QByteArray inflated(const QByteArray& packed);

} // namespace SwordFiles

} // namespace lumen
