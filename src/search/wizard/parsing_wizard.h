// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"
#include "platform/controls/tab_control.h"
#include "search/verses/book_selection_dialog.h"
#include "search/wizard/parsing_pages.h"

#include <QDialog>
#include <QMap>
#include <QPushButton>
#include <QRadioButton>

namespace lumen {

/// The wizard in which a user composes a morphological pattern by choosing from lists: language,
/// part of speech, then what that has. After Accepted, code() is the pattern; else it is "".
class frmParsingWiz : public QDialog // no Q_OBJECT: nothing here emits
{
public:
    explicit frmParsingWiz(QWidget* parent = nullptr);

    /// Chooses the language of the condition; Hebrew leaves no way to the Greek pages.
    void setTestament(Testament testament);
    /// In the alphabet of BibleCode::ParsingDecoder, "_" for any character.
    QString code() const { return m_pattern.code(); }

    TabControl* wizTab = named<TabControl>(u"wizTab", u"파싱 설정");
    QRadioButton* OpOT = named<QRadioButton>(u"OpOT", u"구약(&O)");
    QRadioButton* OpNT = named<QRadioButton>(u"OpNT", u"신약 (헬라어)(&T)");
    QRadioButton* OpHebrew = named<QRadioButton>(u"OpHebrew", u"히브리어(&H)");
    QRadioButton* OpAram = named<QRadioButton>(u"OpAram", u"아람어(&A)");
    QRadioButton* OpBoth = named<QRadioButton>(u"OpBoth", u"히브리어와 아람어(&E)");
    ListBox* lstPumsa = named<ListBox>(u"lstPumsa", u"품사");
    ListBox* NlstPumsa = named<ListBox>(u"NlstPumsa", u"헬라어 품사");
    QPushButton* cmdPrev = named<QPushButton>(u"cmdPrev", u"이전(&B)");
    QPushButton* cmdNext = named<QPushButton>(u"cmdNext", u"다음(&N)");
    QPushButton* cmdDone = named<QPushButton>(u"cmdDone", u"마침(&F)");
    QPushButton* cmdCancel = named<QPushButton>(u"cmdCancel", u"취소");

    void reject() override;

private:
    void layOut();
    QWidget* testamentPage();
    QWidget* partOfSpeechPage(ListBox& list);
    QWidget* listPage(const ParsingPage& page);
    void wire();
    void Form_Load();
    void SetupList();

    void cmdNext_Click();
    void cmdPrev_Click();
    void cmdDone_Click();
    void cbvSang_Click();
    void NcbvBup_Click();
    void BranchPos();
    void BranchNPos();
    /// Shows a page and puts the focus on its first list.
    void goTo(WizardPage page);
    /// Opens or closes cmdNext; Enter then presses cmdNext or cmdDone.
    void allowNext(bool allowed);
    WizardPage currentPage() const { return static_cast<WizardPage>(wizTab->Tab()); }

    void BuildParsingCode();
    void buildLanguage();
    void buildPartOfSpeech();
    void buildGreekPartOfSpeech();
    void build(WizardPage page);
    ComboBox& field(WizardPage page, int index) const { return *m_fields[page].at(index); }
    ComboBox& verbField(GreekVerbField index) const
    {
        return field(WizardPage::NDongsa, static_cast<int>(index));
    }

    QMap<WizardPage, QList<ComboBox*>> m_fields; ///< in the order of the page's table
    ParsingPattern m_pattern;                    ///< the ParsingCode
};

} // namespace lumen
