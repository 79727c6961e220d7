// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/dialogs/file_dialogs.h"
#include "platform/dialogs/modal.h"

#include <QDialog>
#include <QList>

#include <functional>
#include <optional>

namespace lumen {

/// Answers the common dialogs from queues. A dialog without a queued answer fails the test and is
/// cancelled; so does an answer that was never asked for.
class ScriptedFileDialogs : public FileDialogs
{
public:
    ~ScriptedFileDialogs() override;

    std::optional<QString> save(QWidget* parent, const SaveRequest& request) override;
    std::optional<RgbLong> color(QWidget* parent, RgbLong color) override;

    /// The answer of the next save dialog, nothing for a cancel.
    void answerSave(std::optional<QString> path) { m_saves.append(std::move(path)); }
    void answerColor(std::optional<RgbLong> color) { m_colors.append(color); }
    /// What the dialogs were asked with.
    QList<SaveRequest> saveRequests;
    QList<RgbLong> colorRequests;

private:
    QList<std::optional<QString>> m_saves;
    QList<std::optional<RgbLong>> m_colors;
};

/// Runs modal dialogs as a test scripts them: the dialog is shown, the queued function does what a
/// user would and the dialog is closed. Without a queued function the test fails and the dialog is
/// rejected; a function that was never used fails too.
class ScriptedModal : public Modal
{
public:
    ~ScriptedModal() override;

    int run(QDialog& dialog) override;
    void letEventsRun() override;

    /// The user's part in the next dialog. When it doesn't end the dialog, that is rejected.
    void expect(std::function<void(QDialog&)> user) { m_users.append(std::move(user)); }
    /// What a test looks at when a long work has let events run.
    std::function<void()> whileEventsRun;
    /// The object names of the dialogs that ran.
    QStringList shown;

private:
    QList<std::function<void(QDialog&)>> m_users;
};

} // namespace lumen
