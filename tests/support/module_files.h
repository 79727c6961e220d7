// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/store/store_writer.h"

#include <QList>
#include <QString>
#include <QVariant>

#include <optional>

namespace lumen {

/// One table of a module with its rows, each in column order.
struct ModuleTable
{
    TableSchema schema;
    QList<QVariantList> rows;
};

/// Writes a module with the modules' password; text compares by code point. Nothing is scrambled:
/// the rows hold the stored form. Folders on the way are made.
void writeModule(const QString& nativePath, const QList<ModuleTable>& tables);

/// One verse of a module in readable form; it is scrambled on writing.
struct PlainVerse
{
    int book = 0; ///< zero-based
    int chapter = 1;
    int verse = 1;
    std::optional<QString> cont;
    std::optional<QString> part;
    QString miniTitle;
};

/// The table of a version, its rows in the order given.
ModuleTable versionTable(const QString& name, const QList<PlainVerse>& verses);
/// Writes a version's module of one table.
void writeVersion(const QString& nativePath, const QString& name, const QList<PlainVerse>& verses);

} // namespace lumen
