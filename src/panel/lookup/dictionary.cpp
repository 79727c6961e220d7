// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/lookup/dictionary.h"

#include "forms/guarded.h"
#include "forms/module_query.h"
#include "forms/wait_pointer.h"
#include "jet/rows/recordset.h"
#include "panel/messages.h"
#include "platform/controls/combo_habits.h"
#include "platform/dialogs/message_boxes.h"
#include "text/field_scramble.h"
#include "text/query_literal.h"

#include <QLineEdit>

#include <algorithm>
#include <utility>
#include <vector>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kBibleSources{
    DictionarySource{u"전체", u"", u""},
    DictionarySource{u"오르베인 한글", u"t", u"오르베인 한글 성경사전"},
    DictionarySource{u"ISBE 성경백과", u"i", u"ISBE"},
    DictionarySource{u"이스턴 성경사전", u"e", u"이스턴 성경사전"},
    DictionarySource{u"히치코크 인명사전", u"h", u"히치코크 인명사전"},
};

constexpr QStringView kNoWord = u"정의된 단어가 없습니다.";
constexpr QStringView kNoQuery = u"검색할 수 없는 단어 또는 어구입니다.";

/// Whether the engine refused the query's text; anything else is a fault of the module.
bool isRefusal(const JetError& error)
{
    return error.number() == ErrorNumber::kInvalidPattern ||
           error.number() == ErrorNumber::kCriterionSyntax;
}

} // namespace

const DictionaryProfile kBibleDictionary{.module = u"\\Data\\BibleDic.dts",
                                         .table = u"성경사전",
                                         .order = u" order by no",
                                         .sources = kBibleSources,
                                         .noMeaning = u"Not Entered Yet!",
                                         .longSearch = messages::kLongBibleSearch};

const DictionaryProfile kEnglishDictionary{.module = u"\\Data\\EKDic.dts",
                                           .table = u"영한영사전",
                                           .noMeaning = u"Not Exists!",
                                           .longSearch = messages::kLongEnglishSearch};

QString dictionaryQuery(const DictionaryProfile& profile, DictionaryMatch match,
                        const QString& word, int source)
{
    // Entries are stored in small letters, their texts as they are.
    const bool meaning = match == DictionaryMatch::Meaning;
    const QString literal =
        EscapeLikeText(DES::ScrambleField(meaning ? word : word.toLower()), true);
    const bool openStart = match == DictionaryMatch::Within || meaning;
    QString query = u"Select * from "_s + profile.table.toString() + u" where "_s +
                    (meaning ? u"def"_s : u"word"_s) + u" like '"_s +
                    (openStart ? u"*"_s : QString()) + literal +
                    (match == DictionaryMatch::Exact ? QString() : u"*"_s) + u'\'';
    if (source > 0)
        query += u" and class = '"_s +
                 profile.sources[static_cast<std::size_t>(source)].className.toString() + u'\'';
    return query + profile.order.toString();
}

DictionaryLookup::DictionaryLookup(Services& services, const AppState& state,
                                   const DictionaryProfile& profile,
                                   const DictionaryControls& controls)
    : m_services(services), m_state(state), m_profile(profile), m_controls(controls),
      m_result(services.jet)
{
    if (m_controls.source != nullptr) {
        for (const DictionarySource& source : m_profile.sources)
            m_controls.source->AddItem(source.item.toString());
        m_controls.source->setListIndex(0);
    }
    const auto lookUp = [this] {
        guarded(m_services, &m_controls.page, [this] { search(m_controls.word.currentText()); });
    };
    // The box keeps what was typed: no completion, and Enter adds nothing by itself.
    m_controls.word.setEditable(true);
    m_controls.word.setCompleter(nullptr);
    m_controls.word.setInsertPolicy(QComboBox::NoInsert);
    // Enter on a word that was used before tells of a choice too; a walk by arrow keys goes on.
    m_controls.word.onClick = [this, lookUp] {
        if (pickedFromList(m_controls.word))
            lookUp();
    };
    QObject::connect(m_controls.word.lineEdit(), &QLineEdit::returnPressed, &m_controls.page,
                     lookUp);
    m_controls.near.onClick = [this] {
        guarded(m_services, &m_controls.page, [this] { showChosen(); });
    };
}

