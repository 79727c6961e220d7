// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/settings.h"
#include "forms/services.h"
#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"
#include "platform/mail/mail_server.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace lumen {

/// How mail leaves: the sender's address and the server, and what today's servers ask for beside
/// its name. The password is asked for when mail is sent and never stands among the settings.
class dlog전자우편환경설정 : public QDialog // no Q_OBJECT: moc cannot read the name
{
public:
    explicit dlog전자우편환경설정(Services& services, QWidget* parent = nullptr);

    QLineEdit* tx전자우편 = named<QLineEdit>(u"tx전자우편", u"귀하의 전자우편 주소");
    QLineEdit* txSMTP = named<QLineEdit>(u"txSMTP", u"메일(SMTP) 서버");
    QSpinBox* spnPort = named<QSpinBox>(u"spnPort", u"포트");
    ComboBox* cbEncryption = named<ComboBox>(u"cbEncryption", u"암호화");
    QLineEdit* txUserName = named<QLineEdit>(u"txUserName", u"사용자 이름");
    QPushButton* cmd확인 = named<QPushButton>(u"cmd확인", u"확인(&O)");
    QPushButton* cmd취소 = named<QPushButton>(u"cmd취소", u"취소(&C)");

private:
    void layOut();
    void store();

    Services& m_services;
};

/// The server as the settings name it; a failure in Korean where they can't be read.
Result<MailServer> mailServerOf(const MailSettings& settings);

} // namespace lumen
