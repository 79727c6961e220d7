// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/mail/send_mail_window.h"

#include "forms/form_geometry.h"
#include "forms/guarded.h"
#include "platform/controls/twips.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/dialogs/modal.h"
#include "platform/files/clock.h"
#include "platform/mail/secret_store.h"
#include "platform/registry/registry_store.h"
#include "records/mail/mail_settings_dialog.h"
#include "records/messages.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QPointer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// Twips.
constexpr int kWidth = 9000;
constexpr int kHeight = 6000;
constexpr int kCheckWidth = 700;
constexpr int kNameWidth = 1500;
constexpr int kAddressWidth = 3300;
enum Column { kCheck, kName, kAddress, kNote, kColumns };
constexpr QStringView kChecked = u"☑";
constexpr QStringView kUnchecked = u"☐";

} // namespace

MailProgress::MailProgress(QWidget* parent) : QDialog(parent)
{
    setObjectName(u"dlog진행정도"_s);
    setWindowTitle(u"전송 중..."_s);
    setWindowModality(Qt::WindowModal);
    bar->setRange(0, 100);
    auto* column = new QVBoxLayout(this);
    column->addWidget(bar);
    column->addWidget(cmd취소, 0, Qt::AlignRight);
    connect(cmd취소, &QPushButton::clicked, this, [this] { reject(); });
}

void MailProgress::reject()
{
    if (onCancel)
        onCancel();
}

frm설교문발송::frm설교문발송(Services& services, AppState& state, const RecordBoxes& boxes,
                             QWidget* parent)
    : QDialog(parent), m_services(services), m_state(state), m_boxes(boxes),
      m_book(services.jet, state)
{
    setObjectName(u"frm설교문발송"_s);
    setWindowTitle(u"설교문 발송"_s);
    layOut();
    flex목록->onDblClick = [this](int row, int) { toggle(row); };
    flex목록->onClick = [this] {
        if (flex목록->Col() == kCheck)
            toggle(flex목록->Row());
    };
    flex목록->onKeyUp = [this](int key) {
        if (key == Qt::Key_Space)
            toggle(flex목록->Row());
    };
    connect(cmd보내기, &QPushButton::clicked, this, [this] { send(); });
    connect(cmd닫기, &QPushButton::clicked, this, &QDialog::reject);
}

void frm설교문발송::layOut()
{
    resize(toPixels(kWidth), toPixels(kHeight));
    auto* fields = new QFormLayout;
    fields->addRow(u"제목(&T):"_s, tx제목);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(new QLabel(u"받을 사람을 두 번 누르거나 사이 띄개로 고릅니다."_s));
    buttons->addStretch();
    buttons->addWidget(cmd보내기);
    buttons->addWidget(cmd닫기);
    for (QPushButton* button : {cmd보내기, cmd닫기})
        button->setAutoDefault(false);
    auto* column = new QVBoxLayout(this);
    column->addLayout(fields);
    column->addWidget(flex목록, 1);
    column->addLayout(buttons);
}

void frm설교문발송::Form_Load()
{
    Proc시동크기위치설정(m_services.registry, geometry::kSendMail, *this);
    tx제목->setText(m_boxes.plainText(kTitleText).simplified());
    Proc주소목록채우기();
    flex목록->setFocus();
}

void frm설교문발송::Proc주소목록채우기()
{
    std::vector<AddressEntry> entries;
    guarded(m_services, this, [this, &entries] { entries = m_book.entries(); });
    FlexGrid& grid = *flex목록;
    const RedrawHold hold(grid);
    grid.setCols(kColumns);
    grid.setRows(1);
    grid.setSingleLines(true);
    grid.setSelectionMode(GridSelection::Cells);
    grid.setHeaderStyle({.align = GridAlign::Center});
    const QStringList captions{u"발송"_s, u"성명"_s, u"전자우편 주소"_s, u"메모"_s};
    for (int col = 0; col < kColumns; ++col) {
        grid.setTextMatrix(0, col, captions[col]);
        grid.setColStyle(col, {.family = u"굴림"_s,
                               .points = 9,
                               .align = col == kCheck ? GridAlign::Center : GridAlign::Inherit});
    }
    grid.setColWidth(kCheck, kCheckWidth);
    grid.setColWidth(kName, kNameWidth);
    grid.setColWidth(kAddress, kAddressWidth);
    grid.setStretchFrom(kNote);
    for (const AddressEntry& entry : entries)
        grid.AddItem({kUnchecked.toString(), entry.name, entry.address, entry.note});
    if (!entries.empty())
        grid.setCell(1, kCheck);
}

void frm설교문발송::toggle(int row)
{
    if (row < 1)
        return;
    const bool was = flex목록->TextMatrix(row, kCheck) == kChecked;
    flex목록->setTextMatrix(row, kCheck, (was ? kUnchecked : kChecked).toString());
}

