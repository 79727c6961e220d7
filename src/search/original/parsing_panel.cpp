// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/original/parsing_panel.h"

#include "search/verses/easy_panel.h"
#include "text/original/parsing_decoder.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <array>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr std::array kConditionKinds{u"원어 어근", u"원어 일치", u"표제어", u"스트롱", u"파싱"};
constexpr int kPatternRows = 3; // lines of a pattern's phrases in view

QFont conditionFont(bool strongNumber, bool hebrew)
{
    if (strongNumber)
        return {u"굴림"_s, 10};
    return hebrew ? QFont(u"OrvaneHeb"_s, 16) : QFont(u"OrvaneGrk"_s, 14);
}

} // namespace

ParsingPanel::ParsingPanel()
{
    auto* scope = new QHBoxLayout;
    scope->addStretch();
    scope->addWidget(labelFor(cbParVer, u"언어(&O):"_s));
    scope->addWidget(cbParVer);
    scope->addWidget(labelFor(cbParRange, u"범위(&N):"_s));
    scope->addWidget(cbParRange);
    scope->addWidget(cmd책별선택);
    scope->addWidget(cmdParsingSearch);
    scope->addStretch();

    for (int condition = 0; condition < kConditionCount; ++condition)
        sstHGSearch->addTab(conditionPage(condition), u"단어%1"_s.arg(condition + 1));
    auto* column = new QVBoxLayout(this);
    column->addLayout(scope);
    column->addWidget(sstHGSearch);

    cbParVer->onClick = [this] { cbParVer_Click(); };
    for (int condition = 0; condition < kConditionCount; ++condition)
        cbType(condition)->onClick = [this, condition] { cbType_Click(condition); };
}

QWidget* ParsingPanel::conditionPage(int condition)
{
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    // The conjunction stands before the word that it joins to those in front of it.
    if (condition > 0)
        row->addWidget(cbAndOr(condition - 1));
    row->addWidget(cbType(condition));
    row->addWidget(txHGSearch(condition), 1);
    row->addWidget(cmdInput(condition));
    row->addWidget(lblParsing(condition));
    row->addWidget(lstParsing(condition), 1);
    row->addWidget(cmdSetParsing(condition));
    lstParsing(condition)->setMaximumHeight(kPatternRows *
                                                lstParsing(condition)->fontMetrics().lineSpacing() +
                                            2 * lstParsing(condition)->frameWidth());
    return page;
}

void ParsingPanel::reset()
{
    for (int condition = 0; condition < kConditionCount; ++condition) {
        txHGSearch(condition)->clear();
        setPattern(condition, {});
        cbType(condition)->Clear();
        for (const char16_t* kind : kConditionKinds)
            cbType(condition)->AddItem(QString::fromUtf16(kind));
        cbType(condition)->setListIndex(0);
    }
    for (ComboBox* conjunction : cbAndOr) {
        conjunction->Clear();
        conjunction->AddItem(u"그리고 (AND)"_s);
        conjunction->AddItem(u"또는    (OR)"_s);
        conjunction->setListIndex(0);
    }
}

void ParsingPanel::focusFirst()
{
    if (txHGSearch(0)->isVisibleTo(this))
        txHGSearch(0)->setFocus();
    else
        cmdSetParsing(0)->setFocus();
}

void ParsingPanel::cbParVer_Click()
{
    for (int condition = 0; condition < kConditionCount; ++condition) {
        showFont(condition);
        setPattern(condition, {});
    }
}

void ParsingPanel::setPattern(int condition, const QString& code)
{
    m_patterns[static_cast<std::size_t>(condition)] = code;
    lstParsing(condition)->Clear();
    if (code.isEmpty())
        return;
    // The decoder takes the parentheses off what it is given.
    QString decoded = code;
    lstParsing(condition)->AddItems(
        BibleCode::ParsingDecoder(decoded).split(u',', Qt::SkipEmptyParts));
}

OriginalQuestion ParsingPanel::question() const
{
    OriginalQuestion question;
    question.language = isHebrew() ? OriginalLanguage::Hebrew : OriginalLanguage::Greek;
    for (int i = 0; i < kConditionCount; ++i)
        question.conditions[static_cast<std::size_t>(i)] = {
            static_cast<ConditionKind>(cbType(i)->ListIndex()), txHGSearch(i)->text(),
            m_patterns[static_cast<std::size_t>(i)]};
    for (int i = 0; i + 1 < kConditionCount; ++i)
        question.conjunctions[static_cast<std::size_t>(i)] =
            cbAndOr(i)->ListIndex() == 1 ? Conjunction::Or : Conjunction::And;
    return question;
}

void ParsingPanel::cbType_Click(int condition)
{
    const bool parsing = cbType(condition)->ListIndex() == static_cast<int>(ConditionKind::Parsing);
    lblParsing(condition)->setVisible(parsing);
    lstParsing(condition)->setVisible(parsing);
    cmdSetParsing(condition)->setVisible(parsing);
    txHGSearch(condition)->setVisible(!parsing);
    cmdInput(condition)->setVisible(!parsing);
    showFont(condition);
}

std::optional<bool> ParsingPanel::takesHebrew(const QLineEdit& box) const
{
    for (int condition = 0; condition < kConditionCount; ++condition)
        if (txHGSearch(condition) == &box)
            return isHebrew() && !isStrongNumber(condition);
    return std::nullopt;
}

bool ParsingPanel::isStrongNumber(int condition) const
{
    return cbType(condition)->ListIndex() == static_cast<int>(ConditionKind::Strong);
}

void ParsingPanel::showFont(int condition)
{
    const bool strongNumber = isStrongNumber(condition);
    const bool rightAligned = !strongNumber && isHebrew();
    txHGSearch(condition)->setFont(conditionFont(strongNumber, isHebrew()));
    txHGSearch(condition)->setAlignment((rightAligned ? Qt::AlignRight : Qt::AlignLeft) |
                                        Qt::AlignVCenter);
}

ParsingResults::ParsingResults()
{
    dictionarySplitter->addWidget(txParsing);
    dictionarySplitter->addWidget(txStrongDic);
    wordSplitter->addWidget(flexParsing);
    wordSplitter->addWidget(dictionarySplitter);
    verseSplitter->addWidget(txBibleVerse);
    verseSplitter->addWidget(wordSplitter);
    splitParsing->addWidget(lstResult);
    splitParsing->addWidget(verseSplitter);
    constexpr double kListShare = 0.2;
    // A verse takes few lines, its words six rows.
    constexpr double kVerseShare = 0.12;
    splitParsing->setRatio(kListShare);
    verseSplitter->setRatio(kVerseShare);
}

void ParsingResults::open(const SearchSettings& settings)
{
    splitParsing->show();
    if (m_opened)
        return;
    m_opened = true;
    const auto size = [](Splitter& splitter, int pane, int twips) {
        if (twips > 0)
            splitter.setPaneTwips(pane, twips);
    };
    size(*splitParsing, 0, settings.ResultWidth);
    size(*verseSplitter, 0, settings.VerseHeight);
    size(*wordSplitter, 0, settings.ParsingHeight);
    size(*dictionarySplitter, 1, settings.StrongWidth);
}

void ParsingResults::store(SearchSettings& settings) const
{
    if (!m_opened)
        return;
    settings.ResultWidth = splitParsing->paneTwips(0);
    settings.VerseHeight = verseSplitter->paneTwips(0);
    settings.ParsingHeight = wordSplitter->paneTwips(0);
    settings.StrongWidth = dictionarySplitter->paneTwips(1);
}

} // namespace lumen
