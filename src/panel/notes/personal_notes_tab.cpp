// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/notes/personal_notes_tab.h"

#include "data/app_state.h"
#include "data/module_path.h"
#include "forms/guarded.h"
#include "forms/reader_place.h"
#include "panel/messages.h"
#include "platform/controls/colors.h"
#include "platform/dialogs/message_boxes.h"

#include <QHBoxLayout>
#include <QPalette>
#include <QShortcut>
#include <QVBoxLayout>

#include <initializer_list>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPlaceColumn = 0;
constexpr int kNoteColumn = 1;
constexpr int kTypingPause = 2000; // milliseconds without a key after which a note is saved
constexpr RgbLong kGreyedBox = RGB(200, 200, 200);
/// Place and range have to fit into the 255 characters of the place column.
constexpr int kLongestRange = 200;

/// The box knows "\n" only; the table keeps the line ends that users' files have always had.
QString boxText(QString note)
{
    return note.replace(u"\r\n"_s, u"\n"_s);
}

QString noteText(QString shown)
{
    return shown.replace(u'\n', u"\r\n"_s);
}

} // namespace

PersonalNotesTab::PersonalNotesTab(const PanelHost& host)
    : dacPersnote(host.services.jet), m_page(new QWidget), m_services(host.services),
      m_state(host.state), m_reader(host.reader),
      m_notes(dacPersnote, joinedPath(host.state.AppPath, u"\\Data\\myc.mdb"))
{
    tx개인주석절범위->setMaxLength(kLongestRange);
    tx개인주석절범위->setAccessibleName(u"절 범위"_s);
    flex개인주석목록->setAccessibleName(u"개인 주석 목록"_s);
    flex개인주석목록->setFixedRows(0);
    flex개인주석목록->setCols(2);
    flex개인주석목록->setColHidden(kNoteColumn, true);
    flex개인주석목록->setStretchFrom(kPlaceColumn);
    flex개인주석목록->setRows(0);
    tx개인주석본문->setAccessibleName(u"개인 주석 본문"_s);
    tx개인주석본문->setTabChangesFocus(true);
    layOut();
    wire();
    rowChanged();
}

void PersonalNotesTab::layOut()
{
    // One below the other: the panel is high, and narrow in a small window.
    auto* place = new QHBoxLayout;
    place->addWidget(lbl개인주석책장);
    place->addWidget(tx개인주석절범위, 1);
    auto* buttons = new QVBoxLayout;
    for (QPushButton* button :
         {cmd개인주석추가, cmd개인주석삭제, cmd개인주석위로, cmd개인주석아래로})
        buttons->addWidget(button);
    buttons->addStretch();
    auto* list = new QHBoxLayout;
    list->addWidget(flex개인주석목록, 1);
    list->addLayout(buttons);
    m_page->setFocusProxy(tx개인주석본문);
    auto* layout = new QVBoxLayout(m_page);
    layout->addLayout(place);
    layout->addLayout(list, 1);
    layout->addWidget(tx개인주석본문, 2);
}

void PersonalNotesTab::wire()
{
    QObject::connect(cmd개인주석추가, &QPushButton::clicked, m_page,
                     [this] { Proc개인주석추가(); });
    QObject::connect(cmd개인주석삭제, &QPushButton::clicked, m_page,
                     [this] { cmd개인주석삭제_Click(); });
    QObject::connect(cmd개인주석위로, &QPushButton::clicked, m_page,
                     [this] { moved(m_list.moveUp()); });
    QObject::connect(cmd개인주석아래로, &QPushButton::clicked, m_page,
                     [this] { moved(m_list.moveDown()); });
    QObject::connect(tx개인주석본문, &QPlainTextEdit::textChanged, m_page,
                     [this] { textChanged(); });
    QObject::connect(tx개인주석절범위, &QLineEdit::returnPressed, m_page,
                     [this] { Proc개인주석추가(); });
    auto* remove =
        new QShortcut(Qt::Key_Delete, flex개인주석목록, nullptr, nullptr, Qt::WidgetShortcut);
    QObject::connect(remove, &QShortcut::activated, m_page, [this] { cmd개인주석삭제_Click(); });
    m_typingPause = new QTimer(m_page);
    m_typingPause->setObjectName(u"TypingPause"_s);
    m_typingPause->setSingleShot(true);
    m_typingPause->setInterval(kTypingPause);
    QObject::connect(m_typingPause, &QTimer::timeout, m_page, [this] { saveInBetween(); });
    flex개인주석목록->onSelChange = [this] {
        if (flex개인주석목록->Row() >= 0)
            m_list.edit(flex개인주석목록->Row());
        rowChanged();
    };
}

void PersonalNotesTab::enter()
{
    setStatus(QString());
    enableControls();
    m_told.clear();
    showPlace();
}

void PersonalNotesTab::showPlace()
{
    tellingOnce([this] { Proc개인주석표시(); });
}

void PersonalNotesTab::tellingOnce(const std::function<void()>& work)
{
    try {
        work();
        m_told.clear();
    } catch (const JetError& error) {
        // The same cause at every step through the text, or pause in typing, is told once.
        if (error.text() == m_told)
            return;
        m_told = error.text();
        throw;
    }
}

