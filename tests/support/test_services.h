// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "forms/services.h"
#include "jet/engine.h"
#include "platform/files/qt_file_system.h"
#include "platform/files/virtual_drives.h"
#include "platform/registry/registry_store.h"
#include "support/scripted_dialogs.h"
#include "support/scripted_mail_sender.h"
#include "support/scripted_message_boxes.h"
#include "support/scripted_printers.h"
#include "support/test_platform.h"

#include <QString>
#include <QTemporaryDir>

#include <utility>
#include <vector>

namespace lumen {

/// A folder of its own with the program's folder, a disc and the XDG folders in it; sets the XDG
/// variables and puts them back.
class TestFolders
{
public:
    TestFolders();
    ~TestFolders();
    TestFolders(const TestFolders&) = delete;
    TestFolders& operator=(const TestFolders&) = delete;

    /// The root of drive C:, native.
    QString root() const { return m_folder.path(); }
    /// "<root>/lumenscript", with an empty folder Data.
    QString program() const;
    /// What drive D: shows; not made until a test puts something there.
    QString disc() const;
    /// The native path of a file in the program's folder Data.
    QString data(const QString& name) const;

private:
    QTemporaryDir m_folder;
    std::vector<std::pair<const char*, QByteArray>> m_former; // variables as they were
};

/// Everything a window asks of the world, scripted where a user would answer and real where files
/// and databases are worked on. AppPath is "C:\lumenscript", the settings are in memory.
class TestServices
{
public:
    /// `withDisc` adds drive D:, a CD-ROM that shows folders.disc().
    explicit TestServices(bool withDisc = false);

    TestFolders folders;
    VirtualDrives drives;
    JetEngine jet;
    QtFileSystem files;
    RegistryStore registry{QString()};
    ScriptedMessageBoxes messages;
    ScriptedFileDialogs fileDialogs;
    ScriptedModal modal;
    FixedClock clock;
    RecordingShell shell;
    MemoryClipboard clipboard;
    FixedProcessList processes;
    TestFonts fonts;
    RecordingHelp help;
    ScriptedMailSender mail;
    MemorySecretStore secrets;
    ScriptedPrinters printers;
    /// AppPath and CdDrive are set; installed is what CheckData makes of the folder when asked.
    AppState state;

    Services services;
};

} // namespace lumen
