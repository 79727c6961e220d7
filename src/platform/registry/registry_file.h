// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <map>

namespace lumen {

struct RegistryValue
{
    QString name; ///< as it was first written
    QString text;
};

struct RegistryKey
{
    QString path;
    std::map<QString, RegistryValue> values; ///< by folded name
};

/// All keys by folded path.
using RegistryTree = std::map<QString, RegistryKey>;

/// The form in which key paths and value names are compared.
QString foldedName(QStringView name);

/// The tree as a text file: a line "[path]" a key, a line "name=text" a value, and an end line by
/// which a file that was cut is known.
QByteArray registryText(const RegistryTree& tree);

/// What could be read of a file; `damaged` when that isn't all of it.
struct ReadRegistry
{
    RegistryTree tree;
    bool damaged = false;
};

/// Reads the text of registryText(). Lines that make no sense are passed over, and so is a last
/// line without its end, whose value may be cut.
ReadRegistry readRegistryText(const QByteArray& bytes);

} // namespace lumen
