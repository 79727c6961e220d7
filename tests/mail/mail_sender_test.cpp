// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mail/curl_mail_sender.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

using std::chrono::milliseconds;

/// The mail server of the tests in a process of its own.
class Server
{
public:
    explicit Server(const QStringList& options = {})
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        // Debian's own, which knows its packages.
        m_process.start(u"/usr/bin/python3"_s,
                        QStringList{QStringLiteral(LUMEN_MAIL_SERVER)} + options);
        m_port = line().toInt();
    }

    ~Server()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    MailServer address(MailEncryption encryption = MailEncryption::None) const
    {
        return {u"localhost"_s, m_port, encryption, {}, {}};
    }

    int port() const { return m_port; }
    QJsonObject letter() { return QJsonDocument::fromJson(line()).object(); }
    bool hasLetter() { return m_process.bytesAvailable() > 0 || m_process.waitForReadyRead(0); }

private:
    QByteArray line()
    {
        while (!m_process.canReadLine() && m_process.waitForReadyRead())
            ;
        return m_process.readLine();
    }

    QProcess m_process;
    int m_port = 0;
};

MailMessage sundayLetter()
{
    return {
        {u"김목사"_s, u"kim@church.kr"_s},
        {{u"이순신"_s, u"lee@church.kr"_s},
         {u"박 \"집사\""_s, u"park@church.kr"_s},
         {u""_s, u"choi@church.kr"_s}},
        u"주일 설교: 여호와는 나의 목자시니 내게 부족함이 없으리로다, 푸른 초장과 쉴 만한 물가"_s,
        u"[오늘의 말씀]\r\n\r\n.여호와는 나의 목자\n..\n.\n\n[기도]\n아멘"_s,
        QDateTime(QDate(2026, 11, 22), QTime(9, 30), Qt::OffsetFromUTC, 9 * 3600)};
}

/// Sends and lets the events run until the report is there.
class Sending
{
public:
    explicit Sending(MailHabits habits = {}) : m_sender(std::move(habits)) {}

    MailReport run(const MailServer& server, const MailMessage& message = sundayLetter())
    {
        QEventLoop loop;
        MailReport report;
        const auto begun = m_sender.send(message, server,
                                         {[this](int percent) { m_percents.append(percent); },
                                          [&](const MailReport& ended) {
                                              report = ended;
                                              loop.quit();
                                          }});
        if (!begun)
            report.failure = begun.failure().detail;
        else
            loop.exec();
        return report;
    }

    const QList<int>& percents() const { return m_percents; }

private:
    QList<int> m_percents;
    CurlMailSender m_sender;
};

QString pairs(const QJsonValue& addresses)
{
    QStringList found;
    for (const QJsonValue& one : addresses.toArray())
        found.append(one[0].toString() + u'|' + one[1].toString());
    return found.join(u';');
}

TEST(MailSenderTest, ALetterReachesThreePeopleToTheLetter)
{
    Server server;
    Sending sending;
    const MailReport report = sending.run(server.address());
    EXPECT_EQ(report.failure, QString());
    EXPECT_TRUE(report.delivered);
    const QJsonObject letter = server.letter();
    EXPECT_EQ(letter[u"mailFrom"].toString(), u"kim@church.kr"_s);
    EXPECT_EQ(letter[u"recipients"].toArray(),
              QJsonArray({u"lee@church.kr"_s, u"park@church.kr"_s, u"choi@church.kr"_s}));
    EXPECT_EQ(pairs(letter[u"from"]), u"김목사|kim@church.kr"_s);
    EXPECT_EQ(pairs(letter[u"replyTo"]), u"김목사|kim@church.kr"_s);
    EXPECT_EQ(pairs(letter[u"to"]),
              u"이순신|lee@church.kr;박 \"집사\"|park@church.kr;|choi@church.kr"_s);
    EXPECT_EQ(letter[u"subject"].toString(), sundayLetter().subject);
    EXPECT_EQ(letter[u"body"].toString(),
              u"[오늘의 말씀]\r\n\r\n.여호와는 나의 목자\r\n..\r\n.\r\n\r\n[기도]\r\n아멘"_s);
    EXPECT_EQ(letter[u"date"].toString(), u"2026-11-22T09:30:00+09:00"_s);
    EXPECT_EQ(letter[u"charset"].toString(), u"euc-kr"_s);
    EXPECT_TRUE(letter[u"id"].toString().endsWith(u"@church.kr>"_s));
    EXPECT_EQ(letter[u"defects"].toArray(), QJsonArray());
    EXPECT_LE(letter[u"longest"].toInt(), 76);
    EXPECT_EQ(sending.percents().value(sending.percents().size() - 1), 100);
}

