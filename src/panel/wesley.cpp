// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/wesley.h"

#include "canon/canon_table.h"
#include "forms/wait_pointer.h"
#include "jet/rows/recordset.h"
#include "text/field_scramble.h"

#include <QVBoxLayout>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kModule = u"\\Data\\Wesley.dts";

} // namespace

Wesley::Wesley(const PanelHost& host) : ModuleTab(host, kModule, &InstalledFlags::wesley)
{
    tx웨슬리주석본문->setReadOnly(true);
    auto* layout = new QVBoxLayout(m_page);
    layout->addWidget(tx웨슬리주석본문);
}

void Wesley::enter()
{
    tell(QString());
    takeStock();
    Proc웨슬리주석표시();
}

void Wesley::Proc웨슬리주석표시()
{
    const std::optional<VersePlace> place = readerPlace();
    if (!m_host.state.installed.wesley || !place)
        return;
    const Chapter chapter{place->book, place->chapter};
    if (chapter == m_shown)
        return;
    m_shown = chapter;
    const WaitPointer wait;
    // Before the query: one that fails leaves no notes of another chapter.
    tx웨슬리주석본문->setText(QString());
    Recordset& rows =
        ask(u"select * from Wesley where book like '"_s +
            DES::ScrambleField(bookAbbreviation(place->book)) + u"' and Chap like '"_s +
            DES::ScrambleField(QString::number(place->chapter)) + u"'"_s);
    if (rows.RecordCount() > 0)
        tx웨슬리주석본문->setText(Text(rows.Fields(u"cont")));
}

} // namespace lumen
