// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/sql/sql_parser.h"

#include "jet/error.h"
#include "jet/sql/sql_lexer.h"

#include <algorithm>
#include <array>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kDeepestNesting = 200; // parentheses; far beyond any query, far below the stack

constexpr std::array<QStringView, 22> kKeywords{
    u"SELECT", u"DISTINCT", u"INTO",  u"FROM", u"WHERE", u"UNION", u"ALL",  u"ORDER",
    u"BY",     u"AS",       u"INNER", u"JOIN", u"ON",    u"ASC",   u"DESC", u"DELETE",
    u"OR",     u"AND",      u"NOT",   u"LIKE", u"IS",    u"NULL"};
constexpr std::array<QStringView, 6> kCompareOperators{u"=", u"<>", u"<", u"<=", u">", u">="};

bool isKeyword(const QString& word)
{
    const auto same = [&word](QStringView keyword) {
        return word.compare(keyword, Qt::CaseInsensitive) == 0;
    };
    return std::any_of(kKeywords.begin(), kKeywords.end(), same) || same(u"TRUE") || same(u"FALSE");
}

class Parser
{
public:
    explicit Parser(const QString& sql) : m_sql(sql), m_tokens(tokenize(sql)) {}

    SqlTree statement()
    {
        SqlTree tree = isWord(u"DELETE") ? SqlTree(deletion()) : SqlTree(selection());
        takeSymbol(u";");
        expectEnd();
        return tree;
    }

    SqlNode criterion()
    {
        SqlNode node = anyOf();
        expectEnd();
        return node;
    }

private:
    const Token& current() const { return m_tokens[m_at]; }

    [[noreturn]] void fail() const { throw jetError(m_error, m_sql.mid(current().position)); }

    void expectEnd() const
    {
        if (current().kind != TokenKind::End)
            fail();
    }

    bool isWord(QStringView word, std::size_t ahead = 0) const
    {
        const std::size_t at = std::min(m_at + ahead, m_tokens.size() - 1);
        return m_tokens[at].kind == TokenKind::Word &&
               m_tokens[at].text.compare(word, Qt::CaseInsensitive) == 0;
    }

    bool isSymbol(QStringView symbol, std::size_t ahead = 0) const
    {
        const std::size_t at = std::min(m_at + ahead, m_tokens.size() - 1);
        return m_tokens[at].kind == TokenKind::Symbol && m_tokens[at].text == symbol;
    }

    bool takeWord(QStringView word)
    {
        const bool found = isWord(word);
        m_at += found ? 1 : 0;
        return found;
    }

    bool takeSymbol(QStringView symbol)
    {
        const bool found = isSymbol(symbol);
        m_at += found ? 1 : 0;
        return found;
    }

    void expectWord(QStringView word)
    {
        if (!takeWord(word))
            fail();
    }

    void expectSymbol(QStringView symbol)
    {
        if (!takeSymbol(symbol))
            fail();
    }

    QString name()
    {
        const Token& token = current();
        const bool plain = token.kind == TokenKind::Word && !isKeyword(token.text);
        if (!plain && token.kind != TokenKind::Name)
            fail();
        ++m_at;
        return token.text;
    }

    SqlNode column()
    {
        SqlNode node{NodeKind::Column, name(), {}, 0, {}};
        if (takeSymbol(u".")) {
            node.table = node.text;
            node.text = name();
        }
        return node;
    }

    SelectStatement selection()
    {
        SelectStatement statement;
        statement.cores.push_back(core());
        while (takeWord(u"UNION")) {
            m_error = ErrorNumber::kCriterionSyntax;
            statement.unionAll = takeWord(u"ALL");
            statement.cores.push_back(core());
        }
        if (takeWord(u"ORDER")) {
            m_error = ErrorNumber::kCriterionSyntax;
            expectWord(u"BY");
            do {
                OrderItem item{column(), false};
                item.descending = takeWord(u"DESC");
                if (!item.descending)
                    takeWord(u"ASC");
                statement.order.push_back(std::move(item));
            } while (takeSymbol(u","));
        }
        return statement;
    }

    SelectCore core()
    {
        SelectCore result;
        expectWord(u"SELECT");
        result.distinct = takeWord(u"DISTINCT");
        if (!takeSymbol(u"*"))
            do {
                SelectItem item{column(), {}};
                if (takeWord(u"AS"))
                    item.alias = name();
                result.items.push_back(std::move(item));
            } while (takeSymbol(u","));
        if (takeWord(u"INTO"))
            result.into = name();
        expectWord(u"FROM");
        source(result);
        result.where = where();
        return result;
    }

    void source(SelectCore& target)
    {
        m_error = ErrorNumber::kFromSyntax;
        target.table = name();
        if (!takeWord(u"INNER"))
            return;
        expectWord(u"JOIN");
        target.joined = name();
        expectWord(u"ON");
        m_error = ErrorNumber::kCriterionSyntax;
        target.on = anyOf();
    }

    std::optional<SqlNode> where()
    {
        if (!takeWord(u"WHERE"))
            return std::nullopt;
        m_error = ErrorNumber::kCriterionSyntax;
        return anyOf();
    }

