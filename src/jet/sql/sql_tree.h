// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <optional>
#include <variant>
#include <vector>

namespace lumen {

enum class NodeKind {
    Text,    ///< literal in `text`
    Number,  ///< literal in `number`; TRUE is -1, FALSE is 0
    Date,    ///< literal in `number`
    Null,    ///< the literal
    Column,  ///< `text`, of the table `table` when that isn't ""
    Left,    ///< two children
    Chr,     ///< one child
    Negate,  ///< one child
    Concat,  ///< two or more children
    Compare, ///< two children and the operator in `text`
    Like,    ///< text and pattern
    IsNull,  ///< one child
    Not,     ///< one child
    And,     ///< two or more children
    Or       ///< two or more children
};

/// An expression of a query.
struct SqlNode
{
    NodeKind kind = NodeKind::Null;
    QString text;
    QString table;
    double number = 0;
    std::vector<SqlNode> children;
};

struct SelectItem
{
    SqlNode column;
    QString alias; ///< "" without AS
};

/// One SELECT without its UNION partners and ORDER BY.
struct SelectCore
{
    bool distinct = false;
    std::vector<SelectItem> items; ///< none for "*"
    QString into;
    QString table;
    QString joined; ///< the second table of an INNER JOIN
    std::optional<SqlNode> on;
    std::optional<SqlNode> where;
};

struct OrderItem
{
    SqlNode column;
    bool descending = false;
};

struct SelectStatement
{
    std::vector<SelectCore> cores;
    bool unionAll = false;
    std::vector<OrderItem> order;
};

struct DeleteStatement
{
    QString table;
    std::optional<SqlNode> where;
};

using SqlTree = std::variant<SelectStatement, DeleteStatement>;

} // namespace lumen
