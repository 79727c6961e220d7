// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/sql/sql_expression.h"

#include "jet/error.h"
#include "jet/store/field_types.h"
#include "jet/store/functions.h"
#include "jet/store/like_pattern.h"

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

bool isTextColumn(const SqlNode& node, const SqlScope& scope)
{
    return node.kind == NodeKind::Column && isTextType(scope.resolve(node).column->type);
}

bool isLiteral(const SqlNode& node)
{
    return node.kind == NodeKind::Number || node.kind == NodeKind::Date ||
           constantText(node).has_value();
}

/// "a OR b OR c ..." nests to the left in SQLite, which allows a depth of 1000; halves don't.
QString joined(QStringList parts, QStringView word)
{
    while (parts.size() > 1) {
        QStringList pairs;
        for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
            pairs << u"(%1 %2 %3)"_s.arg(parts[i], word, parts[i + 1]);
        if (parts.size() % 2 == 1)
            pairs << parts.last();
        parts = pairs;
    }
    return parts.first();
}

} // namespace

std::optional<QString> constantText(const SqlNode& node)
{
    switch (node.kind) {
    case NodeKind::Text:
        return node.text;
    case NodeKind::Chr:
        if (node.children[0].kind != NodeKind::Number)
            return std::nullopt;
        return characterOf(static_cast<int>(std::clamp(node.children[0].number, -1.0, 65536.0)));
    case NodeKind::Concat: {
        QString whole = u""_s;
        for (const SqlNode& part : node.children) {
            const auto text =
                part.kind == NodeKind::Number ? sqlNumber(part.number) : constantText(part);
            if (!text)
                return std::nullopt;
            whole += *text;
        }
        return whole;
    }
    default:
        return std::nullopt;
    }
}

QString SqlExpression::parameter(const QVariant& value)
{
    m_parameters << value;
    return u'?' + QString::number(m_parameters.size());
}

SqlExpression::ValueKind SqlExpression::kindOf(const SqlNode& node) const
{
    switch (node.kind) {
    case NodeKind::Text:
    case NodeKind::Left:
    case NodeKind::Chr:
    case NodeKind::Concat:
        return ValueKind::Text;
    case NodeKind::Null:
        return ValueKind::Unknown;
    case NodeKind::Date:
        return ValueKind::Date;
    case NodeKind::Column: {
        const FieldType type = m_scope.resolve(node).column->type;
        if (isTextType(type))
            return ValueKind::Text;
        if (type == FieldType::Date)
            return ValueKind::Date;
        return type == FieldType::Binary ? ValueKind::Unknown : ValueKind::Number;
    }
    default:
        return ValueKind::Number;
    }
}

QString SqlExpression::condition(const SqlNode& node)
{
    switch (node.kind) {
    case NodeKind::And:
    case NodeKind::Or: {
        QStringList parts;
        for (const SqlNode& child : node.children)
            parts << condition(child);
        return joined(parts, node.kind == NodeKind::And ? u"AND" : u"OR");
    }
    case NodeKind::Not:
        return u"(NOT %1)"_s.arg(condition(node.children[0]));
    case NodeKind::IsNull:
        return u"(%1 IS NULL)"_s.arg(value(node.children[0]));
    case NodeKind::Compare:
        return comparison(node);
    case NodeKind::Like:
        return like(node);
    default:
        return kindOf(node) == ValueKind::Text ? numberValue(node) : value(node);
    }
}

QString SqlExpression::value(const SqlNode& node)
{
    if (const auto text = constantText(node))
        return parameter(*text);
    switch (node.kind) {
    case NodeKind::Number:
    case NodeKind::Date:
        return parameter(node.number);
    case NodeKind::Null:
        return u"NULL"_s;
    case NodeKind::Column:
        return m_scope.resolve(node).sql();
    case NodeKind::Left:
        return u"jet_left(%1, %2)"_s.arg(textValue(node.children[0]),
                                         numberValue(node.children[1]));
    case NodeKind::Chr:
        return u"jet_chr(%1)"_s.arg(numberValue(node.children[0]));
    case NodeKind::Negate:
        return u"(-%1)"_s.arg(numberValue(node.children[0]));
    case NodeKind::Concat:
        return concatenation(node);
    default:
        // The truth of a condition as a value: true is -1 in this dialect.
        return u"(-%1)"_s.arg(condition(node));
    }
}

QString SqlExpression::numberValue(const SqlNode& node)
{
    if (const auto text = constantText(node)) {
        const auto number = parseNumber(text->toUtf8());
        return number ? parameter(*number) : u"NULL"_s;
    }
    return kindOf(node) == ValueKind::Text ? u"jet_num(%1)"_s.arg(value(node)) : value(node);
}

