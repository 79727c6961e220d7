// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/verse_range_dialog.h"

#include "data/data_store.h"
#include "data/module_path.h"
#include "data/window_geometry.h"
#include "forms/form_geometry.h"
#include "forms/guarded.h"
#include "forms/versions/book_combo.h"
#include "forms/wait_pointer.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/registry/registry_store.h"
#include "text/basic_text.h"
#include "tools/messages.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QIntValidator>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr VersionChoiceRule kVersionRule{0, AbsentVersion::ParallelFile};
/// More digits than any number of a chapter or verse has.
constexpr int kLargestTyped = 9999;

MessageText mendingMessage(RangeMending mending)
{
    switch (mending) {
    case RangeMending::Swapped:
        return messages::kVersesSwapped;
    case RangeMending::LastVerse:
        return messages::kLastVerseTaken;
    case RangeMending::LastChapter:
        break;
    }
    return messages::kLastChapterTaken;
}

void makeNumberBox(ComboBox& box)
{
    box.setEditable(true);
    box.setInsertPolicy(QComboBox::NoInsert);
    box.setCompleter(nullptr); // would make a typed 1 a 10
    box.setValidator(new QIntValidator(0, kLargestTyped, &box));
}

void fillNumbers(ComboBox& box, int count)
{
    box.Clear();
    for (int number = 1; number <= count; ++number)
        box.AddItem(QString::number(number));
    box.clearEditText();
}

void showNumber(ComboBox& box, int number)
{
    box.setListIndex(number - 1);
    box.setEditText(QString::number(number)); // also when the index was chosen and the text typed
}

} // namespace

VerseRangeDialog::VerseRangeDialog(Services& services, const AppState& state,
                                   const VerseRangeFace& face, QWidget* parent)
    : QDialog(parent), m_services(services), m_state(state), m_face(face),
      m_versions(services, state, kVersionRule), dac기본(services.jet),
      m_command(named<QPushButton>(face.command, face.commandCaption))
{
    setObjectName(face.objectName.toString());
    setWindowTitle(face.title.toString());
    for (ComboBox* box : {cb장, cb시작절, cb끝절})
        makeNumberBox(*box);
    layOut();
    wire();
}

