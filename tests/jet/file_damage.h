// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <random>

namespace lumen {

class JetEngine;

/// The bytes of a file after an accident: some flipped, a stretch overwritten, a page gone or in a
/// wrong place, the end cut off. At least one byte differs.
QByteArray damaged(const QByteArray& bytes, std::mt19937& random);

/// Opens a database and reads everything in it by every way there is. Throws the JetError that
/// ends it; what can be read is read.
void walkDatabase(JetEngine& engine, const QString& path, const QString& connect);

} // namespace lumen