TEST(MailSenderTest, LettersBeyondTheKoreanSetTravelInUtf8)
{
    struct Case
    {
        QString text;
        QString charset;
    };
    const QList<Case> cases = {
        {u"plain"_s, u"euc-kr"_s},
        {u"=?EUC-KR?B?x?= "_s, u"euc-kr"_s},
        {u"한글 漢字 ①"_s, u"euc-kr"_s},
        {u"똠방각하"_s, u"utf-8"_s}, // in code page 949, not in the set named EUC-KR
        {u"בְּרֵאשִׁית ἐν ἀρχῇ"_s, u"utf-8"_s},
        {u"🙏 "_s.repeated(40).trimmed(), u"utf-8"_s},
        {u"긴 제목 "_s.repeated(60).trimmed(), u"euc-kr"_s},
    };
    Server server;
    for (const Case& one : cases) {
        SCOPED_TRACE(one.text.toStdString());
        MailMessage message = sundayLetter();
        message.subject = message.body = one.text;
        message.recipients[0].name = one.text.left(8);
        EXPECT_EQ(Sending().run(server.address(), message).failure, QString());
        const QJsonObject letter = server.letter();
        EXPECT_EQ(letter[u"charset"].toString(), one.charset);
        EXPECT_EQ(letter[u"subject"].toString(), one.text);
        EXPECT_EQ(letter[u"body"].toString(), one.text);
        EXPECT_EQ(letter[u"to"][0][0].toString(), one.text.left(8).trimmed());
        EXPECT_LE(letter[u"longest"].toInt(), 76);
    }
}

TEST(MailSenderTest, OneRefusedRecipientIsNamedAndTheOthersAreServed)
{
    Server server({u"--refuse"_s, u"park@church.kr"_s});
    const MailReport report = Sending().run(server.address());
    EXPECT_TRUE(report.delivered);
    ASSERT_EQ(report.refused.size(), 1);
    EXPECT_EQ(report.refused[0].recipient.address, u"park@church.kr"_s);
    EXPECT_TRUE(report.failure.contains(u"박 \"집사\" <park@church.kr>: 550"_s));
    EXPECT_TRUE(report.failure.contains(u"2명"_s));
    EXPECT_EQ(server.letter()[u"recipients"].toArray(),
              QJsonArray({u"lee@church.kr"_s, u"choi@church.kr"_s}));
}

TEST(MailSenderTest, EveryFailureOfTheServerHasItsWords)
{
    struct Case
    {
        QStringList options;
        QString words;
    };
    const QList<Case> cases = {
        {{u"--refuse"_s, u"greeting"_s}, u"554 no greeting"_s},
        {{u"--refuse"_s, u"mail"_s}, u"550 no mail"_s},
        {{u"--refuse"_s, u"data"_s}, u"554 no data"_s},
        {{u"--refuse"_s, u"end"_s}, u"550 no end"_s},
        {{u"--password"_s, u"secret"_s}, u"530"_s},
        {{u"--silent"_s, u"greeting"_s}, u"응답하지 않았습니다"_s},
        {{u"--silent"_s, u"mail"_s}, u"응답하지 않았습니다"_s},
        {{u"--silent"_s, u"end"_s}, u"응답하지 않았습니다"_s},
        {{u"--hang-up"_s, u"greeting"_s}, u"연결을 끊었습니다"_s},
        {{u"--hang-up"_s, u"mail"_s}, u"연결을 끊었습니다"_s},
        {{u"--hang-up"_s, u"end"_s}, u"연결을 끊었습니다"_s},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.options.join(u' ').toStdString());
        Server server(one.options);
        const bool silent = one.options[0] == u"--silent"_s;
        Sending sending({silent ? milliseconds(1500) : milliseconds(30000), {}});
        const MailReport report = sending.run(server.address());
        EXPECT_FALSE(report.delivered);
        EXPECT_TRUE(report.failure.contains(one.words)) << report.failure.toStdString();
        EXPECT_FALSE(server.hasLetter());
    }
}

TEST(MailSenderTest, WindowsStayAliveWhileTheServerThinksTheLetterOver)
{
    Server server({u"--silent"_s, u"end"_s});
    constexpr int kPatience = 2000;
    CurlMailSender sender({milliseconds(kPatience), {}});
    QEventLoop loop;
    QTimer ticks;
    QElapsedTimer sinceTick;
    qint64 longestStill = 0;
    QObject::connect(&ticks, &QTimer::timeout,
                     [&] { longestStill = std::max(longestStill, sinceTick.restart()); });
    const MailEvents events{{}, [&](const MailReport&) { loop.quit(); }};
    ASSERT_TRUE(sender.send(sundayLetter(), server.address(), events).ok());
    sinceTick.start();
    ticks.start(10);
    loop.exec();
    // Within one call of libcurl it would be the whole patience.
    EXPECT_LT(longestStill, kPatience / 2);
}

