// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/record_window.h"

#include "data/compact_and_backup.h"
#include "data/messages.h"
#include "forms/files/lost_file.h"
#include "forms/form_geometry.h"
#include "forms/guarded.h"
#include "forms/wait_pointer.h"
#include "forms/window_opener.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/dialogs/modal.h"
#include "platform/files/clock.h"
#include "platform/registry/registry_store.h"
#include "records/history/history_dialog.h"
#include "records/messages.h"
#include "records/search/record_search_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// What a record without a title is stored under at the window's end.
constexpr QStringView kUntitled = u"제목 없음";
constexpr QStringView kMoment = u"yyyy-MM-dd HH:mm";

QString titleOf(const Draft& draft)
{
    for (const DraftPart& part : draft.parts)
        if (part.part == RecordPart::Title && !part.text.trimmed().isEmpty())
            return part.text.trimmed().left(kTitleLength);
    return {};
}

} // namespace

RecordWindow::RecordWindow(const RecordProfile& profile, Services& services, AppState& state,
                           WindowOpener& windows, QWidget* parent)
    : QMainWindow(parent), m_profile(profile), m_services(services), m_state(state),
      m_windows(windows), m_manager(profile, services, state, *this),
      m_export(profile, services, state, *this, this)
{
    setObjectName(profile.names.window.toString());
    setWindowTitle(profile.caption.toString());
    makeBoxes();
    layOut();
    addTools();
    bindTools();
    m_manager.onDraftFailed = [this](const JetError& error) {
        m_services.messages.show(this, messages::kDraftFails, {error.text()});
    };
}

RecordWindow::~RecordWindow() = default;

RecordSearchWindow& RecordWindow::openSearch()
{
    if (!m_search) {
        m_search = std::make_unique<RecordSearchWindow>(m_profile, m_services, m_state);
        m_search->onOpenRecord = [this](int key) {
            if (showRecord(key))
                raiseWindow(*this);
        };
    }
    if (!m_search->isVisible())
        m_search->Form_Load();
    raiseWindow(*m_search);
    return *m_search;
}

QString RecordWindow::plainText(int text) const
{
    return boxes[static_cast<std::size_t>(text)]->Text();
}

QString RecordWindow::rtf(int text) const
{
    return boxes[static_cast<std::size_t>(text)]->TextRTF();
}

void RecordWindow::Form_Load()
{
    m_isLoading = true;
    Proc시동크기위치설정(m_services.registry, m_profile.geometry, *this);
    const WaitPointer wait;
    offerBackup(m_services, m_state, *m_profile.file, this);
    const bool opened = guarded(m_services, this, [this] { m_manager.open(); });
    centralWidget()->setEnabled(opened && m_manager.hasRecord());
    makeCurrent(*boxes[kTitleText]);
    Proc필드표시();
    boxes[kTitleText]->setFocus();
    // Behind the window, so that the question stands over the record that it is about.
    if (opened)
        QTimer::singleShot(0, this, [this] { offerDrafts(); });
    ProcUpdateToolBar();
    Form_Resize();
}

// One after the other, as each is a record of its own that has to be stored before the next.
void RecordWindow::offerDrafts()
{
    while (const std::optional<Draft> draft = m_manager.offeredDraft()) {
        if (!showRecord(draft->key))
            return;
        const QString title = titleOf(*draft);
        const Answer answer = m_services.messages.show(
            this, messages::kDraftFound,
            {title.isEmpty() ? kUntitled.toString() : title, draft->when.toString(kMoment)});
        if (answer == Answer::Cancel)
            return;
        const bool isDone = guarded(m_services, this, [this, answer] {
            if (answer == Answer::Yes)
                m_manager.takeDraft();
            else
                m_manager.dropDraft();
        });
        Proc필드표시();
        if (!isDone || m_manager.isChanged())
            return;
    }
}

void RecordWindow::Proc필드표시()
{
    m_isLoading = true;
    const RecordValues& values = m_manager.values();
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        if (values.rtf[i])
            boxes[i]->setTextRTF(*values.rtf[i]);
        else
            boxes[i]->setText(QString());
    }
    cb분류->setCurrentIndex(cb분류->findItem(values.category.value_or(QString())));
    cb분류->setEditText(values.category.value_or(QString()));
    const QDate today = m_services.clock.now().date();
    dtp설교일->setDate(values.preached.value_or(today));
    dtp작성일->setDate(values.written.value_or(today));
    m_isLoading = false;
    statusPanel1->setText(QString()); // what was told of the record before
    showPosition();
    Form_Resize();
}

