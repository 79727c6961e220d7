// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/verse_index.h"
#include "data/chapter_reader.h"
#include "forms/results/result_pages.h"
#include "platform/dialogs/message_boxes.h"
#include "print/bible_layout.h"
#include "print/preview_window.h"
#include "search/messages.h"
#include "search/search_window.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kManyRecords = 500; // more ask first

VerseSheet emptySheet(int code, const QString& version, const FontSettings& fonts)
{
    const VersionPrintFont font = GetVersionPrintFont(code, fonts);
    PrintLook look;
    look.family = font.font;
    look.points = font.size > 0 ? font.size : look.points;
    return {u"장 절"_s, kVersePlaceWidth, {{u"본 문 ("_s + version + u')', look}}, {}};
}

} // namespace

QString frm성서검색::printedQuery() const
{
    const QString range = m_model.scopeText(); // names itself
    // On paper Hebrew and Greek stand in their letters.
    const QString font = GetVersionFont(m_model.resultCode(), m_state.fonts).font;
    if (m_model.tab() == SearchTab::Power) {
        QStringList terms;
        for (const QLineEdit* const box : {power->txPSearch1, power->txPSearch2, power->txPSearch3})
            if (!box->text().trimmed().isEmpty())
                terms << box->text().trimmed();
        return u"검색 조건: "_s + unicodeOfFont(terms.join(u' '), font) + u" ("_s + range + u')';
    }
    const QString query = easy->tx검색->text().trimmed();
    return u"검색 조건: "_s + unicodeOfFont(query, font) + u" ("_s + range + u')';
}

void frm성서검색::printResult()
{
    if (!hasPrinter(m_services, this) || m_model.count() == 0)
        return;
    if (m_model.count() > kManyRecords &&
        m_services.messages.show(this, messages::kPrintMany) != Answer::Yes)
        return;
    PrintRequest request;
    request.source = print_source::kBibleSearch.toString();
    request.headTitle = m_model.versionName() + u" 성서 검색 결과"_s;
    request.docName = u"성서 검색 결과"_s;
    request.footerLeft = printedQuery();
    request.hasSelection = hflex결과->Row() > 0;
    request.layOut = [this](VSPrinter& vp, bool whole) {
        VerseSheet sheet = emptySheet(m_model.resultCode(), m_model.versionName(), m_state.fonts);
        Recordset& records = m_model.records();
        records.MoveFirst();
        int first = 0;
        int behind = records.RecordCount();
        if (!whole) {
            // The grid shows one page of the result.
            const int top = ResultPages(behind).firstRecord(m_model.page()) - 1;
            first = top + std::min(hflex결과->Row(), hflex결과->RowSel());
            behind = top + std::max(hflex결과->Row(), hflex결과->RowSel()) + 1;
            records.setAbsolutePosition(first);
        }
        for (int i = first; i < behind && !records.Eof(); ++i, records.MoveNext())
            sheet.rows.push_back({{},
                                  BibleCode::IndexToRef(Text(records.Fields(u"Index"))),
                                  {readableText(Text(records.Fields(u"cont")))}});
        layOutVerses(vp, sheet);
    };
    openPreview(m_services, m_state.print, std::move(request), this);
}

} // namespace lumen
