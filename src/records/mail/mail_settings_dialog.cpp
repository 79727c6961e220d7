// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/mail/mail_settings_dialog.h"

#include "platform/controls/twips.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/registry/registry_store.h"
#include "records/messages.h"

#include <QFormLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kHighestPort = 65535;
constexpr int kFieldWidth = 3600; // twips

} // namespace

dlog전자우편환경설정::dlog전자우편환경설정(Services& services, QWidget* parent)
    : QDialog(parent), m_services(services)
{
    setObjectName(u"dlog전자우편환경설정"_s);
    setWindowTitle(u"전자우편 환경 설정"_s);
    layOut();
    const MailSettings settings = readSettings(services.registry, mailTable());
    tx전자우편->setText(settings.myAddress);
    txSMTP->setText(settings.SMTP);
    spnPort->setValue(settings.Port);
    cbEncryption->setListIndex(settings.Encryption);
    txUserName->setText(settings.UserName);
    connect(cmd확인, &QPushButton::clicked, this, [this] { store(); });
    connect(cmd취소, &QPushButton::clicked, this, &QDialog::reject);
}

void dlog전자우편환경설정::layOut()
{
    spnPort->setRange(0, kHighestPort);
    spnPort->setSpecialValueText(u"자동"_s);
    for (const QString& kind : {u"서버가 하는 대로"_s, u"STARTTLS"_s, u"TLS"_s})
        cbEncryption->AddItem(kind);
    for (QLineEdit* box : {tx전자우편, txSMTP})
        box->setMinimumWidth(toPixels(kFieldWidth));
    auto* fields = new QFormLayout;
    fields->addRow(u"귀하의 전자우편 주소(&M):"_s, tx전자우편);
    fields->addRow(u"메일(SMTP) 서버(&S):"_s, txSMTP);
    auto* frame = new QGroupBox(u"서버가 요구할 때"_s);
    auto* extra = new QFormLayout(frame);
    extra->addRow(u"포트(&P):"_s, spnPort);
    extra->addRow(u"암호화(&E):"_s, cbEncryption);
    extra->addRow(u"사용자 이름(&U):"_s, txUserName);
    extra->addRow(new QLabel(u"비밀번호는 보낼 때 묻고 설정에 적지 않습니다."_s));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmd확인);
    buttons->addWidget(cmd취소);
    cmd확인->setDefault(true);
    cmd취소->setAutoDefault(false);
    auto* column = new QVBoxLayout(this);
    column->addLayout(fields);
    column->addWidget(frame);
    column->addLayout(buttons);
}

void dlog전자우편환경설정::store()
{
    const auto refuse = [this](const MessageText& message, QWidget* field) {
        m_services.messages.show(this, message);
        field->setFocus();
    };
    MailSettings settings = readSettings(m_services.registry, mailTable());
    settings.myAddress = tx전자우편->text().trimmed();
    settings.SMTP = txSMTP->text().trimmed();
    settings.Port = spnPort->value();
    settings.Encryption = std::max(cbEncryption->ListIndex(), 0);
    settings.UserName = txUserName->text().trimmed();
    if (settings.myAddress.isEmpty())
        return refuse(messages::kNoOwnAddress, tx전자우편);
    if (settings.SMTP.isEmpty())
        return refuse(messages::kNoServer, txSMTP);
    saveSettings(m_services.registry, mailTable(), settings);
    const Result<Done> stored = m_services.registry.flush();
    if (!stored)
        m_services.messages.show(this, messages::kMailSettingsNotStored, {stored.failure().detail});
    accept();
}

Result<MailServer> mailServerOf(const MailSettings& settings)
{
    Result<MailServer> server = mailServerOf(QStringView(settings.SMTP));
    if (!server)
        return server;
    MailServer named = server.value();
    if (settings.Port != 0)
        named.port = settings.Port;
    if (settings.Encryption != 0)
        named.encryption = static_cast<MailEncryption>(settings.Encryption);
    named.user = settings.UserName;
    return named;
}

} // namespace lumen
