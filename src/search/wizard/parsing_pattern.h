// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <array>

namespace lumen {

/// The code that the parsing wizard builds, a character a position (from 1). "_" stands for any
/// character, "\" ends the code.
class ParsingPattern
{
public:
    static constexpr int kPositions = 24;
    static constexpr QChar kAny{u'_'};

    void set(int position, QChar code) { at(position) = code; }
    void end(int position) { set(position, kEnd); }
    /// Empties the positions from one on.
    void clearFrom(int position);
    /// The characters up to the first end mark or empty position.
    QString code() const;

private:
    static constexpr QChar kEnd{u'\\'};

    QChar& at(int position) { return m_codes.at(static_cast<std::size_t>(position - 1)); }

    std::array<QChar, kPositions> m_codes{}; // a null character is an empty position
};

} // namespace lumen