void PersonalNotesTab::enableControls()
{
    // The button that adds stays: it tells what is wrong.
    const bool isThere = m_state.installed.myc;
    for (QWidget* control : std::initializer_list<QWidget*>{tx개인주석절범위, flex개인주석목록})
        control->setEnabled(isThere);
    // Nothing is typed that can't be kept.
    const bool canWrite = isThere && !m_notes.isReadOnly();
    for (QWidget* control :
         std::initializer_list<QWidget*>{cmd개인주석삭제, cmd개인주석위로, cmd개인주석아래로})
        control->setEnabled(canWrite);
    tx개인주석본문->setReadOnly(m_notes.isReadOnly());
    tx개인주석본문->setToolTip(
        m_notes.isReadOnly() ? QString::fromUtf16(messages::kNotesReadOnly.text) : QString());
}

bool PersonalNotesTab::showsReadersChapter() const
{
    return m_chapter == noteChapter(m_reader.book(), m_reader.chapter());
}

void PersonalNotesTab::showSelection()
{
    if (showsReadersChapter())
        tx개인주석절범위->setText(m_reader.GetCurVerseRange());
}

void PersonalNotesTab::Proc개인주석표시()
{
    if (!m_state.installed.myc)
        return;
    const QString chapter = noteChapter(m_reader.book(), m_reader.chapter());
    if (chapter != m_chapter || !m_notes.isOpen()) {
        // Before the labels change: what fails leaves notes and labels of the former chapter.
        Proc개인주석저장();
        m_stored = m_notes.load(chapter);
        m_list.fill(m_stored);
        m_chapter = chapter;
        lbl개인주석책장->setText(chapter);
        enableControls();
        fillGrid();
        rowChanged();
    }
    tx개인주석절범위->setText(m_reader.GetCurVerseRange());
}

void PersonalNotesTab::Proc개인주석추가()
{
    if (!m_state.installed.myc) {
        m_services.messages.show(m_page, messages::kNotesAbsent);
        return;
    }
    // Notes that could not be read are tried again, and what is wrong is told again.
    if (!showsReadersChapter() && !guarded(m_services, m_page, [this] { Proc개인주석표시(); }))
        return;
    if (m_notes.isReadOnly()) {
        m_services.messages.show(m_page, messages::kNotesReadOnly);
        return;
    }
    const QString place =
        Trim(lbl개인주석책장->text()).toString() + Trim(tx개인주석절범위->text()).toString();
    if (!m_list.add(place)) {
        m_services.messages.show(m_page, messages::kNotePlaceTaken);
        return;
    }
    flex개인주석목록->AddItem({place, QString()});
    flex개인주석목록->AutoSize();
    showGridRow(m_list.editedRow());
    rowChanged();
    tx개인주석본문->setFocus();
}

void PersonalNotesTab::Proc개인주석저장()
{
    const std::vector<Note> notes = storableNotes(m_list.notes());
    // A list that nobody touched stays as it is on disk, also one that holds a note without text.
    if (m_chapter.isEmpty() || notes == m_stored || m_list.notes() == m_stored)
        return;
    m_notes.save(m_chapter, notes);
    m_stored = notes;
}

void PersonalNotesTab::fillGrid()
{
    const RedrawHold hold(*flex개인주석목록);
    flex개인주석목록->setRows(0);
    for (const Note& note : m_list.notes())
        flex개인주석목록->AddItem({note.place, note.text});
    flex개인주석목록->AutoSize();
    showGridRow(m_list.editedRow());
}

void PersonalNotesTab::showGridRow(int row)
{
    if (row < 0)
        return;
    flex개인주석목록->setRow(row);
    flex개인주석목록->ShowRow(row);
}

void PersonalNotesTab::rowChanged()
{
    const bool hasNote = m_list.editedRow() >= 0;
    m_showing = true;
    tx개인주석본문->setPlainText(boxText(m_list.editedText()));
    m_showing = false;
    tx개인주석본문->setEnabled(hasNote);
    QPalette palette; // the application's own colours
    if (!hasNote)
        palette.setColor(QPalette::Base, groundInScheme(toColor(kGreyedBox), QPalette::Window));
    tx개인주석본문->setPalette(palette);
}

void PersonalNotesTab::textChanged()
{
    if (m_showing || m_list.editedRow() < 0)
        return;
    m_list.setText(noteText(tx개인주석본문->toPlainText()));
    flex개인주석목록->setTextMatrix(m_list.editedRow(), kNoteColumn, m_list.editedText());
    m_typingPause->start();
}

void PersonalNotesTab::saveInBetween()
{
    // A power cut may take what was typed last, no more.
    guarded(m_services, m_page, [this] { tellingOnce([this] { Proc개인주석저장(); }); });
}

void PersonalNotesTab::cmd개인주석삭제_Click()
{
    if (m_list.empty() || m_notes.isReadOnly()) // the key asks here too
        return;
    if (m_services.messages.show(m_page, messages::kDeleteNote) != Answer::Ok)
        return;
    flex개인주석목록->RemoveItem(m_list.editedRow());
    m_list.remove();
    showGridRow(m_list.editedRow());
    rowChanged();
}

void PersonalNotesTab::moved(bool hasMoved)
{
    if (hasMoved)
        fillGrid();
}

} // namespace lumen
