// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/words/word_analysis.h"

#include "forms/guarded.h"
#include "forms/wait_pointer.h"
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/text/text_control.h"
#include "text/basic_text.h"
#include "text/field_scramble.h"
#include "text/original/parsing_decoder.h"
#include "text/rtf/rtf_composer.h"
#include "text/rtf/rtf_tables.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <array>
#include <span>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kStrongRow = 0;
constexpr int kFormRow = 1;
constexpr int kHebrewPiecesRow = 4;
constexpr int kHebrewPoints = 19;
constexpr int kGreekPoints = 12;
// The look of a word that was searched for, as found words have it elsewhere.
constexpr RgbLong kMarkedGround = RGB(255, 226, 110);
constexpr RgbLong kMarkedText = RGB(30, 20, 0);

struct WordRow
{
    QChar kind;
    QStringView label;
};

constexpr std::array kHebrewRows{
    WordRow{u's', u"스트롱"}, WordRow{u'h', u"본문"}, WordRow{u'k', u"KJV"},
    WordRow{u't', u"대표값"}, WordRow{u'd', u"분해"}, WordRow{u'l', u"표제어"},
};
constexpr std::array kGreekRows{
    WordRow{u's', u"스트롱"}, WordRow{u'g', u"본문"},   WordRow{u'k', u"KJV"},
    WordRow{u't', u"대표값"}, WordRow{u'l', u"표제어"},
};

std::span<const WordRow> rowsOf(bool hebrew)
{
    return hebrew ? std::span<const WordRow>(kHebrewRows) : std::span<const WordRow>(kGreekRows);
}

CellStyle styleOf(QChar kind, bool hebrew)
{
    if (kind == u'k')
        return {u"Arial"_s, 10};
    if (kind == u't')
        return {u"굴림"_s, 9};
    if (kind == u's')
        return {};
    return hebrew ? CellStyle{u"OrvaneHeb"_s, kHebrewPoints}
                  : CellStyle{u"OrvaneGrk"_s, kGreekPoints};
}

std::vector<std::optional<QString>> wordsOf(Recordset& rows)
{
    std::vector<std::optional<QString>> words;
    words.reserve(kWordColumns);
    for (int word = 1; word <= kWordColumns; ++word) {
        const QVariant stored = rows.Fields(u"Word"_s + QString::number(word)).Value();
        words.push_back(stored.isNull() ? std::nullopt
                                        : std::optional(DES::UnscrambleField(stored.toString())));
    }
    return words;
}

/// A wrapped word would fall apart: the codes of its letters hold signs at which lines may break,
/// and its head would come below its end. The grammar behind it wraps.
void keepHeadTogether(QTextDocument& parsing)
{
    QTextBlockFormat unbroken;
    unbroken.setNonBreakableLines(true);
    QTextCursor(parsing.firstBlock()).mergeBlockFormat(unbroken);
}

} // namespace

VerseWords::VerseWords(Recordset& rows)
{
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        const QString kind = Text(rows.Fields(u"Lang"));
        if (kind.size() == 1)
            m_kinds.try_emplace(kind.at(0), wordsOf(rows));
    }
    const QChar form = isHebrew() ? u'h' : u'g';
    while (m_count < kWordColumns && value(form, m_count + 1))
        ++m_count;
}

std::optional<QString> VerseWords::value(QChar kind, int word) const
{
    const auto found = m_kinds.find(kind);
    if (found == m_kinds.cend() || word < 1 || word > kWordColumns)
        return {};
    return found->second[static_cast<std::size_t>(word - 1)];
}

QString composeParsing(const QString& head, const std::optional<QString>& code, Testament testament)
{
    QString rtf = kWordPanelRtfHead.toString();
    rtf += u"\\li300\\fi-300\\plain\\f2\\fs18\\cf1\\b 원어: "_s;
    rtf +=
        testament == Testament::Old ? u"\\plain\\f8\\fs38\\cf3 "_s : u"\\plain\\f9\\fs24\\cf3 "_s;
    rtf += RtfEscape(head);
    rtf += u"\\plain\\f3\\fs20 \\plain\\f3\\fs20\\cf1\\plain\\f3\\fs18 \\par "_s;
    rtf += u"\\par \\plain\\f2\\fs18\\cf1 "_s;
    if (code) {
        QString parsed = *code;
        rtf += BibleCode::ParsingDecoder(parsed).replace(u","_s, u"\\par"_s);
    } else {
        rtf += u"문법 분해 없음"_s;
    }
    return rtf + u" \\par }"_s;
}