QString SqlExpression::textValue(const SqlNode& node)
{
    switch (kindOf(node)) {
    case ValueKind::Number:
        return u"jet_text(%1)"_s.arg(value(node));
    case ValueKind::Date:
        return u"jet_date(%1)"_s.arg(value(node));
    default:
        return value(node);
    }
}

QString SqlExpression::concatenation(const SqlNode& node)
{
    QStringList parts;
    for (const SqlNode& child : node.children)
        parts << u"coalesce(%1, '')"_s.arg(textValue(child));
    return joined(parts, u"||");
}

QString SqlExpression::comparison(const SqlNode& node)
{
    const SqlNode& left = node.children[0];
    const SqlNode& right = node.children[1];
    const bool leftText = kindOf(left) == ValueKind::Text;
    const bool rightText = kindOf(right) == ValueKind::Text;
    const bool numbers = (leftText && kindOf(right) != ValueKind::Unknown && !rightText) ||
                         (rightText && kindOf(left) != ValueKind::Unknown && !leftText);
    if (numbers) {
        const QString number = numberValue(left);
        return u"(%1 %2 %3)"_s.arg(number, node.text, numberValue(right));
    }
    const QString collation =
        leftText && rightText && m_compare == StoreCompare::Text ? u" COLLATE JETTEXT"_s : u""_s;
    const QString first = value(left);
    return u"(%1%2 %3 %4)"_s.arg(first, collation, node.text, value(right));
}

QString SqlExpression::like(const SqlNode& node)
{
    const SqlNode& text = node.children[0];
    const auto pattern = constantText(node.children[1]);
    const bool folded = m_compare == StoreCompare::Text;
    if (!pattern) {
        const QString function = folded ? u"jet_ilike"_s : u"jet_like"_s;
        const QString patternSql = textValue(node.children[1]);
        return u"%1(%2, %3)"_s.arg(function, patternSql, textValue(text));
    }
    const LikePattern compiled(*pattern,
                               folded ? LikePattern::Case::Folded : LikePattern::Case::Exact);
    if (folded)
        return u"jet_ilike(%1, %2)"_s.arg(parameter(*pattern), textValue(text));
    if (!isTextColumn(text, m_scope))
        return u"jet_like(%1, %2)"_s.arg(parameter(*pattern), textValue(text));
    return likeColumn(m_scope.resolve(text).sql(), *pattern);
}

/// A pattern on a text column that compares by code point, where literal text can use an index.
QString SqlExpression::likeColumn(const QString& column, const QString& pattern)
{
    const LikePattern compiled(pattern, LikePattern::Case::Exact);
    if (const auto exact = compiled.exactText())
        return u"(%1 = %2)"_s.arg(column, parameter(*exact));
    const QString prefix = compiled.literalPrefix();
    QStringList parts;
    if (!prefix.isEmpty()) {
        parts << u"%1 >= %2"_s.arg(column, parameter(prefix));
        if (const auto end = endOfPrefix(prefix))
            parts << u"%1 < %2"_s.arg(column, parameter(*end));
    }
    if (!compiled.isPrefixOnly())
        parts << u"jet_like(%1, %2)"_s.arg(parameter(pattern), column);
    return parts.size() == 1 && prefix.isEmpty() ? parts.first()
                                                 : u'(' + parts.join(u" AND ") + u')';
}

bool isServedByIndex(const SqlNode& condition, const SqlScope& scope, StoreCompare compare)
{
    if (condition.kind == NodeKind::And)
        return std::any_of(
            condition.children.begin(), condition.children.end(),
            [&](const SqlNode& child) { return isServedByIndex(child, scope, compare); });
    const bool isLike = condition.kind == NodeKind::Like;
    if (!isLike && (condition.kind != NodeKind::Compare || condition.text == u"<>"))
        return false;
    const SqlNode& left = condition.children[0];
    const SqlNode& right = condition.children[1];
    if (left.kind != NodeKind::Column || !isLiteral(right))
        return false;
    const ResolvedColumn column = scope.resolve(left);
    const bool isText = isTextType(column.column->type);
    if (!column.table->startsIndex(column.column->name) ||
        (isText && compare == StoreCompare::Text))
        return false;
    if (!isLike)
        return isText == constantText(right).has_value();
    const LikePattern pattern(constantText(right).value_or(u"*"_s), LikePattern::Case::Exact);
    return isText && (pattern.exactText() || !pattern.literalPrefix().isEmpty());
}

} // namespace lumen
