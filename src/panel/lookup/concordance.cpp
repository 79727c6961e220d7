// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/lookup/concordance.h"

#include "data/chapter_reader.h"
#include "data/concordance_word.h"
#include "data/data_store.h"
#include "data/module_path.h"
#include "data/version_lists.h"
#include "forms/guarded.h"
#include "forms/module_query.h"
#include "forms/reader_place.h"
#include "forms/right_to_left_typing.h"
#include "forms/versions/version_combo.h"
#include "forms/wait_pointer.h"
#include "jet/engine.h"
#include "jet/rows/recordset.h"
#include "panel/messages.h"
#include "platform/controls/bars/wrapping_row.h"
#include "platform/dialogs/message_boxes.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kTextPoints = 10;
constexpr int kRowMargin = 4;     // pixels
constexpr int kVersionLength = 8; // letters of a version's name, half a Hangul each

/// Keeps the caret of a box at the writing end of Hebrew.
class HebrewCaret : public QObject
{
public:
    HebrewCaret(QLineEdit& box, std::function<QString()> version)
        : QObject(&box), m_box(box), m_version(std::move(version))
    {
        box.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::KeyRelease)
            stepBackAfterTyping(m_box, static_cast<QKeyEvent&>(*event), m_version());
        return false;
    }

private:
    QLineEdit& m_box;
    std::function<QString()> m_version;
};

} // namespace

ConcordanceLookup::ConcordanceLookup(Services& services, const AppState& state,
                                     const ConcordanceControls& controls)
    : m_services(services), m_state(state), m_controls(controls), m_result(services.jet),
      m_verse(controls.text, state.fonts)
{
    m_controls.words.setCols(1);
    m_controls.words.setFixedRows(0);
    m_controls.words.setRows(0);
    m_controls.words.setStretchFrom(0);
    wire();
}

void ConcordanceLookup::wire()
{
    const auto guardedly = [this](auto work) {
        return [this, work] { guarded(m_services, &m_controls.page, work); };
    };
    const auto lookUp = guardedly([this] {
        QString word = m_controls.word.text();
        if (!word.trimmed().isEmpty())
            search(word);
    });
    m_controls.version.onClick = [this] { versionChanged(); };
    QObject::connect(&m_controls.word, &QLineEdit::returnPressed, &m_controls.page, lookUp);
    QObject::connect(&m_controls.search, &QPushButton::clicked, &m_controls.page, lookUp);
    m_controls.words.onSelChange = guardedly([this] { showPlaces(); });
    m_controls.verses.onClick = guardedly([this] { showVerse(); });
    m_controls.verses.onDblClick = [this] {
        if (onVerse && !m_controls.verses.Text().isEmpty())
            onVerse(BibleCode::ParseRef(m_controls.verses.Text()));
    };
    new HebrewCaret(m_controls.word, [this] { return versionTable(); });
}

void ConcordanceLookup::fillVersions(int index)
{
    const QList<VersionItem> items = SetClassicCombo(m_state.installed, 0);
    fillVersionCombo(m_controls.version, items);
    m_firstChoice = restoredVersionIndex(items, index);
    m_controls.version.setListIndex(m_firstChoice);
}

QString ConcordanceLookup::versionTable() const
{
    return versionName(code(), m_state.installed);
}

void ConcordanceLookup::versionChanged()
{
    clear();
    m_controls.word.clear();
    showFonts();
}

void ConcordanceLookup::showFonts()
{
    const VersionFont version = GetVersionFont(code(), m_state.fonts);
    const QFont font(version.font, scaledSize(version.factor, kTextPoints));
    m_controls.word.setFont(font);
    m_controls.words.setFont(font);
    m_controls.words.verticalHeader()->setDefaultSectionSize(QFontMetrics(font).height() +
                                                             kRowMargin);
    m_controls.word.setAlignment(isHebrewVersion(code()) ? Qt::AlignRight : Qt::AlignLeft);
}

void ConcordanceLookup::clear()
{
    m_found.clear();
    m_controls.words.setRows(0);
    m_controls.verses.Clear();
    m_verse.show({}, 0);
    if (tell)
        tell(QString());
}

bool ConcordanceLookup::hasModule() const
{
    return moduleExists(m_services.files, m_state, versionFile(code(), u"c"));
}

void ConcordanceLookup::search(QString& word)
{
    if (word.isEmpty())
        return;
    word = cleanedConcordanceWord(word, code());
    m_controls.word.setText(word);
    showFonts();
    if (!hasModule()) {
        const QString name = versionTable();
        m_controls.version.setListIndex(m_firstChoice);
        m_services.messages.show(&m_controls.page, messages::kNoConcordance, {name});
        return;
    }
    m_controls.word.selectAll();
    if (word.isEmpty() || word.back() == QChar::Null) {
        m_services.messages.show(&m_controls.page, messages::kNotSearchable);
        return;
    }
    const WaitPointer wait;
    clear();
    if (open(word))
        fillWords();
}

