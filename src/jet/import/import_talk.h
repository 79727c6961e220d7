// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace lumen {

/// What the import of genuine Jet files asks its user and tells. Paths are native; losses are
/// lines for the user to read, such as "읽지 못한 행: 5".
class ImportTalk
{
public:
    virtual ~ImportTalk() = default;

    /// Some of a user database can't be read. True puts what could be read in its place (the
    /// original is kept beside it), false leaves the file as it is. Asked at every opening.
    virtual bool takesIncomplete(const QString& path, const QStringList& losses) = 0;
    /// A user database is shown from a copy that can't be written. Called at every opening.
    virtual void isReadOnly(const QString& path, const QStringList& losses) = 0;
    /// Called some ten times a second while an import runs; false ends it.
    virtual bool goesOn(const QString& path, qint64 elapsedMs) = 0;
    /// The import that goesOn() was called for has ended.
    virtual void ended() = 0;
};

} // namespace lumen
