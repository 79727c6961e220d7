// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/store/functions.h"

#include "jet/error.h"
#include "jet/store/field_types.h"
#include "jet/store/like_pattern.h"
#include "jet/store/sqlite_statement.h"
#include "jet/store/stored_text.h"
#include "text/codepage949.h"

#include <memory>
#include <sqlite3.h>

namespace lumen {

namespace {

constexpr int kFunctionFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;

std::string_view utf8Of(sqlite3_value* value)
{
    const unsigned char* data = sqlite3_value_text(value);
    const int bytes = sqlite3_value_bytes(value);
    if (data == nullptr)
        return {};
    return {reinterpret_cast<const char*>(data), static_cast<std::size_t>(bytes)};
}

bool isNull(sqlite3_value* value)
{
    return sqlite3_value_type(value) == SQLITE_NULL;
}

void giveText(sqlite3_context* context, const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    sqlite3_result_text64(context, utf8.isEmpty() ? "" : utf8.constData(),
                          static_cast<sqlite3_uint64>(utf8.size()), SQLITE_TRANSIENT, SQLITE_UTF8);
}

/// Runs a function body; no C++ exception may cross SQLite.
template <typename Body>
void shielded(sqlite3_context* context, Body body)
{
    try {
        body();
    } catch (const JetError& error) {
        sqlite3_result_error(context, error.what(), -1);
        sqlite3_result_error_code(context, SQLITE_FORMAT);
    } catch (...) {
        sqlite3_result_error_nomem(context);
    }
}

template <LikePattern::Case Sensitivity>
void like(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (isNull(arguments[1]))
        return;
    const auto* pattern = static_cast<const LikePattern*>(sqlite3_get_auxdata(context, 0));
    if (pattern != nullptr) {
        sqlite3_result_int(context, pattern->matches(utf8Of(arguments[1])) ? 1 : 0);
        return;
    }
    if (isNull(arguments[0]))
        return;
    shielded(context, [&] {
        const std::string_view text = utf8Of(arguments[0]);
        auto compiled = std::make_unique<LikePattern>(fromUtf8(text), Sensitivity);
        sqlite3_result_int(context, compiled->matches(utf8Of(arguments[1])) ? 1 : 0);
        sqlite3_set_auxdata(context, 0, compiled.release(),
                            [](void* old) { delete static_cast<LikePattern*>(old); });
    });
}

void number(sqlite3_context* context, int, sqlite3_value** arguments)
{
    const int type = sqlite3_value_type(arguments[0]);
    if (type == SQLITE_INTEGER || type == SQLITE_FLOAT) {
        sqlite3_result_value(context, arguments[0]);
        return;
    }
    const std::string_view text = utf8Of(arguments[0]);
    const auto value = parseNumber({text.data(), static_cast<qsizetype>(text.size())});
    if (type == SQLITE_TEXT && value)
        sqlite3_result_double(context, *value);
}

void asText(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_FLOAT)
        shielded(context,
                 [&] { giveText(context, sqlNumber(sqlite3_value_double(arguments[0]))); });
    else if (!isNull(arguments[0]))
        shielded(context, [&] {
            const std::string_view text = utf8Of(arguments[0]);
            sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
        });
}

void asDateText(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (!isNull(arguments[0]))
        shielded(context, [&] { giveText(context, dayText(sqlite3_value_double(arguments[0]))); });
}

/// Left counts UTF-16 units, as all positions in texts do.
void left(sqlite3_context* context, int, sqlite3_value** arguments)
{
    const int length = sqlite3_value_int(arguments[1]);
    if (isNull(arguments[0]) || isNull(arguments[1]) || length < 0)
        return;
    const std::string_view text = utf8Of(arguments[0]);
    std::size_t at = 0;
    for (int units = 0; at < text.size(); ++at) {
        const auto byte = static_cast<unsigned char>(text[at]);
        if ((byte & 0xC0) == 0x80)
            continue;
        if (units >= length)
            break;
        units += byte >= 0xF0 ? 2 : 1;
    }
    sqlite3_result_text64(context, text.data(), at, SQLITE_TRANSIENT, SQLITE_UTF8);
}

void character(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (isNull(arguments[0]))
        return;
    shielded(context, [&] { giveText(context, characterOf(sqlite3_value_int(arguments[0]))); });
}

int collate(void*, int leftBytes, const void* leftText, int rightBytes, const void* rightText)
{
    return compareJetText(
        {static_cast<const char*>(leftText), static_cast<std::size_t>(leftBytes)},
        {static_cast<const char*>(rightText), static_cast<std::size_t>(rightBytes)});
}

std::string_view withoutTrailingBlanks(std::string_view text)
{
    while (text.ends_with(' '))
        text.remove_suffix(1);
    return text;
}

int foldedByte(char byte)
{
    const auto value = static_cast<unsigned char>(byte);
    return value >= 'A' && value <= 'Z' ? value - 'A' + 'a' : value;
}

} // namespace

int compareJetText(std::string_view left, std::string_view right)
{
    left = withoutTrailingBlanks(left);
    right = withoutTrailingBlanks(right);
    const std::size_t shorter = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < shorter; ++i)
        if (const int difference = foldedByte(left[i]) - foldedByte(right[i]); difference != 0)
            return difference;
    return left.size() < right.size() ? -1 : left.size() > right.size() ? 1 : 0;
}

QString characterOf(int code)
{
    constexpr int kLastCode = 0xFFFF;
    if (code < 0 || code > kLastCode)
        throw jetError(ErrorNumber::kInvalidArgument, QString::number(code));
    QByteArray bytes;
    if (code > 0xFF)
        bytes.append(static_cast<char>(code >> 8));
    bytes.append(static_cast<char>(code & 0xFF));
    return fromCodePage949(bytes);
}

void registerJetFunctions(sqlite3* handle)
{
    struct Function
    {
        const char* name;
        int arguments;
        void (*body)(sqlite3_context*, int, sqlite3_value**);
    };
    static constexpr Function kFunctions[] = {
        {"jet_like", 2, like<LikePattern::Case::Exact>},
        {"jet_ilike", 2, like<LikePattern::Case::Folded>},
        {"jet_num", 1, number},
        {"jet_text", 1, asText},
        {"jet_date", 1, asDateText},
        {"jet_left", 2, left},
        {"jet_chr", 1, character},
    };
    int code =
        sqlite3_create_collation_v2(handle, "JETTEXT", SQLITE_UTF8, nullptr, collate, nullptr);
    for (const Function& function : kFunctions)
        if (code == SQLITE_OK)
            code = sqlite3_create_function_v2(handle, function.name, function.arguments,
                                              kFunctionFlags, nullptr, function.body, nullptr,
                                              nullptr, nullptr);
    if (code != SQLITE_OK)
        throwSqliteError(handle, code);
}

} // namespace lumen
