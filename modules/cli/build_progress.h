// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <mutex>
#include <vector>

namespace lumen {

/// Shows how far the work has come: on a terminal one line that renews itself, elsewhere only the
/// lines of finished modules. May be called from several threads.
class BuildProgress
{
public:
    enum class Output { Terminal, Plain };

    explicit BuildProgress(std::size_t modules, Output output = standardOutput());

    /// The share of one module that is done, 0 to 1; `label` names it.
    void advance(std::size_t module, double share, const QString& label);
    /// A finished module with its line.
    void finish(std::size_t module, const QString& line);
    /// Of all modules, 0 to 100.
    int percent() const;

private:
    static Output standardOutput();
    int percentLocked() const;

    mutable std::mutex m_mutex;
    std::vector<double> m_shares;
    Output m_output;
};

} // namespace lumen
