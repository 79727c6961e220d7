// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/user_files.h"
#include "data/window_geometry.h"
#include "platform/message_text.h"

#include <QStringView>

#include <array>
#include <span>

namespace lumen {

/// The texts of a record, in the order in which they are shown and stored.
inline constexpr int kRecordTexts = 5;
inline constexpr int kTitleText = 0;

/// A text of a record: its two columns and what it is called.
struct RecordColumn
{
    QStringView plain;   ///< for searching
    QStringView rtf;     ///< for showing
    QStringView heading; ///< in the composed text and above the grid of the search
};

/// A tool of one of the windows.
struct RecordTool
{
    QStringView id;
    QStringView caption;
};

/// The tools that both windows have, each under a name of its own.
struct RecordTools
{
    QStringView menu; ///< caption
    RecordTool list;
    RecordTool create;
    RecordTool first;
    RecordTool previous;
    RecordTool next;
    RecordTool last;
    RecordTool remove;
    RecordTool otherManager; ///< opens the window of the other profile
};

/// What the window and its controls are called.
struct RecordNames
{
    QStringView window;
    QStringView search; ///< its window
    std::array<QStringView, kRecordTexts> boxes;
    QStringView tabs;
    QStringView info;
    QStringView infoCaption;
};

struct RecordMessages
{
    MessageText noTitle;
    MessageText lastRecord;
    MessageText confirmDelete;
    MessageText confirmPrintAll;
    MessageText nothingFoundBefore;      ///< easy search
    MessageText nothingFoundBeforePower; ///< power search
};

/// A column of the result grid.
struct RecordResultColumn
{
    QStringView header;
    QStringView column;
    int width = 0; ///< twips; 0 hides it
    bool isDay = false;
};

/// All in which the notebook of sermons and the one of quiet time differ.
struct RecordProfile
{
    QStringView caption;
    const UserFile* file = nullptr;
    QStringView path;  ///< below the program's folder, as the window spells it
    QStringView draft; ///< the file of unsaved text beside it
    QStringView table;
    std::array<RecordColumn, kRecordTexts> texts;
    QStringView category; ///< column
    QStringView categoryLabel;
    QStringView categoryAtFirst; ///< shown before any record is bound
    std::span<const QStringView> categories;
    QStringView preachedDay; ///< column; "" where there is none
    QStringView writtenDay;  ///< column
    QStringView printSource;
    QStringView helpPage;
    GeometryRow geometry;
    RecordNames names;
    RecordTools tools;
    std::span<const QStringView> absentTools;
    RecordMessages messages;
    std::span<const UserFile* const> maintained; ///< compacted and backed up at the window's end

    QStringView searchCaption;
    QStringView searchPrintSource;
    QStringView searchHelpPage;
    GeometryRow searchGeometry;
    std::span<const RecordResultColumn> resultColumns;
    std::span<const QStringView> dateChoices; ///< empty where only one date can be asked for

    bool hasPreachedDay() const { return !preachedDay.isEmpty(); }
    /// "select * from 설교".
    QString source() const;
    bool lacksTool(QStringView id) const;
};

namespace record_profile {
extern const RecordProfile kSermon;
extern const RecordProfile kQuietTime;
} // namespace record_profile

} // namespace lumen
