// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/wizard/parsing_wizard.h"

#include "search/wizard/parsing_grammar.h"

#include <QApplication>
#include <QButtonGroup>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QTabBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// Fields of the page Dongsa1 that the aspect opens and closes.
enum VerbField { kAspect = 1, kPerson, kGender, kNumber, kState };

constexpr int kListWidth = 240;       // pixels
constexpr int kFirstDetail = 3;       // the first position behind the part of speech
constexpr int kLastParagraphMark = 7; // a paragraph divider is "x" up to there

QChar chosenCode(const ComboBox& list)
{
    return list.ListIndex() < 0 ? ParsingPattern::kAny : QChar(list.ItemData(list.ListIndex()));
}

void addChoice(ComboBox& list, const ParsingChoice& choice)
{
    list.AddItem(choice.text.toString(), choice.code);
}

// A closed list stands on its first entry, any value.
void setOpen(ComboBox& list, bool open)
{
    list.setEnabled(open);
    if (!open)
        list.setListIndex(0);
}

/// A line below a list, which a screen reader speaks with it.
QLabel* hintOf(ComboBox& list, const QString& text)
{
    auto* hint = new QLabel(text);
    hint->setWordWrap(true);
    list.setAccessibleDescription(text);
    return hint;
}

const PartOfSpeech& chosenPart(const ListBox& list, std::span<const PartOfSpeech> parts)
{
    return parts[static_cast<std::size_t>(std::max(list.ListIndex(), 0))];
}

bool isGreek(WizardPage page)
{
    return page > WizardPage::NPumsa;
}

} // namespace

frmParsingWiz::frmParsingWiz(QWidget* parent) : QDialog(parent)
{
    setObjectName(u"frmParsingWiz"_s);
    setWindowTitle(u"파싱 설정"_s);
    layOut();
    Form_Load();
    wire();
}

void frmParsingWiz::layOut()
{
    wizTab->addTab(testamentPage(), u"Chaek"_s);
    wizTab->addTab(partOfSpeechPage(*lstPumsa), u"Pumsa"_s);
    for (const ParsingPage& page : parsingPages()) {
        // The pages of the two languages each stand behind their parts of speech.
        if (page.page == WizardPage::NMyungsa)
            wizTab->addTab(partOfSpeechPage(*NlstPumsa), u"NPumsa"_s);
        wizTab->addTab(listPage(page), page.key.toString());
    }
    for (int tab = 0; tab < wizTab->count(); ++tab)
        wizTab->widget(tab)->setObjectName(wizTab->Caption(tab));
    // The way leads through the buttons.
    wizTab->tabBar()->hide();
    wizTab->setFocusPolicy(Qt::NoFocus);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* button : {cmdPrev, cmdNext, cmdDone, cmdCancel})
        buttons->addWidget(button);
    allowNext(true);
    auto* column = new QVBoxLayout(this);
    column->addWidget(wizTab);
    column->addLayout(buttons);
}

QWidget* frmParsingWiz::testamentPage()
{
    auto* languages = new QGroupBox(u"구약의 언어"_s);
    auto* languageRows = new QVBoxLayout(languages);
    for (QRadioButton* option : {OpHebrew, OpAram, OpBoth})
        languageRows->addWidget(option);
    auto* page = new QWidget;
    auto* rows = new QVBoxLayout(page);
    rows->addWidget(OpOT);
    rows->addWidget(languages);
    rows->addWidget(OpNT);
    rows->addStretch();
    auto* testaments = new QButtonGroup(this);
    testaments->addButton(OpOT);
    testaments->addButton(OpNT);
    connect(OpOT, &QRadioButton::toggled, languages, &QWidget::setEnabled);
    return page;
}

QWidget* frmParsingWiz::partOfSpeechPage(ListBox& list)
{
    auto* label = new QLabel(u"품사(&P):"_s);
    label->setBuddy(&list);
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->addWidget(label);
    column->addWidget(&list);
    return page;
}

QWidget* frmParsingWiz::listPage(const ParsingPage& page)
{
    auto* widget = new QWidget;
    auto* form = new QFormLayout(widget);
    auto* title = new QLabel(page.title.toString());
    form->addRow(title);
    for (const ParsingField& field : page.fields) {
        auto* list = named<ComboBox>(field.control, field.label);
        list->setMinimumWidth(kListWidth);
        auto* label = new QLabel(field.label.toString() + u':');
        label->setObjectName(field.labelName.toString());
        label->setBuddy(list);
        form->addRow(label, list);
        if (!field.hint.isEmpty())
            form->addRow(QString(), hintOf(*list, field.hint.toString()));
        m_fields[page.page].append(list);
    }
    return widget;
}

