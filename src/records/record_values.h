// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "records/record_profile.h"

#include <QDate>
#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace lumen {

/// The column of a record's number, which is never given twice.
inline constexpr QStringView kRecordKey = u"일련번호";
/// What the plain column of the title takes.
inline constexpr int kTitleLength = 130;

/// What can be changed of a record. The first five are its texts, in the order of the profile.
enum class RecordPart { Title, Passage, Body, Prayer, Summary, Category, PreachedDay, WrittenDay };
inline constexpr int kRecordParts = 8;

constexpr bool isRecordText(RecordPart part)
{
    return static_cast<int>(part) < kRecordTexts;
}

/// A record as it is shown: the RTF of its texts, without a value where the column is Null.
struct RecordValues
{
    int key = 0; ///< 0 for none
    std::array<std::optional<QString>, kRecordTexts> rtf;
    std::optional<QString> category;
    std::optional<QDate> preached;
    std::optional<QDate> written;

    friend bool operator==(const RecordValues&, const RecordValues&) = default;
};

/// The boxes and controls in which the user edits a record, as the model asks them when it stores
/// or drafts what was changed.
class RecordBoxes
{
public:
    virtual ~RecordBoxes() = default;
    /// `text` is the place of a text in the profile.
    virtual QString plainText(int text) const = 0;
    virtual QString rtf(int text) const = 0;
    virtual QString category() const = 0;
    virtual QDate preachedDay() const = 0;
    virtual QDate writtenDay() const = 0;
};

/// A changed part as it is drafted: a text, plain and as RTF, a category, or a day as yyyy-MM-dd.
struct DraftPart
{
    RecordPart part = RecordPart::Title;
    QString text;
    QString rtf = {};

    friend bool operator==(const DraftPart&, const DraftPart&) = default;
};

/// The value of a part as the boxes hold it.
DraftPart partOf(const RecordBoxes& boxes, RecordPart part);
/// Puts a part into values that are shown.
void applyPart(RecordValues& values, const DraftPart& part);

/// "yyyy-MM-dd", the form of days on screen, in queries and in texts; "" for none.
QString dayString(const QDate& day);

/// The whole record as one RTF text that nothing is escaped in: a brace or a backslash of the
/// user's is RTF to the box that receives it, and line ends vanish. Print and the old exports rest
/// on it.
QString MergeAllContent(const RecordProfile& profile, const RecordBoxes& boxes);

} // namespace lumen