QList<MailAddress> frm설교문발송::recipients() const
{
    QList<MailAddress> chosen;
    for (int row = 1; row < flex목록->Rows(); ++row) {
        if (flex목록->TextMatrix(row, kCheck) != kChecked)
            continue;
        QList<MailAddress> addresses = mailAddressesOf(flex목록->TextMatrix(row, kAddress));
        if (addresses.size() == 1)
            addresses.first().name = flex목록->TextMatrix(row, kName);
        chosen << addresses;
    }
    return chosen;
}

// True when the settings are there behind it.
bool frm설교문발송::askSettings(const MessageText& message)
{
    m_services.messages.show(this, message);
    dlog전자우편환경설정 dialog(m_services, this);
    m_services.modal.run(dialog);
    return false;
}

void frm설교문발송::askPassword(const MailSettings& settings, const MailServer& server)
{
    QDialog dialog(this);
    dialog.setObjectName(u"dlogPassword"_s);
    dialog.setWindowTitle(u"메일 비밀번호"_s);
    auto* box = named<QLineEdit>(u"txPassword", u"비밀번호");
    box->setEchoMode(QLineEdit::Password);
    auto* remember = named<QCheckBox>(u"chkRemember", u"데스크톱의 암호 보관함에 기억하기(&R)");
    auto* confirm = named<QPushButton>(u"cmd확인", u"확인(&O)");
    auto* column = new QVBoxLayout(&dialog);
    column->addWidget(new QLabel(u"%1의 비밀번호를 입력하십시오."_s.arg(server.user)));
    column->addWidget(box);
    column->addWidget(remember);
    column->addWidget(confirm, 0, Qt::AlignRight);
    connect(confirm, &QPushButton::clicked, &dialog, &QDialog::accept);
    if (m_services.modal.run(dialog) != QDialog::Accepted)
        return;
    MailServer named = server;
    named.password = box->text();
    m_toRemember = remember->isChecked() ? std::optional(named.password) : std::nullopt;
    sendLetter(settings, named);
}

void frm설교문발송::send()
{
    if (recipients().isEmpty()) {
        m_services.messages.show(this, messages::kNoRecipient);
        return;
    }
    const MailSettings settings = readSettings(m_services.registry, mailTable());
    if (settings.SMTP.isEmpty()) {
        askSettings(messages::kNoServerSet);
        return;
    }
    if (settings.myAddress.isEmpty()) {
        askSettings(messages::kNoOwnAddressSet);
        return;
    }
    Result<MailServer> server = mailServerOf(settings);
    if (!server) {
        m_services.messages.show(this, messages::kSendingFailed, {server.failure().detail});
        return;
    }
    const MailServer named = server.value();
    m_toRemember.reset();
    m_account = named.user.isEmpty() ? QString() : named.user + u'@' + named.host;
    if (m_account.isEmpty())
        return sendLetter(settings, named);
    m_services.secrets.read(m_account, [this, guard = QPointer<QObject>(this), settings,
                                        named](const std::optional<QString>& password) {
        if (!guard)
            return;
        if (!password)
            return askPassword(settings, named);
        MailServer known = named;
        known.password = *password;
        sendLetter(settings, known);
    });
}

QString frm설교문발송::letterBody() const
{
    return u"[오늘의 말씀]\n\n"_s + m_boxes.plainText(1) + u"\n\n"_s + m_boxes.plainText(2) +
           u"\n\n[기도]\n\n"_s + m_boxes.plainText(3);
}

void frm설교문발송::sendLetter(const MailSettings& settings, const MailServer& server)
{
    m_progress = std::make_unique<MailProgress>(this);
    m_progress->onCancel = [this] {
        m_services.mail.cancel();
        m_progress->hide();
    };
    m_progress->show();
    MailMessage letter;
    letter.sender.address = settings.myAddress;
    letter.recipients = recipients();
    letter.subject = tx제목->text();
    letter.body = letterBody();
    letter.date = m_services.clock.now();
    MailEvents events;
    events.progress = [this](int percent) { m_progress->bar->setValue(percent); };
    events.finished = [this](const MailReport& report) { finished(report); };
    const Result<Done> begun = m_services.mail.send(letter, server, std::move(events));
    if (begun)
        return;
    m_progress->hide();
    m_services.messages.show(this, messages::kSendingFailed, {begun.failure().detail});
}

// One who was refused is told of; the letter has gone to the others.
void frm설교문발송::finished(const MailReport& report)
{
    m_progress->hide();
    if (report.loginRefused && !m_account.isEmpty())
        m_services.secrets.remove(m_account); // asked for again next time
    else if (m_toRemember && report.delivered)
        m_services.secrets.write(m_account, *m_toRemember);
    m_toRemember.reset();
    if (report.delivered && report.failure.isEmpty()) {
        m_services.messages.show(this, messages::kSent);
        close();
        return;
    }
    m_services.messages.show(this, messages::kSendingFailed, {report.failure});
}

void frm설교문발송::done(int result)
{
    m_services.mail.cancel();
    saveFormGeometry(m_services.registry, geometry::kSendMail, *this);
    ignoreFailure(m_services.registry.flush(), "unsaved settings never keep the window open");
    QDialog::done(result);
}

} // namespace lumen
