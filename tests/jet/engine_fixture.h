// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/engine.h"
#include "jet/error.h"
#include "jet/store/store_writer.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

namespace lumen {

/// Native paths as they are; all others, whatever their drive and folders, are files of one folder,
/// found without regard to case.
class OneFolderPaths : public PathResolver
{
public:
    explicit OneFolderPaths(QString folder) : m_folder(std::move(folder)) {}

    QString nativePath(const QString& path) const override
    {
        if (path.startsWith(u'/'))
            return path;
        const QString name = path.section(u'\\', -1);
        const QStringList found = QDir(m_folder).entryList({name}, QDir::Files);
        return m_folder + u'/' + (found.isEmpty() ? name : found.first());
    }

private:
    QString m_folder;
};

/// Modules end in .dts and user databases in .mdb, all else is scratch.
inline FilePolicy policyOf(const QString& nativePath)
{
    if (nativePath.endsWith(QLatin1String(".dts"), Qt::CaseInsensitive))
        return {.readOnly = true};
    if (nativePath.endsWith(QLatin1String(".mdb"), Qt::CaseInsensitive))
        return {.compare = StoreCompare::Text};
    return {.sync = StoreSync::None};
}

/// The number of the JetError that an action ends with, 0 for none.
inline int errorOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const JetError& error) {
        return error.number();
    }
    return 0;
}

/// A column of all records, in order; Null reads "NULL".
inline QStringList columnOf(Recordset& records, QStringView name)
{
    QStringList values;
    if (records.RecordCount() == 0)
        return values;
    for (records.MoveFirst(); !records.Eof(); records.MoveNext())
        values << (records.Fields(name).Value().isNull() ? QStringLiteral("NULL")
                                                         : Text(records.Fields(name)));
    return values;
}

/// An engine over a folder of its own.
class EngineTest : public testing::Test
{
protected:
    QString path(const QString& name) const { return folder.filePath(name); }
    QStringList files() const
    {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    QByteArray bytesOf(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    /// A store of one table; rows are in the columns' order.
    void makeStore(const QString& file, StoreCompare compare, const TableSchema& schema,
                   const QList<QVariantList>& rows, const QString& password = {}) const
    {
        StoreWriter writer(path(file), compare);
        if (!password.isEmpty())
            writer.setPassword(password);
        writer.createTable(schema);
        for (const QVariantList& row : rows)
            writer.addRow(schema.name, row);
        writer.commit();
    }

    std::unique_ptr<Database> open(const QString& file, const QString& connect = {})
    {
        return engine.OpenDatabase(file, false, false, connect);
    }

    QTemporaryDir folder;
    OneFolderPaths paths{folder.path()};
    JetEngine engine{paths, policyOf};
};

} // namespace lumen