    DeleteStatement deletion()
    {
        DeleteStatement statement;
        expectWord(u"DELETE");
        takeSymbol(u"*");
        expectWord(u"FROM");
        m_error = ErrorNumber::kFromSyntax;
        statement.table = name();
        statement.where = where();
        return statement;
    }

    SqlNode anyOf() { return chain(NodeKind::Or, u"OR", &Parser::allOf); }
    SqlNode allOf() { return chain(NodeKind::And, u"AND", &Parser::negation); }

    SqlNode chain(NodeKind kind, QStringView word, SqlNode (Parser::*part)())
    {
        SqlNode first = (this->*part)();
        if (!isWord(word))
            return first;
        SqlNode node{kind, {}, {}, 0, {}};
        node.children.push_back(std::move(first));
        while (takeWord(word))
            node.children.push_back((this->*part)());
        return node;
    }

    static SqlNode wrap(NodeKind kind, SqlNode child)
    {
        SqlNode node{kind, {}, {}, 0, {}};
        node.children.push_back(std::move(child));
        return node;
    }

    SqlNode negation()
    {
        if (!takeWord(u"NOT"))
            return predicate();
        const Nesting nesting(*this);
        return wrap(NodeKind::Not, negation());
    }

    SqlNode predicate()
    {
        SqlNode left = concatenation();
        for (const QStringView symbol : kCompareOperators)
            if (takeSymbol(symbol)) {
                SqlNode node = wrap(NodeKind::Compare, std::move(left));
                node.text = symbol.toString();
                node.children.push_back(concatenation());
                return node;
            }
        if (takeWord(u"IS")) {
            const bool negated = takeWord(u"NOT");
            expectWord(u"NULL");
            SqlNode node = wrap(NodeKind::IsNull, std::move(left));
            return negated ? wrap(NodeKind::Not, std::move(node)) : node;
        }
        const bool negated = isWord(u"NOT") && isWord(u"LIKE", 1) && takeWord(u"NOT");
        if (!takeWord(u"LIKE"))
            return left;
        SqlNode node = wrap(NodeKind::Like, std::move(left));
        node.children.push_back(concatenation());
        return negated ? wrap(NodeKind::Not, std::move(node)) : node;
    }

    SqlNode concatenation()
    {
        SqlNode first = primary();
        if (!isSymbol(u"&"))
            return first;
        SqlNode node = wrap(NodeKind::Concat, std::move(first));
        while (takeSymbol(u"&"))
            node.children.push_back(primary());
        return node;
    }

    SqlNode primary()
    {
        const Nesting nesting(*this);
        if (takeSymbol(u"-"))
            return wrap(NodeKind::Negate, primary());
        if (takeSymbol(u"(")) {
            SqlNode inner = anyOf();
            expectSymbol(u")");
            return inner;
        }
        if (takeWord(u"NULL"))
            return {};
        if (takeWord(u"TRUE"))
            return {NodeKind::Number, {}, {}, -1, {}};
        if (takeWord(u"FALSE"))
            return {NodeKind::Number, {}, {}, 0, {}};
        if (isSymbol(u"(", 1) && (isWord(u"Left") || isWord(u"Left$")))
            return function(NodeKind::Left, 2);
        if (isSymbol(u"(", 1) && (isWord(u"Chr") || isWord(u"Chr$")))
            return function(NodeKind::Chr, 1);
        return literalOrColumn();
    }

    SqlNode literalOrColumn()
    {
        const Token& token = current();
        switch (token.kind) {
        case TokenKind::Text:
            ++m_at;
            return {NodeKind::Text, token.text, {}, 0, {}};
        case TokenKind::Number:
            ++m_at;
            return {NodeKind::Number, {}, {}, token.number, {}};
        case TokenKind::Date:
            ++m_at;
            return {NodeKind::Date, {}, {}, token.number, {}};
        default:
            return column();
        }
    }

    SqlNode function(NodeKind kind, std::size_t arguments)
    {
        SqlNode node{kind, {}, {}, 0, {}};
        m_at += 2;
        if (!isSymbol(u")"))
            do {
                node.children.push_back(concatenation());
            } while (takeSymbol(u","));
        expectSymbol(u")");
        if (node.children.size() != arguments)
            fail();
        return node;
    }

    /// Counts how deep expressions stand in each other, so that no query exhausts the stack.
    class Nesting
    {
    public:
        explicit Nesting(Parser& parser) : m_parser(parser)
        {
            if (++m_parser.m_depth > kDeepestNesting)
                m_parser.fail();
        }
        ~Nesting() { --m_parser.m_depth; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;

    private:
        Parser& m_parser;
    };

    const QString& m_sql;
    std::vector<Token> m_tokens;
    std::size_t m_at = 0;
    int m_depth = 0;
    int m_error = ErrorNumber::kCriterionSyntax;
};

} // namespace

SqlTree parseStatement(const QString& sql)
{
    return Parser(sql).statement();
}

SqlNode parseCriterion(const QString& criterion)
{
    return Parser(criterion).criterion();
}

} // namespace lumen