void frmParsingWiz::wire()
{
    connect(cmdNext, &QPushButton::clicked, this, [this] { cmdNext_Click(); });
    connect(cmdPrev, &QPushButton::clicked, this, [this] { cmdPrev_Click(); });
    connect(cmdDone, &QPushButton::clicked, this, [this] { cmdDone_Click(); });
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    for (ListBox* list : {lstPumsa, NlstPumsa}) {
        // A part of speech without a page has closed the button.
        list->onClick = [this] { allowNext(true); };
        // Enter reaches the default button by itself.
        connect(list, &QListWidget::itemDoubleClicked, this, [this] { cmdNext_Click(); });
    }
    field(WizardPage::Dongsa1, kAspect).onClick = [this] { cbvSang_Click(); };
    verbField(GreekVerbField::Mood).onClick = [this] { NcbvBup_Click(); };
}

void frmParsingWiz::Form_Load()
{
    SetupList();
    OpOT->setChecked(true);
    OpHebrew->setChecked(true);
    cmdPrev->setEnabled(false);
    cmdDone->setEnabled(false);
    m_pattern.clearFrom(1);
}

void frmParsingWiz::SetupList()
{
    for (const PartOfSpeech& part : semiticPartsOfSpeech())
        lstPumsa->AddItem(part.text.toString());
    for (const PartOfSpeech& part : greekPartsOfSpeech())
        NlstPumsa->AddItem(part.text.toString());
    lstPumsa->setListIndex(0);
    NlstPumsa->setListIndex(0);
    for (const ParsingPage& page : parsingPages()) {
        for (std::size_t i = 0; i < page.fields.size(); ++i) {
            ComboBox& list = field(page.page, static_cast<int>(i));
            for (const ParsingChoice& choice : page.fields[i].choices)
                addChoice(list, choice);
            list.setListIndex(0);
        }
    }
    NcbvBup_Click();
}

void frmParsingWiz::setTestament(Testament testament)
{
    const bool old = testament == Testament::Old;
    (old ? OpOT : OpNT)->setChecked(true);
    OpNT->setEnabled(!old);
}

void frmParsingWiz::goTo(WizardPage page)
{
    wizTab->setTab(static_cast<int>(page));
    if (page == WizardPage::Pumsa)
        lstPumsa->setFocus();
    else if (page == WizardPage::NPumsa)
        NlstPumsa->setFocus();
    else if (page != WizardPage::Chaek)
        field(page, 0).setFocus();
}

void frmParsingWiz::cmdNext_Click()
{
    switch (currentPage()) {
    case WizardPage::Chaek:
        m_pattern.clearFrom(1);
        BuildParsingCode();
        goTo(OpOT->isChecked() ? WizardPage::Pumsa : WizardPage::NPumsa);
        cmdPrev->setEnabled(true);
        // What is chosen on the page of the parts of speech is a pattern already.
        cmdDone->setEnabled(true);
        break;
    case WizardPage::Pumsa:
        BuildParsingCode();
        BranchPos();
        break;
    case WizardPage::Dongsa1:
        BuildParsingCode();
        goTo(WizardPage::Dongsa2);
        allowNext(false);
        break;
    case WizardPage::NPumsa:
        BuildParsingCode();
        BranchNPos();
        break;
    default:
        break;
    }
}

void frmParsingWiz::BranchPos()
{
    const WizardPage page = chosenPart(*lstPumsa, semiticPartsOfSpeech()).page;
    if (page == WizardPage::Chaek) {
        QApplication::beep();
        return;
    }
    goTo(page);
    allowNext(page == WizardPage::Dongsa1);
}

void frmParsingWiz::BranchNPos()
{
    const WizardPage page = chosenPart(*NlstPumsa, greekPartsOfSpeech()).page;
    if (page != WizardPage::Chaek)
        goTo(page);
    allowNext(false);
}

void frmParsingWiz::cmdPrev_Click()
{
    const WizardPage page = currentPage();
    if (page == WizardPage::Chaek) {
        QApplication::beep();
        return;
    }
    if (page == WizardPage::Pumsa || page == WizardPage::NPumsa) {
        goTo(WizardPage::Chaek);
        cmdPrev->setEnabled(false);
        cmdDone->setEnabled(false);
    } else if (page == WizardPage::Dongsa2) {
        goTo(WizardPage::Dongsa1);
    } else {
        goTo(isGreek(page) ? WizardPage::NPumsa : WizardPage::Pumsa);
    }
    allowNext(true);
}

