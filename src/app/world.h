// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/services.h"
#include "jet/engine.h"
#include "platform/dialogs/file_html_help.h"
#include "platform/dialogs/qt_clipboard.h"
#include "platform/dialogs/qt_file_dialogs.h"
#include "platform/dialogs/qt_message_boxes.h"
#include "platform/dialogs/qt_modal.h"
#include "platform/files/app_fonts.h"
#include "platform/files/desktop_shell.h"
#include "platform/files/proc_process_list.h"
#include "platform/files/qt_file_system.h"
#include "platform/files/system_clock.h"
#include "platform/files/virtual_drives.h"
#include "platform/mail/curl_mail_sender.h"
#include "platform/mail/desktop_secret_store.h"
#include "platform/printing/qt_printers.h"
#include "platform/registry/registry_store.h"

namespace lumen {

/// The real world of the program: the machine's drives, files, database engine, settings and
/// dialogs, and the Services that name them.
class World
{
public:
    explicit World(DriveFolders folders);

    /// The native path of the program's folder.
    const QString& programFolder() const { return m_programFolder; }
    Services& services() { return m_services; }
    VirtualDrives& drives() { return m_drives; }

private:
    QString m_programFolder;
    VirtualDrives m_drives;
    JetEngine m_jet;
    QtFileSystem m_files;
    RegistryStore m_registry;
    SystemClock m_clock;
    DesktopShell m_shell;
    ProcProcessList m_processes;
    AppFonts m_fonts;
    QtMessageBoxes m_messages;
    QtFileDialogs m_fileDialogs;
    QtModal m_modal;
    QtClipboard m_clipboard;
    FileHtmlHelp m_help;
    CurlMailSender m_mail;
    DesktopSecretStore m_secrets;
    QtPrinters m_printers;
    Services m_services;
};

} // namespace lumen
