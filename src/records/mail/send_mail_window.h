// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "data/settings.h"
#include "forms/services.h"
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/named.h"
#include "platform/mail/mail_sender.h"
#include "records/mail/address_book.h"
#include "records/record_values.h"

#include <QDialog>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>

namespace lumen {

/// How far a letter has come, with a button that breaks it off.
class MailProgress : public QDialog
{
public:
    explicit MailProgress(QWidget* parent);
    void reject() override;

    QProgressBar* bar = named<QProgressBar>(u"bar", u"진행 정도");
    QPushButton* cmd취소 = named<QPushButton>(u"cmd취소", u"취소(&C)");
    std::function<void()> onCancel;
};

/// Sends the sermon on the screen to people chosen from the address book.
class frm설교문발송 : public QDialog // no Q_OBJECT: moc cannot read the name
{
public:
    /// `boxes` hold the sermon as it is when the button is pressed.
    frm설교문발송(Services& services, AppState& state, const RecordBoxes& boxes,
                  QWidget* parent = nullptr);

    void Form_Load();

    QLineEdit* tx제목 = named<QLineEdit>(u"tx제목", u"제목");
    FlexGrid* flex목록 = named<FlexGrid>(u"flex목록", u"받는 사람");
    QPushButton* cmd보내기 = named<QPushButton>(u"cmd보내기", u"보내기(&S)");
    QPushButton* cmd닫기 = named<QPushButton>(u"cmd닫기", u"닫기(&C)");

    void done(int result) override;

private:
    void layOut();
    void Proc주소목록채우기();
    void toggle(int row);
    QList<MailAddress> recipients() const;
    void send();
    bool askSettings(const MessageText& message);
    void askPassword(const MailSettings& settings, const MailServer& server);
    void sendLetter(const MailSettings& settings, const MailServer& server);
    void finished(const MailReport& report);
    QString letterBody() const;

    Services& m_services;
    AppState& m_state;
    const RecordBoxes& m_boxes;
    AddressBook m_book;
    std::unique_ptr<MailProgress> m_progress;
    QString m_account;                   ///< that the last password belongs to, "" for none
    std::optional<QString> m_toRemember; ///< a password to be kept once it has proved right
};

} // namespace lumen
