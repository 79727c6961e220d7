// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace lumen {

/// The string tokeniser: text in, field separator set, fields out by a one-based number.
class VsAwk
{
public:
    /// Any text; "" (as at first) parts at runs of blanks and tabs.
    void setFS(const QString& separator);
    void setText(const QString& text);

    /// The number of fields; 0 for an empty text.
    int NF() const { return static_cast<int>(m_fields.size()); }
    /// Field 0 is the whole text; "" beyond the last one.
    QString F(int number) const;

private:
    void divide();

    QString m_separator;
    QString m_text;
    QStringList m_fields;
};

} // namespace lumen
