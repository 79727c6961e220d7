// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "import/jet_table.h"

#include <QVariant>

namespace lumen {

/// The type and size of a store's column for a column of a Jet file.
ColumnDef storeColumn(const JetColumn& column, bool isJet3);

/// Turns raw fields into values: text, integers, doubles, bytes. A null QVariant is Null.
class JetValues
{
public:
    explicit JetValues(JetHandle& file) : m_file(file) {}

    QVariant value(const JetColumn& column, const RawField& field);
    /// How many values so far were cut, or too short for their type and taken as Null.
    int damaged() const { return m_damaged; }

private:
    QVariant fixedValue(int type, const QByteArray& bytes) const;
    QByteArray longValue(const QByteArray& field);
    QByteArray chain(PageRow first, qint64 length);
    QVariant text(const QByteArray& bytes) const { return m_file.decode(bytes); }

    JetHandle& m_file;
    int m_damaged = 0;
};

} // namespace lumen
