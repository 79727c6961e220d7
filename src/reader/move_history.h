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

    /// Takes a move over: `reference` as it was typed, `entry` the short reference it led to.
    /// True when the entry was added, as the first.
    bool add(const QString& reference, const QString& entry);
    const QStringList& entries() const { return m_entries; }

private:
    QStringList m_entries;
};

} // namespace lumen
