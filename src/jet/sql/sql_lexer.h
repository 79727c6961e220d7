// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace lumen {

enum class TokenKind {
    Word,   ///< a name or keyword as it stands
    Name,   ///< a name that stood in brackets
    Text,   ///< a literal, its doubled quotes undone
    Number, ///< in `number`
    Date,   ///< in `number`, as a day number
    Symbol, ///< = <> < <= > >= ( ) , . * & - ;
    End
};

struct Token
{
    TokenKind kind = TokenKind::End;
    QString text;
    double number = 0;
    qsizetype position = 0; ///< of its first character
};

/// The tokens of a query or criterion, End last. Errors: 3126 for an open bracket, 3075 for an open
/// quote, a date that is none and characters that begin nothing.
std::vector<Token> tokenize(const QString& sql);

} // namespace lumen
