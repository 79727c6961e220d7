// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/files/import_messages.h"

#include "platform/dialogs/message_boxes.h"

#include <QApplication>
#include <QLabel>
#include <QProgressDialog>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr qint64 kShowAfterMs = 1000;

// %1 the file, %2 what is missing.
constexpr MessageText kIncomplete{
    u"자료 가져오기",
    u"%1 파일이 손상되어 다 읽지 못했습니다.\r\n%2\r\n\r\n읽은 것만으로 바꾸어 쓸까요? 원본은 "
    u"이름 끝에 .jet을 붙여 같은 폴더에 남겨 둡니다.\r\n[아니요]를 누르면 원본을 그대로 두고 "
    u"읽기 전용으로 보여 줍니다.",
    52};
constexpr MessageText kReadOnly{
    u"자료 가져오기",
    u"%1 파일은 폴더에 쓸 수 없어 읽기 전용으로 보여 줍니다. 고친 것은 저장되지 않습니다.\r\n"
    u"고치려면 파일을 쓸 수 있는 폴더로 옮기거나 폴더의 쓰기 권한을 얻은 뒤에 다시 실행하시기 "
    u"바랍니다.",
    48};
constexpr MessageText kReadOnlyIncomplete{
    u"자료 가져오기",
    u"%1 파일은 폴더에 쓸 수 없어 읽기 전용으로 보여 줍니다. 고친 것은 저장되지 않습니다.\r\n"
    u"또 손상되어 다 읽지 못했습니다.\r\n%2",
    48};

} // namespace

ImportMessages::ImportMessages(MessageBoxes& messages) : m_messages(messages) {}

ImportMessages::~ImportMessages() = default;

bool ImportMessages::takesIncomplete(const QString& path, const QStringList& losses)
{
    if (!m_answers.contains(path)) {
        const Answer answer = m_messages.show(QApplication::activeWindow(), kIncomplete,
                                              {path, losses.join(u"\r\n"_s)});
        m_answers[path] = answer == Answer::Yes;
        // Who has said no knows that the file can only be read.
        m_told += path;
    }
    return m_answers[path];
}

void ImportMessages::isReadOnly(const QString& path, const QStringList& losses)
{
    if (m_told.contains(path) || (m_nothingIsStored && losses.isEmpty()))
        return;
    m_told += path;
    m_messages.show(QApplication::activeWindow(),
                    losses.isEmpty() ? kReadOnly : kReadOnlyIncomplete,
                    {path, losses.join(u"\r\n"_s)});
}

bool ImportMessages::goesOn(const QString& path, qint64 elapsedMs)
{
    if (elapsedMs < kShowAfterMs)
        return true;
    if (!m_progress) {
        m_progress = std::make_unique<QProgressDialog>(QString(), u"그만두기"_s, 0, 0,
                                                       QApplication::activeWindow());
        m_progress->setObjectName(u"dlg가져오기"_s);
        // A long path must not push the button out of the screen.
        auto* label = new QLabel(u"%1 파일을 가져오고 있습니다."_s.arg(path));
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignCenter);
        m_progress->setLabel(label);
        m_progress->setWindowTitle(u"자료 가져오기"_s);
        // Nothing else may be clicked: the opening that waits here stands in the middle of a
        // handler.
        m_progress->setWindowModality(Qt::ApplicationModal);
        m_progress->setMinimumDuration(0);
        m_progress->show();
    }
    QApplication::processEvents();
    return !m_progress->wasCanceled();
}

void ImportMessages::ended()
{
    m_progress.reset();
}

} // namespace lumen
