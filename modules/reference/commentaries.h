// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "reference/module_task.h"
#include "sources/sword/sword_commentary.h"

#include <QString>
#include <QStringList>

namespace lumen {

/// A piece of commentary on verses of a chapter, in plain lines.
struct CommentarySection
{
    QString chapter; ///< "창1"
    QString verses;  ///< "3-5", "5", "" for the whole chapter
    QString korean;
    QString english;

    friend bool operator==(const CommentarySection&, const CommentarySection&) = default;
};

/// The two tables of a commentary: sections by their verses, and what stands under a chapter as a
/// whole, in the order in which it is read.
struct Commentary
{
    std::vector<CommentarySection> sections;
    std::vector<CommentarySection> chapters;
};

/// Divides Matthew Henry's entries, one a verse, into sections. Verses with the same entry are one
/// section, which reaches to the next one; its head "Verses 3-5" is cut off. What stands before the
/// first head is the outline of the chapter. Places are those of the keys.
Commentary sectionsOf(const std::vector<CommentaryEntry>& entries);

/// Both tables out of the SWORD module in `folder`.
Result<ModuleReport> fillMatthewHenry(const QString& folder, ModuleStore& store);
/// The same out of a user's table: chapter "창1", verses "3-5" ("" for the whole chapter), Korean
/// text, English text; "\n" begins a new line.
Result<ModuleReport> fillOwnCommentary(const QString& file, ModuleStore& store);

/// Wesley's notes, a JSON file a book: {"1": {"1": [{"html": "..."}]}}.
Result<ModuleReport> fillWesley(const QStringList& files, ModuleStore& store);
/// The same out of a user's table: chapter "창1", text.
Result<ModuleReport> fillOwnWesley(const QString& file, ModuleStore& store);

} // namespace lumen
