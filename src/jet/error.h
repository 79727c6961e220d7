// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <exception>

namespace lumen {

/// The one exception of the program: thrown by the database engine, caught by `guarded(...)`.
/// The number tells what happened (the engine's own numbers, see ErrorNumber), the text is Korean
/// and meant for a message box.
class JetError : public std::exception
{
public:
    JetError(int number, QString text);

    int number() const { return m_number; }
    const QString& text() const { return m_text; }
    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    int m_number;
    QString m_text;
    QByteArray m_utf8;
};

/// The error of a number with its own Korean text; `detail` (a file, table, column or place in a
/// statement) is put behind it.
JetError jetError(int number, const QString& detail = {});

/// The numbers of the engine's errors.
namespace ErrorNumber {
inline constexpr int kFileInUse = 70;
inline constexpr int kInvalidPattern = 93;
inline constexpr int kInvalidArgument = 3001;
inline constexpr int kTableExists = 3010;
inline constexpr int kNoSuchIndex = 3015;
inline constexpr int kNoIndexSet = 3019;
inline constexpr int kUpdateWithoutEdit = 3020;
inline constexpr int kNoCurrentRecord = 3021;
inline constexpr int kDuplicateKey = 3022;
inline constexpr int kFileNotFound = 3024;
inline constexpr int kReadOnly = 3027;
inline constexpr int kWrongPassword = 3031;
inline constexpr int kAlreadyInUse = 3045;
inline constexpr int kCorrupt = 3049;
inline constexpr int kCancelled = 3059;
inline constexpr int kUnknownColumn = 3061;
inline constexpr int kCriterionSyntax = 3075;
inline constexpr int kUnknownTable = 3078;
inline constexpr int kBracketSyntax = 3126;
inline constexpr int kFromSyntax = 3131;
inline constexpr int kStaleBookmark = 3159;
inline constexpr int kTextTooLong = 3163;
inline constexpr int kRecordDeleted = 3167;
inline constexpr int kWriteFailed = 3183;
inline constexpr int kDestinationExists = 3204;
inline constexpr int kNoSuchItem = 3265;
inline constexpr int kRequiredEmpty = 3314;
inline constexpr int kNotADatabase = 3343;
inline constexpr int kOpenElsewhere = 3356;
inline constexpr int kObjectClosed = 3420;
inline constexpr int kConversion = 3421;
} // namespace ErrorNumber

} // namespace lumen
