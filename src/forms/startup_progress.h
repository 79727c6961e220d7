// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace lumen {

/// The splash window of the start, as the reader's loading sees it.
class StartupProgress
{
public:
    virtual ~StartupProgress() = default;

    virtual void showSplash() = 0;
    /// Percent, 0 to 100.
    virtual void setProgress(int percent) = 0;
    virtual void hideSplash() = 0;
};

} // namespace lumen
