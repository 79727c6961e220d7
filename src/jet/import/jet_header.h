// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace lumen {

/// What the first bytes of a file say about it.
enum class DatabaseKind { Store, JetFile, Unknown };

/// So many bytes from a file's start are enough for both functions below.
inline constexpr qint64 kDatabaseHeadBytes = 0x98;

/// Recognises our own stores and genuine Jet 3 and Jet 4 files; all else, also an empty file and
/// the successors of Jet 4, is Unknown.
DatabaseKind databaseKind(const QByteArray& head);

enum class JetVersion { Jet3, Jet4 };

/// What the first page of a genuine Jet file tells, decoded.
struct JetHeader
{
    JetVersion version = JetVersion::Jet4;
    int codePage = 0;     ///< of the texts of a Jet 3 file; 0 when the file doesn't say
    bool encoded = false; ///< all further pages are coded with a key that the header holds
    QString password;     ///< "" when none is set

    int pageSize() const { return version == JetVersion::Jet3 ? 2048 : 4096; }
};

/// Nothing when `head` is no Jet file or too short for its header.
std::optional<JetHeader> readJetHeader(const QByteArray& head);

/// The first bytes of a file; empty when it can't be read.
QByteArray readDatabaseHead(const QString& nativePath);

} // namespace lumen
