// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace lumen {

/// The moves that the quick-move list offers again, newest first.
class MoveHistory
{
public:
    static constexpr int kMaxEntries = 30;

    /// Takes over the short reference that a move led to, however it was typed. True when it was
    /// added, as the first; a place that is there already stays where it is.
    bool add(const QString& entry);
    const QStringList& entries() const { return m_entries; }

private:
    QStringList m_entries;
};

} // namespace lumen
