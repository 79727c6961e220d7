// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/vs_awk.h"

#include <QRegularExpression>

namespace lumen {

void VsAwk::setFS(const QString& separator)
{
    m_separator = separator;
    divide();
}

void VsAwk::setText(const QString& text)
{
    m_text = text;
    divide();
}

QString VsAwk::F(int number) const
{
    return number == 0 ? m_text : m_fields.value(number - 1);
}

void VsAwk::divide()
{
    static const QRegularExpression blanks(QStringLiteral("[ \t]+"));
    if (m_text.isEmpty())
        m_fields.clear();
    else if (m_separator.isEmpty())
        m_fields = m_text.split(blanks, Qt::SkipEmptyParts);
    else
        m_fields = m_text.split(m_separator);
}

} // namespace lumen