WordAnalysis::WordAnalysis(Services& services, const AppState& state, WordAnalysisHost host)
    : m_services(services), m_host(std::move(host)), m_entry(services, state, m_host.dictionary)
{
    FlexGrid& grid = m_host.grid;
    grid.setFixedRows(0);
    grid.setRows(0);
    grid.setCols(1);
    grid.setFixedCols(1);
    grid.setSelectionMode(GridSelection::Cells);
    grid.onKeyUp = [this](int key) {
        // A key that the input method keeps to itself comes without a code.
        if (key != 0 && key != Qt::Key_unknown)
            wordChosen();
    };
    grid.onMouseUp = [this](Qt::MouseButton button, const QPoint& position) {
        if (button == Qt::LeftButton && m_host.grid.rowAtPoint(position) >= 0 &&
            m_host.grid.colAtPoint(position) > 0)
            wordChosen();
    };
    grid.onContextMenu = [this](const QPoint& at) { popUpEditMenu(at); };
    grid.onDblClick = [this](int, int col) {
        if (col > 0 && onDblClick)
            onDblClick();
    };
}

void WordAnalysis::popUpEditMenu(const QPoint& at)
{
    if (m_host.popUpEditMenu)
        m_host.popUpEditMenu(at);
}

void WordAnalysis::forget()
{
    m_words = {};
    m_column = 0;
}

void WordAnalysis::Proc원전분해결과채우기(Recordset& rows, Testament testament)
{
    m_words = VerseWords(rows);
    m_testament = testament;
    m_column = 0;
    fillGrid();
    if (m_words.count() == 0)
        return;
    selectWord(1);
    showWord();
}

void WordAnalysis::fillGrid()
{
    FlexGrid& grid = m_host.grid;
    const RedrawHold hold(grid);
    const auto rows = rowsOf(m_words.isHebrew());
    grid.Clear();
    grid.setRows(0);
    grid.setCols(m_words.count() + 1);
    grid.setRows(static_cast<int>(rows.size()));
    for (std::size_t row = 0; row < rows.size(); ++row)
        fillRow(static_cast<int>(row), rows[row].kind, rows[row].label);
    markWords();
    grid.FitColumns();
    grid.AutoSize();
}

void WordAnalysis::fillRow(int row, QChar kind, QStringView label)
{
    FlexGrid& grid = m_host.grid;
    const CellStyle style = styleOf(kind, m_words.isHebrew());
    grid.setTextMatrix(row, 0, label.toString());
    for (int word = 1; word <= m_words.count(); ++word) {
        const int col = m_words.columnOf(word);
        grid.setTextMatrix(row, col, m_words.value(kind, word).value_or(QString()));
        grid.setCellStyle(row, col, style);
    }
}

void WordAnalysis::markWords()
{
    if (!m_host.marksWord)
        return;
    const auto rows = rowsOf(m_words.isHebrew());
    for (int word = 1; word <= m_words.count(); ++word) {
        const std::optional<QString> number = m_words.value(u's', word);
        if (!number || !m_host.marksWord(*number))
            continue;
        for (std::size_t row = 0; row < rows.size(); ++row) {
            CellStyle style = styleOf(rows[row].kind, m_words.isHebrew());
            style.back = kMarkedGround;
            style.color = kMarkedText;
            m_host.grid.setCellStyle(static_cast<int>(row), m_words.columnOf(word), style);
        }
    }
}

void WordAnalysis::selectWord(int word)
{
    m_column = m_words.columnOf(word);
    m_host.grid.setCell(kStrongRow, m_column);
    m_host.grid.ShowCell(kStrongRow, m_column);
}

void WordAnalysis::wordChosen()
{
    if (m_column == 0)
        return;
    const FlexGrid& grid = m_host.grid;
    if (m_host.passesOverEmptyCells && grid.TextMatrix(grid.RowSel(), grid.ColSel()).isEmpty())
        return;
    if (grid.ColSel() > 0)
        m_column = grid.ColSel();
    guarded(m_services, &m_host.grid, [this] { showWord(); });
}

void WordAnalysis::showWord()
{
    const WaitPointer wait;
    ProcShowParsing();
    m_entry.Proc스트롱사전표시(Val(m_host.grid.TextMatrix(kStrongRow, m_column)), m_testament);
}

void WordAnalysis::ProcShowParsing()
{
    if (!m_words.hasKind(u'p')) {
        m_host.txParsing.setText(QString());
        return;
    }
    const bool old = m_testament == Testament::Old;
    const QString head = m_host.grid.TextMatrix(old ? kHebrewPiecesRow : kFormRow, m_column);
    const int word = old ? m_host.grid.Cols() - m_column : m_column;
    const QString rtf = composeParsing(head, m_words.value(u'p', word), m_testament);
    m_host.txParsing.LoadRtf(toRtfBytes(rtf));
    keepHeadTogether(*m_host.txParsing.document());
}

} // namespace lumen
