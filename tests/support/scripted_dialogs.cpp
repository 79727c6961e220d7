// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/scripted_dialogs.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

namespace lumen {

ScriptedFileDialogs::~ScriptedFileDialogs()
{
    EXPECT_EQ(m_saves.size(), 0) << "a save dialog never came";
    EXPECT_EQ(m_colors.size(), 0) << "a colour dialog never came";
}

std::optional<QString> ScriptedFileDialogs::save(QWidget* /*parent*/, const SaveRequest& request)
{
    saveRequests << request;
    if (!m_saves.isEmpty())
        return m_saves.takeFirst();
    ADD_FAILURE() << "unexpected save dialog: " << request.title.toStdString();
    return {};
}

std::optional<RgbLong> ScriptedFileDialogs::color(QWidget* /*parent*/, RgbLong color)
{
    colorRequests << color;
    if (!m_colors.isEmpty())
        return m_colors.takeFirst();
    ADD_FAILURE() << "unexpected colour dialog";
    return {};
}

ScriptedModal::~ScriptedModal()
{
    EXPECT_EQ(m_users.size(), 0) << "a modal dialog never came";
}

int ScriptedModal::run(QDialog& dialog)
{
    shown << dialog.objectName();
    if (m_users.isEmpty()) {
        ADD_FAILURE() << "unexpected modal dialog: " << dialog.objectName().toStdString();
        return QDialog::Rejected;
    }
    const auto user = m_users.takeFirst();
    dialog.setModal(true);
    dialog.show();
    user(dialog);
    if (dialog.isVisible())
        dialog.reject();
    return dialog.result();
}

void ScriptedModal::letEventsRun()
{
    QCoreApplication::processEvents();
    if (whileEventsRun)
        whileEventsRun();
}

} // namespace lumen