TEST(MailSenderTest, NobodyWaitsForTheFarewell)
{
    Server server({u"--silent"_s, u"quit"_s});
    EXPECT_EQ(Sending().run(server.address()).failure, QString());
}

TEST(MailSenderTest, AServerThatIsNotThereIsTold)
{
    const int port = Server().port();
    const MailReport report = Sending().run({u"localhost"_s, port, MailEncryption::None, {}, {}});
    EXPECT_TRUE(report.failure.contains(u"'localhost'에 연결할 수 없습니다"_s));
}

TEST(MailSenderTest, ACancelledTransferDeliversNothingAndSaysNothing)
{
    Server server;
    CurlMailSender sender;
    QEventLoop loop;
    bool reported = false;
    MailMessage message = sundayLetter();
    message.subject = u"긴 편지"_s;
    message.body = u"말씀"_s.repeated(2000000);
    const MailEvents events{[&](int) {
                                sender.cancel();
                                loop.quit();
                            },
                            [&](const MailReport&) { reported = true; }};
    ASSERT_TRUE(sender.send(message, server.address(), events).ok());
    EXPECT_EQ(sender.send(message, server.address(), events).failure().kind, FailureKind::InUse);
    loop.exec();
    MailReport next;
    const MailEvents others{{}, [&](const MailReport& report) {
                                next = report;
                                loop.quit();
                            }};
    ASSERT_TRUE(sender.send(sundayLetter(), server.address(), others).ok());
    loop.exec();
    EXPECT_TRUE(next.delivered);
    EXPECT_FALSE(reported);
    EXPECT_EQ(server.letter()[u"subject"].toString(), sundayLetter().subject);
    EXPECT_FALSE(server.hasLetter());
}

/// A certificate for "localhost", made anew for each run.
class MailEncryptionTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(QProcess::execute(u"openssl"_s,
                                    {u"req"_s, u"-x509"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s,
                                     u"ec_paramgen_curve:P-256"_s, u"-nodes"_s, u"-days"_s, u"2"_s,
                                     u"-subj"_s, u"/CN=localhost"_s, u"-addext"_s,
                                     u"subjectAltName=DNS:localhost"_s, u"-out"_s, certificate(),
                                     u"-keyout"_s, m_folder.filePath(u"key.pem"_s)}),
                  0);
    }

    QString certificate() const { return m_folder.filePath(u"certificate.pem"_s); }
    QString pair() const { return certificate() + u':' + m_folder.filePath(u"key.pem"_s); }

private:
    QTemporaryDir m_folder;
};

TEST_F(MailEncryptionTest, TheLetterAndTheLoginAreEncrypted)
{
    struct Case
    {
        QString offer;
        MailEncryption encryption;
        QString password;
        bool trusted;
        QString words; ///< of the failure; empty: delivered
    };
    const QList<Case> cases = {
        {u"--tls"_s, MailEncryption::Tls, u"비밀"_s, true, {}},
        {u"--starttls"_s, MailEncryption::StartTls, u"비밀"_s, true, {}},
        {u"--starttls"_s, MailEncryption::None, u"비밀"_s, true, {}},
        {u"--starttls"_s, MailEncryption::StartTls, u"wrong"_s, true, u"비밀번호"_s},
        {u"--tls"_s, MailEncryption::Tls, u"비밀"_s, false, u"인증서"_s},
        {u"--starttls"_s, MailEncryption::None, u"비밀"_s, false, u"인증서"_s},
        {{}, MailEncryption::StartTls, u"비밀"_s, true, u"STARTTLS"_s},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.offer.toStdString() + ' ' + one.words.toStdString());
        QStringList options{u"--password"_s, u"비밀"_s};
        if (!one.offer.isEmpty())
            options << one.offer << pair();
        Server server(options);
        MailServer address = server.address(one.encryption);
        address.user = u"kim"_s;
        address.password = one.password;
        Sending sending({milliseconds(30000), one.trusted ? certificate() : QString()});
        const MailReport report = sending.run(address);
        EXPECT_EQ(report.delivered, one.words.isEmpty()) << report.failure.toStdString();
        EXPECT_TRUE(report.failure.contains(one.words)) << report.failure.toStdString();
        if (report.delivered) {
            const QJsonObject letter = server.letter();
            EXPECT_TRUE(letter[u"encrypted"].toBool());
            EXPECT_EQ(letter[u"user"].toString(), u"kim"_s);
        }
    }
}

} // namespace
} // namespace lumen