void frmParsingWiz::allowNext(bool allowed)
{
    cmdNext->setEnabled(allowed);
    (allowed ? cmdNext : cmdDone)->setDefault(true);
}

void frmParsingWiz::cmdDone_Click()
{
    BuildParsingCode();
    accept();
}

void frmParsingWiz::reject()
{
    m_pattern.end(1);
    QDialog::reject();
}

void frmParsingWiz::cbvSang_Click()
{
    const AspectFields open = fieldsOfAspect(chosenCode(field(WizardPage::Dongsa1, kAspect)));
    setOpen(field(WizardPage::Dongsa1, kPerson), open.person);
    setOpen(field(WizardPage::Dongsa1, kGender), open.gender);
    setOpen(field(WizardPage::Dongsa1, kNumber), open.number);
    setOpen(field(WizardPage::Dongsa1, kState), open.state);
}

void frmParsingWiz::NcbvBup_Click()
{
    const QChar mood = chosenCode(verbField(GreekVerbField::Mood));
    ComboBox& tenses = verbField(GreekVerbField::Tense);
    const QChar former = chosenCode(tenses);
    tenses.Clear();
    const ParsingPage& page = parsingPage(WizardPage::NDongsa);
    for (const ParsingChoice& tense : page.fields[std::size_t(GreekVerbField::Tense)].choices)
        if (tense.code == ParsingPattern::kAny || tensesOfMood(mood).contains(tense.code))
            addChoice(tenses, tense);
    // A tense that the new mood has too stays chosen.
    tenses.setListIndex(std::max(tenses.findItemData(former.unicode()), 0));

    const MoodFields fields = fieldsOfMood(mood);
    setOpen(verbField(GreekVerbField::Case), fields == MoodFields::Nominal);
    setOpen(verbField(GreekVerbField::Gender), fields == MoodFields::Nominal);
    setOpen(verbField(GreekVerbField::Number), fields != MoodFields::None);
    setOpen(verbField(GreekVerbField::Person), fields == MoodFields::PersonNumber);
}

void frmParsingWiz::BuildParsingCode()
{
    const WizardPage page = currentPage();
    if (page == WizardPage::Chaek)
        buildLanguage();
    else if (page == WizardPage::Pumsa)
        buildPartOfSpeech();
    else if (page == WizardPage::NPumsa)
        buildGreekPartOfSpeech();
    else
        build(page);
}

void frmParsingWiz::buildLanguage()
{
    if (OpNT->isChecked())
        m_pattern.set(1, u'$');
    else if (OpHebrew->isChecked())
        m_pattern.set(1, u'@');
    else
        m_pattern.set(1, OpAram->isChecked() ? u'%' : u'_');
}

void frmParsingWiz::buildPartOfSpeech()
{
    const PartOfSpeech& part = chosenPart(*lstPumsa, semiticPartsOfSpeech());
    m_pattern.clearFrom(kFirstDetail);
    m_pattern.set(2, part.code);
    if (part.page == WizardPage::Chaek) {
        for (int position = kFirstDetail; position <= kLastParagraphMark; ++position)
            m_pattern.set(position, part.code);
        return;
    }
    build(part.page);
    if (part.page == WizardPage::Dongsa1)
        build(WizardPage::Dongsa2);
}

void frmParsingWiz::buildGreekPartOfSpeech()
{
    const PartOfSpeech& part = chosenPart(*NlstPumsa, greekPartsOfSpeech());
    m_pattern.clearFrom(kFirstDetail);
    m_pattern.set(2, part.code);
    if (part.page == WizardPage::Chaek) {
        m_pattern.end(kFirstDetail);
        return;
    }
    build(part.page);
    // Conjunctions and prefixes of any kind are found by their part of speech alone.
    if (part.page == WizardPage::NJupsokJupdusa || part.page == WizardPage::NBunlyJupdusa)
        m_pattern.end(kFirstDetail);
}

void frmParsingWiz::build(WizardPage page)
{
    QList<QChar> chosen;
    for (const ComboBox* list : m_fields[page])
        chosen << chosenCode(*list);
    buildParsingPage(parsingPage(page), chosen, m_pattern);
}

} // namespace lumen