void RecordWindow::showPosition()
{
    statusPanel2->setText(m_manager.isOpen() ? m_manager.positionText() : QString());
}

void RecordWindow::changed(RecordPart part)
{
    if (m_isLoading)
        return;
    m_manager.changed(part);
    if (part == RecordPart::Title)
        Form_Resize();
}

// Tells what keeps a record from being stored; true when the user may go on.
bool RecordWindow::Proc저장확인(SaveOutcome outcome)
{
    switch (outcome) {
    case SaveOutcome::Stored:
        return true;
    case SaveOutcome::NoRecord:
        break;
    case SaveOutcome::NoTitle:
        m_services.messages.show(this, m_profile.messages.noTitle);
        boxes[kTitleText]->setFocus();
        break;
    case SaveOutcome::RecordGone:
        if (m_services.messages.show(this, messages::kRecordGone) == Answer::Yes) {
            m_manager.saveAsNew();
            showPosition();
        }
        break;
    }
    return false;
}

// The record stays on show with caret and undo as they are.
void RecordWindow::storeHere()
{
    guarded(m_services, this, [this] {
        if (!Proc저장확인(m_manager.save()))
            return;
        for (RichTextBox* box : boxes)
            box->setStored();
        showPosition();
    });
}

void RecordWindow::moveTo(RecordMove move)
{
    guarded(m_services, this, [this, move] {
        if (Proc저장확인(m_manager.move(move)))
            Proc필드표시();
    });
}

bool RecordWindow::showRecord(int key)
{
    bool isShown = false;
    guarded(m_services, this, [this, key, &isShown] {
        isShown = Proc저장확인(m_manager.goTo(key));
        if (isShown)
            Proc필드표시();
    });
    return isShown;
}

void RecordWindow::addRecord()
{
    guarded(m_services, this, [this] {
        if (!Proc저장확인(m_manager.addNew()))
            return;
        Proc필드표시();
        boxes[kTitleText]->setFocus();
    });
}

void RecordWindow::removeRecord()
{
    if (!m_manager.canRemove()) {
        m_services.messages.show(this, m_profile.messages.lastRecord);
        return;
    }
    if (m_services.messages.show(this, m_profile.messages.confirmDelete) != Answer::Yes)
        return;
    guarded(m_services, this, [this] {
        m_manager.remove();
        Proc필드표시();
    });
}

void RecordWindow::openHistory()
{
    HistoryDialog dialog(m_profile, m_services, m_manager, this);
    dialog.Form_Load();
    m_services.modal.run(dialog);
    if (!dialog.chosen())
        return;
    guarded(m_services, this, [this, &dialog] {
        if (Proc저장확인(m_manager.bringBack(*dialog.chosen())))
            Proc필드표시();
    });
}

void RecordWindow::keepUnsaved()
{
    if (m_manager.isOpen())
        m_manager.writeDraft();
}

// False keeps the window open: the text could not be stored, and the user wants to go on with it.
bool RecordWindow::Form_Unload()
{
    saveFormGeometry(m_services.registry, m_profile.geometry, *this);
    ignoreFailure(m_services.registry.flush(), "unsaved settings never keep the window open");
    if (m_search)
        m_search->close();
    if (m_manager.isOpen() && m_manager.hasRecord()) {
        if (boxes[kTitleText]->Text().isEmpty()) {
            boxes[kTitleText]->setText(kUntitled.toString());
            m_manager.changed(RecordPart::Title);
        }
        const bool isStored = guarded(m_services, this, [this] { Proc저장확인(m_manager.save()); });
        if ((!isStored || m_manager.isChanged()) &&
            m_services.messages.show(this, messages::kNotClosed) != Answer::Yes)
            return false;
    }
    closeNotebook();
    return true;
}

void RecordWindow::closeNotebook()
{
    const WaitPointer wait;
    const bool wasOpen = m_manager.isOpen();
    guarded(m_services, this, [this] { m_manager.close(); });
    if (!wasOpen)
        return;
    QStringList notCopied;
    for (const UserFile* file : m_profile.maintained)
        notCopied << CompactAndBackup(m_state.AppPath, *file, m_services.jet, m_services.files);
    notCopied.removeAll(QString());
    if (!notCopied.isEmpty() && m_state.canStore)
        m_services.messages.show(this, messages::kNotStored, {notCopied.join(u"\r\n"_s)});
}

void RecordWindow::closeEvent(QCloseEvent* event)
{
    if (Form_Unload())
        QMainWindow::closeEvent(event);
    else
        event->ignore();
}

} // namespace lumen
