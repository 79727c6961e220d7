// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mail/mail_message.h"
#include "platform/mail/mail_server.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TEST(MailAddressTest, AnAddressIsMadeFitForTheServerOrRefused)
{
    struct Case
    {
        QString typed;
        QByteArray wire; ///< empty: refused
    };
    const QList<Case> cases = {
        {u" kim@church.kr "_s, "kim@church.kr"},
        {u"kim.chul-su+a@church.kr"_s, "kim.chul-su+a@church.kr"},
        {u"kim chulsu@church.kr"_s, "\"kim chulsu\"@church.kr"},
        {u"kim..su@church.kr"_s, "\"kim..su\"@church.kr"},
        {u"\"kim su\"@church.kr"_s, "\"kim su\"@church.kr"},
        {u"kim,lee@church.kr"_s, "\"kim,lee\"@church.kr"},
        {u"kim@교회.한국"_s, "kim@xn--9d0bz59e.xn--3e0b707e"},
        {u"kim@church.kr>\r\nRCPT TO:<lee@church.kr"_s, {}},
        {u"kim@church.kr> NOTIFY=NEVER"_s, {}},
        {u"<kim@church.kr"_s, {}},
        {u"kim@lee@church.kr"_s, {}},
        {u"김@church.kr"_s, {}},
        {u"kim@church kr"_s, {}},
        {u"@church.kr"_s, {}},
        {u"kim@"_s, {}},
        {u"church.kr"_s, {}},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.typed.toStdString());
        const auto found = wireAddress({u"김"_s, one.typed});
        EXPECT_EQ(found ? found.value() : QByteArray(), one.wire);
        EXPECT_FALSE(!found && found.failure().detail.contains(u'\n'));
    }
}

TEST(MailAddressTest, AListIsPartedAtSemicolons)
{
    const auto found = mailAddressesOf(u"; a@b.kr ;;c@d.kr; ");
    ASSERT_EQ(found.size(), 2);
    EXPECT_EQ(found[0].address, u"a@b.kr"_s);
    EXPECT_EQ(found[1].address, u"c@d.kr"_s);
}

TEST(MailMessageTest, NoTextWritesAHeaderOfItsOwn)
{
    const QList<QString> attacks = {u"\r\nBcc: x@y.kr"_s, u"\nX"_s,     u"\rX"_s,
                                    u"\u0085X"_s,         u"\u2028X"_s, QString(QChar(0))};
    const MailMessage good{{u"김"_s, u"kim@church.kr"_s},
                           {{u"이"_s, u"lee@church.kr"_s}},
                           u"제목"_s,
                           u"말씀"_s,
                           QDateTime::currentDateTime()};
    ASSERT_TRUE(composeMail(good).ok());
    for (const QString& attack : attacks) {
        for (int place = 0; place < 5; ++place) {
            MailMessage bad = good;
            QString* const texts[] = {&bad.subject, &bad.sender.name, &bad.sender.address,
                                      &bad.recipients[0].name, &bad.recipients[0].address};
            *texts[place] += attack;
            const auto found = composeMail(bad);
            EXPECT_FALSE(found.ok()) << place << ' ' << attack.toStdString();
            EXPECT_FALSE(found.ok() || found.failure().detail.isEmpty());
        }
    }
}

TEST(MailServerTest, AServerIsReadFromWhatIsTyped)
{
    struct Case
    {
        QString typed;
        QByteArray url; ///< empty: refused
    };
    const QList<Case> cases = {
        {u" mail.church.kr "_s, "smtp://mail.church.kr:25"},
        {u"mail.church.kr:587"_s, "smtp://mail.church.kr:587"},
        {u"smtp://mail.church.kr:2525/"_s, "smtp://mail.church.kr:2525"},
        {u"smtps://mail.church.kr"_s, "smtps://mail.church.kr:465"},
        {u"메일.교회.한국"_s, "smtp://xn--h32bq4v.xn--9d0bz59e.xn--3e0b707e:25"},
        {u"[::1]:2525"_s, "smtp://[::1]:2525"},
        {u"http://mail.church.kr"_s, {}},
        {u"mail.church.kr/folder"_s, {}},
        {u"kim:secret@mail.church.kr"_s, {}},
        {u"mail.church.kr:0"_s, {}},
        {u"mail.church.kr:99999"_s, {}},
        {u"mail church"_s, {}},
        {u""_s, {}},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.typed.toStdString());
        const auto found = mailServerOf(one.typed);
        EXPECT_EQ(found ? serverUrl(found.value()) : QByteArray(), one.url);
    }
}

} // namespace
} // namespace lumen