// False when no word was found.
bool ConcordanceLookup::open(const QString& word)
{
    const Recordset& rows = askModule(m_result, m_services, m_state, versionFile(code(), u"c"),
                                      concordanceQuery(word, m_controls.holds.isChecked()));
    m_found = foundWords(rows.columnTexts(u"Word"), rows.columnTexts(u"num"), word);
    std::ranges::stable_sort(m_found, {}, &ConcordanceWord::word);
    return !m_found.empty();
}

void ConcordanceLookup::fillWords()
{
    {
        const RedrawHold hold(m_controls.words);
        m_controls.words.setRows(static_cast<int>(m_found.size()));
        for (int row = 0; row < m_controls.words.Rows(); ++row)
            m_controls.words.setTextMatrix(
                row, 0, listedWord(m_found[static_cast<std::size_t>(row)], code()));
    }
    m_controls.words.setRow(0);
    showPlaces();
}

QString ConcordanceLookup::status() const
{
    const int count = m_controls.words.Rows();
    return count == 0 ? QString() : u"검색된 단어 수: "_s + QString::number(count);
}

void ConcordanceLookup::showPlaces()
{
    const int row = m_controls.words.Row();
    if (row < 0 || row >= static_cast<int>(m_found.size()))
        return;
    const WaitPointer wait;
    QStringList positions;
    for (const int record : m_found[static_cast<std::size_t>(row)].rows) {
        m_result.Recordset()->setAbsolutePosition(record);
        positions << Text(m_result.Recordset()->Fields(u"Pos"));
    }
    m_controls.verses.Clear();
    m_controls.verses.AddItems(listedPlaces(positions.join(u';')));
    m_controls.verses.setListIndex(0);
}

void ConcordanceLookup::showVerse()
{
    const QString reference = m_controls.verses.Text();
    if (reference.isEmpty())
        return;
    const WaitPointer wait;
    const auto path = findModule(m_services.files, m_state, versionFile(code()));
    if (!path) {
        m_services.messages.show(&m_controls.page,
                                 absentVersionMessage(code(), AbsentVersion::ParallelFile));
        return;
    }
    const auto module =
        m_services.jet.OpenDatabase(*path, false, true, QString::fromUtf16(connect_text::kPanel));
    const auto rows =
        module->OpenRecordset(u"select cont, part from ["_s + versionTable() +
                              u"] where index like '"_s + BibleCode::RefToIndex(reference) + u'\'');
    m_verse.show(rows->RecordCount() > 0 ? readableText(Text(rows->Fields(u"cont"))) : QString(),
                 code());
    tellFound();
}

void ConcordanceLookup::tellFound()
{
    QString text = u"'"_s + versionTable() + u"'에서 검색된 성구 수: "_s +
                   QString::number(m_controls.words.Rows());
    if (versionRow(code()).group == VersionGroup::Original)
        text += u" (현재 항목 수: "_s + QString::number(m_controls.verses.ListCount()) + u')';
    if (tell)
        tell(text);
}

Concordance::Concordance(const PanelHost& host, QStringView versionBox)
    : m_host(host), m_page(new QWidget), cbConcVer(named<ComboBox>(versionBox, u"역본")),
      m_lookup(host.services, host.state,
               {.page = *m_page,
                .version = *cbConcVer,
                .word = *tx성구사전검색어,
                .holds = *op성구포함,
                .search = *cmd성구사전검색,
                .words = *flex성구결과,
                .verses = *lst성구인덱스,
                .text = *tx성구본문})
{
    op성구시작->setChecked(true);
    layOut();
    m_lookup.tell = [this](const QString& status) { setStatus(status); };
    m_lookup.onVerse = [this](const VersePlace& place) {
        m_host.reader.goTo(place.book, place.chapter, place.verse);
        if (m_host.isBesideReader)
            m_host.reader.bringToFront();
    };
}

void Concordance::layOut()
{
    cbConcVer->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cbConcVer->setMinimumContentsLength(kVersionLength);
    auto* words = new QHBoxLayout;
    words->addWidget(tx성구사전검색어, 1);
    words->addWidget(cmd성구사전검색);
    auto* options = new WrappingRow;
    for (QWidget* control : {static_cast<QWidget*>(cbConcVer), static_cast<QWidget*>(op성구시작),
                             static_cast<QWidget*>(op성구포함)})
        options->addWidget(control);
    auto* results = new QHBoxLayout;
    results->addWidget(flex성구결과, 2);
    lst성구인덱스->keepRoomFor(u"왕하00:00"_s);
    results->addWidget(lst성구인덱스, 1);
    auto* layout = new QVBoxLayout(m_page);
    layout->addLayout(words);
    layout->addLayout(options);
    layout->addLayout(results, 3);
    layout->addWidget(tx성구본문, 2);
    m_page->setFocusProxy(tx성구사전검색어);
}

void Concordance::enter()
{
    if (!m_filled)
        fillVersions(indexOfVersion(SetClassicCombo(m_host.state.installed, 0),
                                    m_host.reader.versionCode(0)));
    setStatus(m_lookup.status());
}

void Concordance::fillVersions(int index)
{
    m_filled = true;
    m_lookup.fillVersions(index);
}

} // namespace lumen
