// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/words/word_analysis_tab.h"

#include "canon/verse_index.h"
#include "forms/guarded.h"
#include "forms/reader_place.h"
#include "forms/wait_pointer.h"
#include "jet/engine.h"
#include "text/basic_text.h"

#include <QHBoxLayout>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kModule = u"\\Data\\z101.dts";
constexpr int kLongestNumber = 5; // digits
constexpr int kNumberWidth = 80;  // pixels
constexpr int kLargestNumber = 99999;

} // namespace

WordAnalysisTab::WordAnalysisTab(const PanelHost& host)
    : ModuleTab(host, kModule, &InstalledFlags::z101),
      m_analysis(host.services, host.state,
                 {.grid = *flex원전분해,
                  .txParsing = *txParsing,
                  .dictionary = *tx스트롱,
                  .popUpEditMenu = [this](const QPoint& at) {
                      if (m_host.popUpEditMenu)
                          m_host.popUpEditMenu(at);
                  }})
{
    // Digits and the point alone, of which the integer part counts; the keys that edit pass.
    txCodeNum->setValidator(
        new QRegularExpressionValidator(QRegularExpression(u"[0-9.]*"_s), txCodeNum));
    txCodeNum->setMaxLength(kLongestNumber);
    updnCode->setRange(0, kLargestNumber);
    updnCode->showArrowsOnly();
    cmd원어관주->setEnabled(false);
    layOut();
    wire();
}

void WordAnalysisTab::layOut()
{
    txCodeNum->setFixedWidth(kNumberWidth);
    auto* number = new QHBoxLayout;
    number->addWidget(txCodeNum);
    number->addWidget(updnCode);
    number->addWidget(cmd원어관주);
    number->addStretch();
    // One below the other: the panel is high, and beside the dictionary the word would be cut.
    auto* layout = new QVBoxLayout(m_page);
    layout->addWidget(flex원전분해, 3);
    layout->addWidget(txParsing, 2);
    layout->addLayout(number);
    layout->addWidget(tx스트롱, 2);
}

void WordAnalysisTab::wire()
{
    m_analysis.entry().onShown = [this](const std::optional<QString>& number) {
        entryShown(number);
    };
    m_analysis.onDblClick = [this] { openList(); };
    QObject::connect(cmd원어관주, &QPushButton::clicked, m_page, [this] { openList(); });
    QObject::connect(txCodeNum, &QLineEdit::returnPressed, m_page,
                     [this] { lookUp(static_cast<int>(Val(txCodeNum->text()))); });
    // The arrows go on from what the box holds, also before Enter.
    QObject::connect(txCodeNum, &QLineEdit::textEdited, m_page, [this](const QString& typed) {
        const QSignalBlocker quiet(updnCode);
        updnCode->setNumber(ValInt(typed));
    });
    updnCode->onChange = [this] { lookUp(updnCode->Value()); };
    const auto step = [this](Qt::Key key, int steps) {
        auto* shortcut = new QShortcut(key, txCodeNum, nullptr, nullptr, Qt::WidgetShortcut);
        QObject::connect(shortcut, &QShortcut::activated, m_page,
                         [this, steps] { updnCode->stepBy(steps); });
    };
    step(Qt::Key_Up, 1);
    step(Qt::Key_Down, -1);
}

void WordAnalysisTab::enter()
{
    tell(QString());
    takeStock();
    Proc원전분해표시();
}

void WordAnalysisTab::Proc원전분해표시()
{
    const std::optional<VersePlace> place = readerPlace();
    if (!m_host.state.installed.z101 || !place || place == m_shown)
        return;
    m_shown = place;
    const WaitPointer wait;
    Recordset& rows = ask(u"select * from 원전분해 where chap = '"_s +
                          BibleCode::GetChapKey(place->book, place->chapter) + u"' and verse = "_s +
                          QString::number(place->verse));
    if (rows.RecordCount() > 0)
        m_analysis.Proc원전분해결과채우기(rows, testamentOf(place->book));
}

void WordAnalysisTab::entryShown(const std::optional<QString>& number)
{
    cmd원어관주->setEnabled(number.has_value());
    txCodeNum->setText(number.value_or(QString()));
    if (!number) {
        tell(QString());
        return;
    }
    // The arrows go on from the entry on show.
    const QSignalBlocker quiet(updnCode);
    updnCode->setNumber(ValInt(*number));
}

void WordAnalysisTab::lookUp(int number)
{
    guarded(m_host.services, m_page, [this, number] {
        const WaitPointer wait;
        m_analysis.entry().Proc스트롱사전표시(number, testamentOf(m_host.reader.book()));
    });
}

void WordAnalysisTab::openList()
{
    const bool hebrew = testamentOf(m_host.reader.book()) == Testament::Old;
    if (m_host.openStrongList)
        m_host.openStrongList(hebrew ? u"히브리어"_s : u"헬라어"_s, txCodeNum->text());
}

} // namespace lumen
