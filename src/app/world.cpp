// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/world.h"

#include "data/user_files.h"
#include "platform/registry/registry_store.h"

namespace lumen {

World::World(DriveFolders folders)
    : m_programFolder(folders.program), m_drives(std::move(folders)),
      m_jet(m_drives, filePolicy, importOptions()), m_files(m_drives, m_jet),
      m_registry(settingsFile()), m_shell(m_drives),
      m_fonts(m_drives, programFontFolders(m_programFolder)),
      m_help(m_shell, helpFolders(m_programFolder)),
      m_services{m_messages, m_fileDialogs, m_modal,     m_clock,   m_shell, m_clipboard,
                 m_drives,   m_files,       m_processes, m_fonts,   m_help,  m_registry,
                 m_jet,      m_mail,        m_secrets,   m_printers}
{
}

} // namespace lumen
