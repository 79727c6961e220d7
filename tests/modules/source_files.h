// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/build_run.h"
#include "recipes/version_task.h"
#include "sources/version_text.h"

#include <QString>
#include <QTemporaryDir>
#include <QVariantList>

#include <vector>

namespace lumen {

/// A folder of made-up source files that goes with the test.
class SourceFiles
{
public:
    /// Writes a file and the folders above it; returns its path.
    QString write(const QString& name, const QByteArray& content) const;
    QString write(const QString& name, const QString& content) const
    {
        return write(name, content.toUtf8());
    }
    QString path(const QString& name = {}) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

/// The verse of a version, nullptr when it has no row.
const VerseText* verseAt(const VersionText& version, int book, int chapter, int verse);
/// Its words; "<no row>" and "<no words>" tell the two other cases apart.
QString wordsAt(const VersionText& version, int book, int chapter, int verse);

/// The task of a version in a plan, nullptr when it is not to be made.
const VersionTask* versionIn(const BuildPlan& plan, int code);

/// The rows that a query of a finished store gives.
std::vector<QVariantList> storeRows(const QString& file, const QString& sql);

/// Puts another letter in the place of the first of a text that a module holds scrambled, as a
/// fault of the disc would. False when the text is not there.
bool changeLetter(const QString& file, const QString& text);

} // namespace lumen
