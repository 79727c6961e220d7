// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/cross_references.h"

#include "canon/verse_index.h"
#include "data/chapter_reader.h"
#include "forms/guarded.h"
#include "forms/reader_place.h"
#include "forms/wait_pointer.h"
#include "jet/data_control.h"
#include "text/field_scramble.h"

#include <QHBoxLayout>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kModule = u"\\Data\\CRef.dts";
constexpr QStringView kNoReferences = u"관주 없음";

/// The references as keys; a ";" at the end adds none.
QStringList keysOf(const QString& references)
{
    QStringList parts = references.split(u';');
    if (parts.last().isEmpty())
        parts.removeLast();
    for (QString& part : parts)
        part = BibleCode::RefToIndex(part);
    return parts;
}

} // namespace

CrossReferences::CrossReferences(const PanelHost& host)
    : ModuleTab(host, kModule, &InstalledFlags::cRef), m_verse(*tx관주본문, host.state.fonts)
{
    lst정렬->setSorted(true);
    lst정렬->setParent(m_page);
    lst정렬->hide();
    auto* layout = new QHBoxLayout(m_page);
    lst관주목록->keepRoomFor(u"왕하00:00"_s);
    layout->addWidget(lst관주목록, 1);
    layout->addWidget(tx관주본문, 2);

    lst관주목록->onClick = [this] { guarded(m_host.services, m_page, [this] { DispCRefCont(); }); };
    lst관주목록->onDblClick = [this] { openChosen(); };
}

void CrossReferences::Proc관주표시()
{
    if (!takeStock())
        return;
    const std::optional<VersePlace> place = readerPlace();
    if (!place)
        return;
    if (place == m_shown) {
        // "관주 없음" is an item too: coming back to such a verse tells 1.
        if (lst관주목록->ListCount() > 0)
            tellCount();
        return;
    }
    const WaitPointer wait;
    m_shown = place;
    // Before the query: one that fails leaves no references of another verse.
    ClearCRefArea();
    Recordset& rows = ask(u"select cref from cref where chap = '"_s +
                          BibleCode::GetChapKey(place->book, place->chapter) + u"' and verse = "_s +
                          QString::number(place->verse));
    if (rows.RecordCount() > 0 && !Text(rows.Fields(u"cref")).isEmpty())
        FillCRefArea();
    else
        lst관주목록->AddItem(kNoReferences.toString());
}

void CrossReferences::ClearCRefArea()
{
    lst관주목록->Clear();
    lst정렬->Clear();
    m_verse.show({}, 0);
    tell(QString());
}

void CrossReferences::FillCRefArea()
{
    Recordset& rows = *m_host.dacRefTab.Recordset();
    rows.MoveFirst();
    lst정렬->Clear();
    for (const QString& key : keysOf(DES::UnscrambleField(Text(rows.Fields(u"cref")))))
        lst정렬->AddItem(key);
    QStringList references;
    for (int i = 0; i < lst정렬->ListCount(); ++i)
        references << BibleCode::IndexToRef(lst정렬->List(i));
    lst관주목록->AddItems(references);
    lst관주목록->setListIndex(0);
    tellCount();
}

void CrossReferences::tellCount()
{
    tell(u"검색된 관주 수: "_s + QString::number(lst관주목록->ListCount()));
}

void CrossReferences::DispCRefCont()
{
    const QString reference = lst관주목록->Text();
    if (reference.isEmpty() || reference == kNoReferences)
        return;
    const WaitPointer wait;
    const std::optional<QString> verse = readVerse(BibleCode::RefToIndex(reference));
    m_verse.show(verse.value_or(QString()), m_host.reader.versionCode(0));
}

std::optional<QString> CrossReferences::readVerse(const QString& key) const
{
    // By a recordset of its own: the one of the data control is the chapter that the reader shows,
    // and moves and bookmarks count its rows.
    Database* const module = m_host.baseModule();
    if (module == nullptr || module->isClosed())
        return {};
    const auto rows = module->OpenRecordset(u"select * from ["_s + m_host.reader.versionName(0) +
                                            u"] where index = '"_s + key + u"'"_s);
    if (rows->RecordCount() == 0)
        return {};
    return readableText(Text(rows->Fields(u"cont")));
}

void CrossReferences::openChosen()
{
    const QString reference = lst관주목록->Text();
    if (reference.isEmpty() || reference == kNoReferences)
        return;
    const VersePlace place = BibleCode::ParseRef(reference);
    m_host.reader.goTo(place.book, place.chapter, place.verse);
}

} // namespace lumen
