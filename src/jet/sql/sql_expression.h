// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/sql/sql_scope.h"
#include "jet/store/file_policy.h"

#include <QString>
#include <QVariantList>

namespace lumen {

/// Writes expressions of a query as SQLite takes them. Literals become numbered parameters, names
/// are those that the scope finds, so nothing of the caller's text reaches SQLite as it is.
class SqlExpression
{
public:
    SqlExpression(const SqlScope& scope, StoreCompare compare, QVariantList& parameters)
        : m_scope(scope), m_compare(compare), m_parameters(parameters)
    {
    }

    /// An expression whose truth counts, in parentheses where need be. Error 93 for a bad pattern,
    /// 3061, 3078.
    QString condition(const SqlNode& node);

private:
    enum class ValueKind { Text, Number, Date, Unknown };

    ValueKind kindOf(const SqlNode& node) const;
    QString parameter(const QVariant& value);
    QString value(const SqlNode& node);
    /// A value for a comparison with one of the other kind: texts become numbers.
    QString numberValue(const SqlNode& node);
    QString textValue(const SqlNode& node);
    QString concatenation(const SqlNode& node);
    QString comparison(const SqlNode& node);
    QString like(const SqlNode& node);
    QString likeColumn(const QString& column, const QString& pattern);

    const SqlScope& m_scope;
    StoreCompare m_compare;
    QVariantList& m_parameters;
};

/// The text of a literal or of literals and Chr codes joined by "&"; nothing for all else.
std::optional<QString> constantText(const SqlNode& node);

/// True when an index of the table narrows the condition, so that no full scan is needed.
bool isServedByIndex(const SqlNode& condition, const SqlScope& scope, StoreCompare compare);

} // namespace lumen
