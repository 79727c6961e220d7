// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/original/original_tab.h"

#include "canon/verse_index.h"
#include "data/data_store.h"
#include "data/module_path.h"
#include "data/versions.h"
#include "forms/guarded.h"
#include "forms/wait_pointer.h"
#include "jet/engine.h"
#include "panel/words/word_analysis.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/dialogs/progress_dialog.h"
#include "platform/files/file_system.h"
#include "search/messages.h"
#include "search/original/parsing_panel.h"
#include "text/basic_text.h"
#include "text/field_scramble.h"
#include "text/query_literal.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr QStringView kAnalysisModule = u"\\Data\\z101.dts";
constexpr int kStarted = 10; // percent, once the dialog is up
constexpr int kDone = 100;

// The grid without a verse; widths are twips.
constexpr int kEmptyRows = 4;
constexpr int kEmptyCols = 2;
constexpr int kEmptyColWidth = 200;

} // namespace

OriginalTab::OriginalTab(Services& services, const AppState& state, QWidget& window,
                         ParsingPanel& panel, ParsingResults& results, BibleSearch& lookUps)
    : m_services(services), m_state(state), m_window(window), m_panel(panel), m_results(results),
      m_lookUps(lookUps), m_tables(services.jet, services.files, state.AppPath),
      m_search(lookUps, m_tables, [this](QStringView module) { return modulePath(module); }),
      m_words(std::make_unique<WordAnalysis>(
          services, state,
          WordAnalysisHost{
              .grid = *results.flexParsing,
              .txParsing = *results.txParsing,
              .dictionary = *results.txStrongDic,
              .marksWord = [this](const QString& number) { return wasSearched(number); },
              .popUpEditMenu = [this](const QPoint& at) { onEditMenu(at); },
              .passesOverEmptyCells = true}))
{
    m_results.lstResult->onClick = [this] { lstResult_Click(); };
    // Any button chooses the verse under it; the panes show the chosen one.
    m_results.lstResult->onMouseUp = [this](Qt::MouseButton button, const QPoint&) {
        if (button != Qt::LeftButton && m_results.lstResult->ListIndex() != m_shownVerse)
            lstResult_Click();
    };
    m_results.lstResult->onDblClick = [this] {
        onOpenVerse(BibleCode::IndexToRef(m_keys.value(m_results.lstResult->ListIndex())));
    };
}

OriginalTab::~OriginalTab() = default;

void OriginalTab::Form_Load()
{
    m_fresh = false;
    m_keys.clear();
    m_results.lstResult->Clear();
    clearVerse();
}

void OriginalTab::open()
{
    // A run that was killed leaves its tables full, and a base for a search within results that
    // nobody has found in this window.
    if (!m_fresh)
        m_fresh = m_tables.startAfresh();
}

void OriginalTab::Form_Unload()
{
    m_words->entry().close();
    m_tables.cleanUp();
    m_fresh = false;
}

void OriginalTab::ProcParsingSearch(const QString& scopeTag)
{
    OriginalQuestion question = m_panel.question();
    question.scopeTag = scopeTag;
    if (!isComplete(question))
        return;
    const WaitPointer wait;
    onState({});
    if (!findRoot() || !prepareTables())
        return;
    if (guarded(m_services, &m_window, [&] { search(question); }))
        return;
    m_tables.abandon();
    onState({});
}

bool OriginalTab::isComplete(const OriginalQuestion& question)
{
    const std::optional<int> missing = question.missing();
    if (!missing)
        return true;
    if (*missing == 0) {
        m_services.messages.show(&m_window, messages::kNoFirstSearchText);
        return false;
    }
    m_services.messages.show(&m_window, messages::kConditionMissing,
                             {QString::number(*missing + 1)});
    return false;
}

bool OriginalTab::findRoot()
{
    for (const QString& root : {m_state.AppPath, m_state.CdDrive}) {
        if (root.isEmpty() || !m_services.files.FileExists(joinedPath(root, kAnalysisModule)))
            continue;
        m_root = root;
        return true;
    }
    m_services.messages.show(&m_window, messages::kAnalysisLost);
    onAnalysisLost();
    return false;
}