void VerseRangeDialog::layOut()
{
    auto* range = new QFormLayout;
    range->addRow(u"역본(&V)"_s, cb버전);
    range->addRow(u"책(&B)"_s, cb책명);
    range->addRow(u"장(&H)"_s, cb장);
    range->addRow(u"시작 절(&S)"_s, cb시작절);
    range->addRow(u"끝 절(&E)"_s, cb끝절);

    auto* form = new QGroupBox(u"형식"_s);
    auto* formLayout = new QVBoxLayout(form);
    for (QCheckBox* box : {chkVerNum, chkVerLf, chkTail})
        formLayout->addWidget(box);

    auto* buttons = new QHBoxLayout;
    m_buttons = buttons;
    buttons->addStretch();
    buttons->addWidget(m_command);
    buttons->addWidget(cmd취소);
    m_command->setDefault(true);
    cmd취소->setAutoDefault(false);

    m_ownControls = new QVBoxLayout;
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(range);
    layout->addWidget(form);
    layout->addLayout(m_ownControls);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void VerseRangeDialog::wire()
{
    const auto onClick = [this](ComboBox* box, void (VerseRangeDialog::*handler)()) {
        box->onClick = [this, handler] { guarded(m_services, this, [&] { (this->*handler)(); }); };
    };
    onClick(cb버전, &VerseRangeDialog::cb버전_Click);
    onClick(cb책명, &VerseRangeDialog::cb책명_Click);
    onClick(cb장, &VerseRangeDialog::cb장_Click);
    connect(cb장->lineEdit(), &QLineEdit::editingFinished, this, [this] { typedChapterEnded(); });
    connect(m_command, &QPushButton::clicked, this,
            [this] { guarded(m_services, this, [this] { takeVerses(); }); });
    connect(cmd취소, &QPushButton::clicked, this, &QDialog::reject);
}

void VerseRangeDialog::Form_Load()
{
    m_settings = readExtractSettings(m_services.registry);
    m_versions.fill(*cb버전);
    FillBookCombo(*cb책명);
    chkVerNum->setChecked(m_settings.AtchVerNum);
    chkVerLf->setChecked(m_settings.VerLf);
    chkTail->setChecked(m_settings.Tail);
    guarded(m_services, this, [this] {
        chooseFirstVersion();
        // Each list is filled by the choice before it, so the order is that of the controls.
        cb책명->setListIndex(std::clamp(m_settings.BookNum, 0, cb책명->ListCount() - 1));
        cb장->setListIndex(m_settings.ChapNum);
        cb시작절->setListIndex(std::max(0, m_settings.SVerse));
        if (m_settings.EVerse >= 0) // else the last one, which stands there already
            cb끝절->setListIndex(m_settings.EVerse);
    });
    adjustSize();
    restorePosition(m_services.registry, geometry::kExtract, *this);
}

void VerseRangeDialog::done(int result)
{
    m_settings.Version = cb버전->ListIndex();
    m_settings.BookNum = cb책명->ListIndex();
    m_settings.ChapNum = ValInt(cb장->currentText()) - 1;
    m_settings.SVerse = ValInt(cb시작절->currentText()) - 1;
    m_settings.EVerse = ValInt(cb끝절->currentText()) - 1;
    m_settings.AtchVerNum = chkVerNum->isChecked();
    m_settings.VerLf = chkVerLf->isChecked();
    m_settings.Tail = chkTail->isChecked();
    saveSettings(m_services.registry, extractTable(), m_settings);
    saveFormPosition(m_services.registry, geometry::kExtract, *this);
    ignoreFailure(m_services.registry.flush(), "unsaved settings never keep a dialog open");
    dac기본.Close();
    QDialog::done(result);
}

void VerseRangeDialog::chooseFirstVersion()
{
    int index = restoredVersionIndex(m_versions.items(), m_settings.Version);
    for (int tries = cb버전->ListCount(); tries > 0; --tries) {
        m_version = m_versions.choose(this, index, true);
        if (m_version.accepted)
            break;
        index = m_version.index;
    }
    const auto click = std::exchange(cb버전->onClick, {}); // chosen already
    cb버전->setListIndex(index);
    cb버전->onClick = click;
}

void VerseRangeDialog::cb버전_Click()
{
    const ChosenVersion choice = m_versions.choose(this, cb버전->ListIndex(), false);
    if (!choice.accepted) {
        cb버전->setListIndex(choice.index);
        return;
    }
    m_version = choice;
    if (cb책명->ListIndex() < 0)
        return;
    keepRange();
    fillChapters(connect_text::kDialog);
    showKeptRange();
}

void VerseRangeDialog::keepRange()
{
    if (cb시작절->ListCount() == 0)
        return; // a version without the book; the range of the one before it stays in mind
    m_kept = typedRange();
    m_keptToEnd = m_kept->lastVerse == cb끝절->ListCount();
}

void VerseRangeDialog::showKeptRange()
{
    if (!m_kept || cb장->ListCount() == 0)
        return;
    cb장->setListIndex(std::clamp(m_kept->chapter, 1, cb장->ListCount()) - 1);
    const int verses = cb끝절->ListCount();
    if (verses == 0)
        return;
    showNumber(*cb시작절, std::clamp(m_kept->firstVerse, 1, verses));
    showNumber(*cb끝절, m_keptToEnd ? verses : std::clamp(m_kept->lastVerse, 1, verses));
}

void VerseRangeDialog::cb책명_Click()
{
    m_kept.reset();
    fillChapters(connect_text::kDialogBookChange);
}

void VerseRangeDialog::cb장_Click()
{
    if (openModule(connect_text::kDialog))
        fillVerses();
}

void VerseRangeDialog::typedChapterEnded()
{
    // A chapter that the book doesn't have is left for the command to tell.
    const int index = ValInt(cb장->currentText()) - 1;
    if (index >= 0)
        cb장->setListIndex(index);
}

bool VerseRangeDialog::openModule(QStringView connect)
{
    const auto path = findModule(m_services.files, m_state, versionFile(m_version.code));
    if (!path) {
        m_services.messages.show(this,
                                 absentVersionMessage(m_version.code, AbsentVersion::ParallelFile));
        return false;
    }
    dac기본.DatabaseName = *path;
    dac기본.Connect = connect.toString();
    return true;
}

void VerseRangeDialog::fillChapters(QStringView connect)
{
    if (!openModule(connect))
        return;
    const WaitPointer wait;
    const int book = cb책명->ListIndex();
    dac기본.RecordSource = bookRowsQuery(m_version.tableName, book);
    dac기본.Refresh();
    fillNumbers(*cb장, highestChapter(*dac기본.Recordset(), book));
    fillNumbers(*cb시작절, 0);
    fillNumbers(*cb끝절, 0);
    cb장->setListIndex(0);
}

void VerseRangeDialog::fillVerses()
{
    const int verses = versesIn(cb장->ListIndex() + 1);
    fillNumbers(*cb시작절, verses);
    fillNumbers(*cb끝절, verses);
    cb시작절->setListIndex(0);
    cb끝절->setListIndex(verses - 1);
}

int VerseRangeDialog::versesIn(int chapter)
{
    dac기본.RecordSource = chapterRowsQuery(m_version.tableName, cb책명->ListIndex(), chapter);
    dac기본.Refresh();
    return highestVerse(*dac기본.Recordset());
}

ExtractRange VerseRangeDialog::typedRange() const
{
    return {cb책명->ListIndex(), ValInt(cb장->currentText()), ValInt(cb시작절->currentText()),
            ValInt(cb끝절->currentText())};
}

void VerseRangeDialog::showRange(const ExtractRange& range)
{
    showNumber(*cb장, range.chapter);
    showNumber(*cb시작절, range.firstVerse);
    showNumber(*cb끝절, range.lastVerse);
}

void VerseRangeDialog::addButton(QPushButton* button)
{
    button->setAutoDefault(false);
    m_buttons->insertWidget(m_buttons->indexOf(cmd취소), button);
}

void VerseRangeDialog::takeVerses()
{
    if (!openModule(connect_text::kDialogEnded))
        return;
    ExtractRange range = typedRange();
    ExtractLimits limits;
    limits.chapters = cb장->ListCount();
    limits.verses = versesIn(std::min(range.chapter, limits.chapters));
    const std::vector<RangeMending> mendings = mendRange(range, limits);
    for (const RangeMending mending : mendings)
        m_services.messages.show(this, mendingMessage(mending));
    if (!mendings.empty())
        showRange(range);

    dac기본.RecordSource = extractQuery(m_version.tableName, range);
    dac기본.Refresh();
    const ExtractForm form{chkVerNum->isChecked(), chkVerLf->isChecked(), chkTail->isChecked()};
    const auto text = composeExtract(*dac기본.Recordset(), m_version.code, range, form);
    if (text)
        deliver(*text, range);
    else
        m_services.messages.show(this, m_face.nothingFound);
}

} // namespace lumen