void DictionaryLookup::search(const QString& typed)
{
    const QString word = typed.trimmed();
    const DictionaryMatch how = match();
    if (word.isEmpty() || !confirms(how, word))
        return;
    const WaitPointer wait;
    const int source = m_controls.source == nullptr ? 0 : m_controls.source->ListIndex();
    if (!runQuery(dictionaryQuery(m_profile, how, word, source))) {
        m_controls.meaning.setText(kNoQuery.toString());
        return;
    }
    tell(QString());
    m_controls.near.Clear();
    if (m_result.Recordset()->RecordCount() == 0) {
        m_controls.meaning.setText(kNoWord.toString());
        return;
    }
    keepWord(word);
    fill();
}

QString DictionaryLookup::status() const
{
    const int count = m_controls.near.ListCount();
    return count == 0 ? QString() : u"검색된 단어 수: "_s + QString::number(count);
}

DictionaryMatch DictionaryLookup::match() const
{
    for (std::size_t i = 0; i < m_controls.matches.size(); ++i)
        if (m_controls.matches[i] != nullptr && m_controls.matches[i]->isChecked())
            return static_cast<DictionaryMatch>(i);
    return DictionaryMatch::Start;
}

bool DictionaryLookup::confirms(DictionaryMatch match, const QString& word) const
{
    return match != DictionaryMatch::Meaning ||
           m_services.messages.show(&m_controls.page, m_profile.longSearch, {word}) == Answer::Yes;
}

// False when the engine refuses the pattern; a module that can't be read is an error.
bool DictionaryLookup::runQuery(const QString& query)
{
    try {
        askModule(m_result, m_services, m_state, m_profile.module, query);
        return true;
    } catch (const JetError& error) {
        if (!isRefusal(error))
            throw;
        return false;
    }
}

void DictionaryLookup::keepWord(const QString& word)
{
    if (m_controls.word.findItem(word) < 0)
        m_controls.word.AddItem(word);
    m_controls.word.setEditText(word);
}

void DictionaryLookup::fill()
{
    // All words at once; the text of one is read when it is chosen.
    std::vector<std::pair<QString, int>> words;
    int record = 0;
    for (const QString& word : m_result.Recordset()->columnTexts(u"word"))
        words.emplace_back(DES::UnscrambleField(word), record++);
    std::ranges::stable_sort(words, {}, &std::pair<QString, int>::first);
    QStringList items;
    for (const auto& [word, place] : words)
        items << word.toUpper();
    m_controls.near.AddItems(items);
    for (int item = 0; item < m_controls.near.ListCount(); ++item)
        m_controls.near.setItemData(item, words[static_cast<std::size_t>(item)].second);
    if (m_controls.source == nullptr)
        tell(status());
    m_controls.near.setListIndex(0);
}

void DictionaryLookup::showChosen()
{
    const int item = m_controls.near.ListIndex();
    Recordset* const rows = m_result.Recordset();
    if (item < 0 || rows == nullptr)
        return;
    rows->setAbsolutePosition(m_controls.near.ItemData(item));
    const QVariant meaning = rows->Fields(u"def").Value();
    if (meaning.isNull()) {
        m_controls.meaning.setText(m_profile.noMeaning.toString());
        return;
    }
    m_controls.meaning.setText(DES::UnscrambleField(meaning.toString()));
    if (!m_profile.sources.empty())
        tell(u"출처 : "_s + sourceOf(Text(rows->Fields(u"class"))));
}

QString DictionaryLookup::sourceOf(const QString& className) const
{
    const auto source =
        std::ranges::find(m_profile.sources, className, &DictionarySource::className);
    return source == m_profile.sources.end() ? QString() : source->told.toString();
}

} // namespace lumen