bool OriginalTab::prepareTables()
{
    if (m_tables.exists()) {
        open();
        if (m_tables.prepare()) {
            // Where no new file could be made, the old base goes at least.
            if (!std::exchange(m_fresh, true))
                m_tables.empty(ScratchTables::kLast);
            return true;
        }
        // Whatever has come over the file since: the next search begins with a new one.
        m_fresh = false;
    }
    m_services.messages.show(&m_window, messages::kScratchLost);
    return false;
}

QString OriginalTab::modulePath(QStringView module) const
{
    const QString path = joinedPath(m_root, module);
    if (m_services.files.FileExists(path))
        return path;
    // The modules of one set may be spread over both drives; a missing one is told by its path.
    return findModule(m_services.files, m_state, module).value_or(path);
}

void OriginalTab::search(const OriginalQuestion& question)
{
    onState(u"검색 중..."_s);
    dlog진행정도 progress(m_services.modal, u"원전분해 검색 중..."_s, 0, kDone, &m_window);
    progress.setValue(kStarted);
    m_search.onProgress = [&progress](int percent) { progress.setValue(percent); };
    const OriginalOutcome outcome = m_search.run(question);
    m_strongNumbers = outcome.strongNumbers;
    onState(Str(outcome.count) + u"개 검색"_s);
    progress.setValue(kDone);
    Proc파싱검색결과채우기();
}

void OriginalTab::Proc파싱검색결과채우기()
{
    m_keys = m_tables.keys(ScratchTables::kShown);
    // Between searches the file is free; an error that showing a verse brings undoes nothing more.
    m_tables.close();
    m_results.lstResult->Clear();
    if (m_keys.isEmpty()) {
        clearVerse();
        return;
    }
    QStringList references;
    references.reserve(m_keys.size());
    for (const QString& key : m_keys)
        references << BibleCode::IndexToRef(key);
    m_results.lstResult->AddItems(references);
    m_results.lstResult->setListIndex(0);
}

void OriginalTab::clearVerse()
{
    m_shownVerse = -1;
    m_words->forget();
    m_results.flexParsing->Clear();
    m_results.flexParsing->setRows(kEmptyRows);
    m_results.flexParsing->setCols(kEmptyCols);
    for (int col = 0; col < kEmptyCols; ++col)
        m_results.flexParsing->setColWidth(col, kEmptyColWidth);
    for (TextControl* text : {m_results.txStrongDic, m_results.txParsing, m_results.txBibleVerse})
        text->setText({});
}

void OriginalTab::lstResult_Click()
{
    const int index = m_results.lstResult->ListIndex();
    if (index < 0 || index >= m_keys.size())
        return;
    m_shownVerse = index;
    const WaitPointer wait;
    // A missing dictionary doesn't withhold the verse, nor the other way round.
    guarded(m_services, &m_window, [&] { showWords(m_keys.at(index)); });
    guarded(m_services, &m_window, [&] { showKoreanVerse(m_keys.at(index)); });
}

void OriginalTab::showWords(const QString& key)
{
    m_lookUps.setModule(modulePath(kAnalysisModule));
    m_lookUps.query(u"select * from 원전분해 where index like '"_s + EscapeLikeText(key, true) +
                    u"'"_s);
    Recordset& rows = *m_lookUps.dacSearch.Recordset();
    if (rows.RecordCount() > 0)
        m_words->Proc원전분해결과채우기(rows, testamentOf(key.left(2).toInt() - 1));
}

bool OriginalTab::wasSearched(const QString& strongNumber) const
{
    return !strongNumber.isEmpty() &&
           std::ranges::find(m_strongNumbers, strongNumber) != m_strongNumbers.end();
}

void OriginalTab::showKoreanVerse(const QString& key)
{
    m_results.txBibleVerse->setText({});
    const int korean = versionFor(VersionDuty::KoreanVerse);
    const auto path = findModule(m_services.files, m_state, versionFile(korean));
    if (!path)
        return;
    const auto database =
        m_services.jet.OpenDatabase(*path, false, true, QString::fromUtf16(connect_text::kSearch));
    const auto verse =
        database->OpenRecordset(u"select cont from "_s + versionRow(korean).name.toString() +
                                u" where index like '"_s + EscapeLikeText(key, true) + u"'"_s);
    if (verse->RecordCount() > 0)
        m_results.txBibleVerse->setText(BibleCode::IndexToRef(key) + u" ("_s +
                                        DES::UnscrambleField(Text(verse->Fields(u"cont"))) +
                                        u")"_s);
    database->Close();
}

} // namespace lumen
