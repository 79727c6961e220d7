// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class QDialog;

namespace lumen {

/// Runs dialogs modally, so that tests can script what a user does in them.
class Modal
{
public:
    virtual ~Modal() = default;
    /// QDialog::Accepted or Rejected.
    virtual int run(QDialog& dialog) = 0;
    /// Lets pending events run once, without waiting for new ones.
    virtual void letEventsRun() = 0;
};

} // namespace lumen
