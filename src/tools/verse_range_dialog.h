// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/settings.h"
#include "forms/services.h"
#include "forms/versions/version_choice.h"
#include "jet/data_control.h"
#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"
#include "tools/verse_extract.h"

#include <QCheckBox>
#include <QDialog>
#include <QPushButton>

#include <optional>

class QBoxLayout;

namespace lumen {

/// In what the two dialogs that take verses out of a version differ, apart from where the text
/// goes.
struct VerseRangeFace
{
    QStringView objectName;
    QStringView title;
    QStringView command; ///< object name of the button
    QStringView commandCaption;
    MessageText nothingFound{};
};

/// The common part of dlog성서추출 and dlog성구삽입: version and range, the checks and the
/// composition. A derived dialog says in deliver() where the text goes.
class VerseRangeDialog : public QDialog // no Q_OBJECT: moc cannot read the members' names
{
public:
    VerseRangeDialog(Services& services, const AppState& state, const VerseRangeFace& face,
                     QWidget* parent);

    /// Fills the lists and shows the range of the last time.
    virtual void Form_Load();
    /// Saves range and position; every way of closing comes here.
    void done(int result) override;

    ComboBox* cb버전 = named<ComboBox>(u"cb버전", u"역본");
    ComboBox* cb책명 = named<ComboBox>(u"cb책명", u"책");
    ComboBox* cb장 = named<ComboBox>(u"cb장", u"장");
    ComboBox* cb시작절 = named<ComboBox>(u"cb시작절", u"시작 절");
    ComboBox* cb끝절 = named<ComboBox>(u"cb끝절", u"끝 절");
    QCheckBox* chkVerNum = named<QCheckBox>(u"chkVerNum", u"절 번호 붙이기(&N)");
    QCheckBox* chkVerLf = named<QCheckBox>(u"chkVerLf", u"절마다 줄 바꾸기(&L)");
    QCheckBox* chkTail = named<QCheckBox>(u"chkTail", u"끝에 출처 붙이기(&T)");
    QPushButton* cmd취소 = named<QPushButton>(u"cmd취소", u"취소(&C)");

protected:
    /// Takes the composed text; the range is the mended one.
    virtual void deliver(const QString& text, const ExtractRange& range) = 0;
    /// Where a derived dialog puts controls of its own, above the buttons.
    QBoxLayout& ownControls() { return *m_ownControls; }
    /// What Form_Load has read and done() writes.
    ExtractSettings& settings() { return m_settings; }
    Services& services() { return m_services; }
    /// Checks the range, composes its text and delivers it.
    void takeVerses();
    /// A button beside the dialog's own.
    void addButton(QPushButton* button);

private:
    void layOut();
    void wire();
    void chooseFirstVersion();
    void cb버전_Click();
    void cb책명_Click();
    void cb장_Click();
    void typedChapterEnded();
    bool openModule(QStringView connect);
    int versesIn(int chapter);
    void fillChapters(QStringView connect);
    void fillVerses();
    void keepRange();
    void showKeptRange();
    ExtractRange typedRange() const;
    void showRange(const ExtractRange& range);

    Services& m_services;
    const AppState& m_state;
    VerseRangeFace m_face;
    VersionChoice m_versions;
    ChosenVersion m_version;
    DataControl dac기본;
    ExtractSettings m_settings;
    /// What a change of version keeps: the range that was shown last, and whether it went to the
    /// chapter's end. Nothing for a book that was just chosen.
    std::optional<ExtractRange> m_kept;
    bool m_keptToEnd = false;
    QBoxLayout* m_ownControls = nullptr;
    QBoxLayout* m_buttons = nullptr;
    QPushButton* m_command;
};

} // namespace lumen
