// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/sql/sql_lexer.h"

#include "jet/error.h"
#include "jet/store/field_types.h"

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

/// Walks over the text once; every read... leaves m_at behind what it read.
class Lexer
{
public:
    explicit Lexer(const QString& sql) : m_sql(sql) {}

    std::vector<Token> run()
    {
        std::vector<Token> tokens;
        do {
            tokens.push_back(next());
        } while (tokens.back().kind != TokenKind::End);
        return tokens;
    }

private:
    bool atEnd() const { return m_at >= m_sql.size(); }
    QChar current() const { return atEnd() ? QChar() : m_sql[m_at]; }

    [[noreturn]] void fail(qsizetype position, int number = ErrorNumber::kCriterionSyntax) const
    {
        throw jetError(number, m_sql.mid(position));
    }

    static bool isDigit(QChar character) { return character >= u'0' && character <= u'9'; }

    /// Length in UTF-16 units of the letter that stands here, 0 for anything else.
    qsizetype letterLength() const
    {
        const QChar first = current();
        if (first.isHighSurrogate() && m_at + 1 < m_sql.size()) {
            const QChar second = m_sql[m_at + 1];
            return second.isLowSurrogate() && QChar::isLetter(QChar::surrogateToUcs4(first, second))
                       ? 2
                       : 0;
        }
        return first.isLetter() || first == u'_' ? 1 : 0;
    }

    Token next()
    {
        while (!atEnd() && (current() == u' ' || (current() >= u'\t' && current() <= u'\r')))
            ++m_at;
        Token token{TokenKind::End, {}, 0, m_at};
        if (atEnd())
            return token;
        const QChar first = current();
        if (letterLength() > 0)
            readWord(token);
        else if (isDigit(first))
            readNumber(token);
        else if (first == u'\'' || first == u'"')
            readText(token);
        else if (first == u'[')
            readBracketed(token);
        else if (first == u'#')
            readDate(token);
        else
            readSymbol(token);
        return token;
    }

    void readWord(Token& token)
    {
        token.kind = TokenKind::Word;
        for (;;) {
            if (const qsizetype length = letterLength(); length > 0 && !atEnd())
                m_at += length;
            else if (!atEnd() && (isDigit(current()) || current() == u'$'))
                ++m_at;
            else
                break;
        }
        token.text = m_sql.mid(token.position, m_at - token.position);
    }

    void skipDigits()
    {
        while (!atEnd() && isDigit(current()))
            ++m_at;
    }

    void readNumber(Token& token)
    {
        token.kind = TokenKind::Number;
        skipDigits();
        if (current() == u'.') {
            ++m_at;
            skipDigits();
        }
        if (current() == u'e' || current() == u'E') {
            ++m_at;
            if (current() == u'+' || current() == u'-')
                ++m_at;
            if (!isDigit(current()))
                fail(token.position);
            skipDigits();
        }
        if (!atEnd() && letterLength() > 0)
            fail(token.position);
        const auto number = parseNumber(m_sql.mid(token.position, m_at - token.position).toUtf8());
        if (!number)
            fail(token.position);
        token.number = *number;
    }

    void readText(Token& token)
    {
        const QChar quote = current();
        token.kind = TokenKind::Text;
        token.text = u""_s;
        for (++m_at; !atEnd(); ++m_at) {
            if (current() == quote) {
                ++m_at;
                if (current() != quote)
                    return;
            }
            token.text += current();
        }
        fail(token.position);
    }

    void readBracketed(Token& token)
    {
        const qsizetype close = m_sql.indexOf(u']', m_at);
        if (close < 0 || close == m_at + 1)
            fail(token.position, ErrorNumber::kBracketSyntax);
        token.kind = TokenKind::Name;
        token.text = m_sql.mid(m_at + 1, close - m_at - 1);
        m_at = close + 1;
    }

    void readDate(Token& token)
    {
        const qsizetype close = m_sql.indexOf(u'#', m_at + 1);
        const auto day =
            close < 0 ? std::nullopt : parseDate(m_sql.mid(m_at + 1, close - m_at - 1));
        if (!day)
            fail(token.position);
        token.kind = TokenKind::Date;
        token.number = *day;
        m_at = close + 1;
    }

    void readSymbol(Token& token)
    {
        token.kind = TokenKind::Symbol;
        for (const QStringView symbol : {u"<>", u"<=", u">=", u"<", u">", u"=", u"(", u")", u",",
                                         u".", u"*", u"&", u"-", u";"})
            if (QStringView(m_sql).sliced(m_at).startsWith(symbol)) {
                token.text = symbol.toString();
                m_at += symbol.size();
                return;
            }
        fail(token.position);
    }

    const QString& m_sql;
    qsizetype m_at = 0;
};

} // namespace

std::vector<Token> tokenize(const QString& sql)
{
    return Lexer(sql).run();
}

} // namespace lumen
