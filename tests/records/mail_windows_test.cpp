// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/mail/address_dialogs.h"
#include "records/mail/mail_settings_dialog.h"
#include "records/mail/send_mail_window.h"
#include "records/record_fixture.h"
#include "support/active_window.h"

#include <QCheckBox>
#include <QTest>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

/// The address book of a first start, with a sermon in the boxes.
class MailWindowsTest : public RecordFixture
{
protected:
    MailWindowsTest() : book(services.jet, services.state)
    {
        boxes.plain = {u"제목\n둘째 줄"_s, u"말씀"_s, u"본문"_s, u"기도"_s, u"요약"_s};
    }

    static void press(QPushButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
    void setUpServer()
    {
        saveSettings(services.registry, mailTable(),
                     MailSettings{u"mail.example:2525"_s, u"me@example.kr"_s, 0, 1, {}});
    }
    QStringList names()
    {
        QStringList found;
        for (const AddressEntry& entry : book.entries())
            found << entry.name;
        return found;
    }
    void openSending()
    {
        sending = std::make_unique<frm설교문발송>(services.services, services.state, boxes);
        sending->Form_Load();
        showActive(*sending);
    }
    void choose(int row)
    {
        sending->flex목록->setCell(row, 1);
        QTest::keyClick(sending->flex목록, Qt::Key_Space);
    }

    AddressBook book;
    std::unique_ptr<frm설교문발송> sending;
};

TEST_F(MailWindowsTest, TheBookAddsChangesAndKeepsItsLastEntry)
{
    frm전자우편주소록 window(services.services, services.state);
    window.Form_Load();
    showActive(window);
    EXPECT_FALSE(window.cmd수정->isEnabled());
    const auto type = [this](const QString& name, const QString& address, bool store) {
        services.modal.expect([=](QDialog& shown) {
            auto& dialog = static_cast<dlog전자우편주소추가&>(shown);
            dialog.tx성명->setText(name);
            dialog.tx전자우편->setText(address);
            press(store ? dialog.cmd저장 : dialog.cmd취소);
        });
    };
    services.messages.expect(u"성명 누락"_s, u"성명이 입력되지 않았습니다."_s, 48);
    type(u""_s, u"a@b.c"_s, true);
    press(window.cmd추가);
    services.messages.expect(u"전자우편 주소 누락"_s, u"전자우편 주소가 입력되지 않았습니다."_s,
                             48);
    type(u"김"_s, u""_s, true);
    press(window.cmd추가);
    services.messages.expect(u"전자우편 주소 오류"_s, u"전자우편 주소가 잘못 입력되었습니다."_s,
                             48);
    type(u"김"_s, u"a@b"_s, true);
    press(window.cmd추가);
    EXPECT_EQ(names(), QStringList());
    type(u"김"_s, u"a b@c.d"_s, true);
    press(window.cmd추가);
    EXPECT_EQ(names(), QStringList{u"김"_s}) << "a blank is not looked for";
    services.messages.expect(
        u"삭제 불가"_s, u"마지막 항목은 삭제할 수 없습니다. 수정을 이용하시기 바랍니다."_s, 64);
    press(window.cmd삭제);
    type(u"이"_s, u"lee@example.kr"_s, true);
    press(window.cmd추가);
    window.flex주소록->setRow(1);
    type(u"김철수"_s, u"kim@example.kr"_s, true);
    press(window.cmd수정);
    EXPECT_EQ(names(), (QStringList{u"김철수"_s, u"이"_s}));
    window.flex주소록->setRow(2);
    services.messages.expect(u"삭제 확인"_s, u"주소록에서 '이'을 삭제하시겠습니까?"_s, 36,
                             Answer::Yes);
    press(window.cmd삭제);
    EXPECT_EQ(names(), QStringList{u"김철수"_s});
}

TEST_F(MailWindowsTest, TheSettingsNeedAddressAndServer)
{
    dlog전자우편환경설정 dialog(services.services);
    showActive(dialog);
    services.messages.expect(u"전자우편 주소 누락"_s, u"귀하의 전자 우편 주소가 누락되었습니다."_s,
                             48);
    press(dialog.cmd확인);
    dialog.tx전자우편->setText(u"me@example.kr"_s);
    services.messages.expect(u"SMTP 주소 누락"_s,
                             u"귀하의 전자우편(SMTP) 서버 이름이 누락되었습니다."_s, 48);
    press(dialog.cmd확인);
    dialog.txSMTP->setText(u" smtp.example.kr "_s);
    dialog.spnPort->setValue(587);
    dialog.cbEncryption->setListIndex(1);
    dialog.txUserName->setText(u"me"_s);
    press(dialog.cmd확인);
    EXPECT_FALSE(dialog.isVisible());
    const MailSettings stored = readSettings(services.registry, mailTable());
    EXPECT_EQ(stored.SMTP, u"smtp.example.kr"_s);
    const MailServer server = mailServerOf(stored).value();
    EXPECT_EQ(server.port, 587);
    EXPECT_EQ(server.encryption, MailEncryption::StartTls);
    EXPECT_EQ(server.user, u"me"_s);
}

TEST_F(MailWindowsTest, ALetterGoesToThoseWhoAreChosen)
{
    book.save({0, u"김"_s, u"kim@example.kr"_s, {}});
    book.save({0, u"이"_s, u"lee@example.kr"_s, {}});
    book.save({0, u"박"_s, u"park@example.kr"_s, {}});
    openSending();
    EXPECT_EQ(sending->tx제목->text(), u"제목 둘째 줄"_s);
    services.messages.expect(u"수신자 없음"_s, u"메일을 보낼 곳을 선택하시기 바랍니다."_s, 48);
    press(sending->cmd보내기);
    choose(1);
    choose(2);
    choose(2);
    choose(3);
    services.messages.expect(
        u"SMTP 설정 오류"_s,
        u"메일 서버 설정이 되어 있지 않습니다. 전자우편 환경 설정을 하십시요."_s, 16);
    services.modal.expect([](QDialog& dialog) { dialog.reject(); });
    press(sending->cmd보내기);

    setUpServer();
    press(sending->cmd보내기);
    ASSERT_EQ(services.mail.letters.size(), 1U);
    const MailMessage& letter = services.mail.letters.front();
    ASSERT_EQ(letter.recipients.size(), 2);
    EXPECT_EQ(letter.recipients[0].name, u"김"_s);
    EXPECT_EQ(letter.recipients[1].address, u"park@example.kr"_s);
    EXPECT_EQ(letter.body, u"[오늘의 말씀]\n\n말씀\n\n본문\n\n[기도]\n\n기도"_s);
    EXPECT_EQ(services.mail.servers.front().port, 2525);
    services.mail.events.progress(40);
    auto* bar = sending->findChild<QProgressBar*>();
    EXPECT_EQ(bar->value(), 40);
    services.messages.expect(u"전송 에러"_s, u"전송 실패: 김: 없는 사람"_s, 48);
    services.mail.events.finished({true, u"김: 없는 사람"_s, {}, false});
    EXPECT_TRUE(sending->isVisible());
    press(sending->cmd보내기);
    services.messages.expect(u"전송 완료"_s, u"전송이 모두 성공적으로 완료되었습니다."_s, 0);
    services.mail.events.finished({true, {}, {}, false});
    EXPECT_FALSE(sending->isVisible());
}

TEST_F(MailWindowsTest, APasswordIsAskedForAndRememberedOnlyWhenItProvedRight)
{
    book.save({0, u"김"_s, u"kim@example.kr"_s, {}});
    saveSettings(services.registry, mailTable(),
                 MailSettings{u"mail.example"_s, u"me@example.kr"_s, 0, 0, u"me"_s});
    openSending();
    choose(1);
    services.modal.expect([](QDialog& dialog) { dialog.reject(); });
    press(sending->cmd보내기);
    EXPECT_TRUE(services.mail.letters.empty());
    const auto answer = [](QDialog& dialog) {
        dialog.findChild<QLineEdit*>()->setText(u"비밀"_s);
        dialog.findChild<QCheckBox*>()->setChecked(true);
        dialog.accept();
    };
    services.modal.expect(answer);
    press(sending->cmd보내기);
    EXPECT_EQ(services.mail.servers.back().password, u"비밀"_s);
    press(sending->findChild<MailProgress*>()->cmd취소);
    EXPECT_EQ(services.mail.cancelled, 1);
    EXPECT_TRUE(services.secrets.passwords.isEmpty());

    services.modal.expect(answer);
    press(sending->cmd보내기);
    services.messages.expectAny(u"전송 완료"_s, 0);
    services.mail.events.finished({true, {}, {}, false});
    EXPECT_EQ(services.secrets.passwords.value(u"me@mail.example"_s), u"비밀"_s);
    openSending();
    choose(1);
    press(sending->cmd보내기);
    EXPECT_EQ(services.mail.servers.back().password, u"비밀"_s) << "without a question";
    services.messages.expectAny(u"전송 에러"_s, 48);
    services.mail.events.finished({false, u"거절"_s, {}, true});
    EXPECT_TRUE(services.secrets.passwords.isEmpty());
}

} // namespace
} // namespace lumen
