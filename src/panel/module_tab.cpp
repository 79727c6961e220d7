// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/module_tab.h"

#include "data/module_path.h"
#include "forms/module_query.h"
#include "forms/reader_place.h"
#include "forms/services.h"

namespace lumen {

ModuleTab::ModuleTab(const PanelHost& host, QStringView module, Flag installed)
    : m_host(host), m_page(new QWidget), m_module(module), m_installed(installed)
{
}

bool ModuleTab::takeStock()
{
    const bool installed = m_installed != nullptr
                               ? m_host.state.installed.*m_installed
                               : moduleExists(m_host.services.files, m_host.state, m_module);
    m_page->setEnabled(installed);
    if (!installed)
        tell(QString());
    return installed;
}

Recordset& ModuleTab::ask(const QString& query)
{
    return askModule(m_host.dacRefTab, m_host.services, m_host.state, m_module, query);
}

void ModuleTab::tell(const QString& status) const
{
    if (setStatus)
        setStatus(status);
}

std::optional<VersePlace> ModuleTab::readerPlace() const
{
    const int verse = m_host.reader.GetCurVerse();
    if (verse < 1)
        return {};
    return VersePlace{m_host.reader.book(), m_host.reader.chapter(), verse};
}

} // namespace lumen
