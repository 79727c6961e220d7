// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mail/mail_transfer.h"

#include "platform/mail/mail_failure.h"

#include <algorithm>
#include <curl/curl.h>
#include <sys/socket.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace lumen {

/// The handles of libcurl and the functions that it calls.
struct MailTransfer::Curl
{
    Curl();
    ~Curl();
    Curl(const Curl&) = delete;
    Curl& operator=(const Curl&) = delete;

    static std::size_t read(char* room, std::size_t size, std::size_t count, void* owner);
    static int debug(CURL* easy, curl_infotype kind, char* bytes, std::size_t size, void* owner);
    static int socket(CURL* easy, curl_socket_t socket, int what, void* owner, void* watch);
    static int timer(CURLM* multi, long milliseconds, void* owner);

    CURLM* multi = nullptr;
    CURL* easy = nullptr;
    curl_slist* recipients = nullptr;
};

MailTransfer::Curl::Curl()
{
    static const CURLcode once = curl_global_init(CURL_GLOBAL_DEFAULT);
    Q_ASSERT(once == CURLE_OK);
    multi = curl_multi_init();
    easy = curl_easy_init();
    Q_CHECK_PTR(multi);
    Q_CHECK_PTR(easy);
}

MailTransfer::Curl::~Curl()
{
    // A connection that is kept is closed here, and its farewell not waited for either.
    curl_socket_t socket = CURL_SOCKET_BAD;
    if (curl_easy_getinfo(easy, CURLINFO_ACTIVESOCKET, &socket) == CURLE_OK &&
        socket != CURL_SOCKET_BAD)
        ::shutdown(socket, SHUT_RD);
    curl_multi_remove_handle(multi, easy);
    curl_multi_cleanup(multi);
    curl_easy_cleanup(easy);
    curl_slist_free_all(recipients);
}

std::size_t MailTransfer::Curl::read(char* room, std::size_t size, std::size_t count, void* owner)
{
    auto& transfer = *static_cast<MailTransfer*>(owner);
    const QByteArray& text = transfer.m_task.mail.text;
    const auto length =
        std::min(static_cast<qsizetype>(size * count), text.size() - transfer.m_sent);
    std::copy_n(text.constData() + transfer.m_sent, length, room);
    transfer.m_sent += length;
    return static_cast<std::size_t>(length);
}

int MailTransfer::Curl::debug(CURL*, curl_infotype kind, char* bytes, std::size_t size, void* owner)
{
    static_cast<MailTransfer*>(owner)->note(kind, QByteArray(bytes, static_cast<qsizetype>(size)));
    return 0;
}

int MailTransfer::Curl::socket(CURL*, curl_socket_t socket, int what, void* owner, void*)
{
    static_cast<MailTransfer*>(owner)->watch(socket, what);
    return 0;
}

int MailTransfer::Curl::timer(CURLM*, long milliseconds, void* owner)
{
    static_cast<MailTransfer*>(owner)->setTimer(milliseconds);
    return 0;
}

MailTransfer::MailTransfer(MailTask task, const MailHabits& habits, MailEvents events)
    : m_task(std::move(task)), m_habits(habits), m_events(std::move(events)),
      m_curl(std::make_unique<Curl>())
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { drive(CURL_SOCKET_TIMEOUT, 0); });
    m_patience.setSingleShot(true);
    m_patience.setInterval(m_habits.patience);
    connect(&m_patience, &QTimer::timeout, this, [this] { finish(CURLE_OPERATION_TIMEDOUT); });
    setOptions();
    setLogin();
    m_patience.start();
    curl_multi_add_handle(m_curl->multi, m_curl->easy);
}

MailTransfer::~MailTransfer()
{
    stop();
}

void MailTransfer::setOptions()
{
    CURL* easy = m_curl->easy;
    curl_multi_setopt(m_curl->multi, CURLMOPT_SOCKETFUNCTION, &Curl::socket);
    curl_multi_setopt(m_curl->multi, CURLMOPT_SOCKETDATA, this);
    curl_multi_setopt(m_curl->multi, CURLMOPT_TIMERFUNCTION, &Curl::timer);
    curl_multi_setopt(m_curl->multi, CURLMOPT_TIMERDATA, this);
    curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "smtp,smtps");
    // The answer to the letter itself is waited for within libcurl: only its own limit ends that.
    curl_easy_setopt(easy, CURLOPT_SERVER_RESPONSE_TIMEOUT, patienceSeconds());
    curl_easy_setopt(easy, CURLOPT_PROXY, "");
    curl_easy_setopt(easy, CURLOPT_URL, serverUrl(m_task.server).constData());
    curl_easy_setopt(easy, CURLOPT_MAIL_FROM, m_task.mail.sender.constData());
    for (const QByteArray& recipient : m_task.mail.recipients)
        m_curl->recipients = curl_slist_append(m_curl->recipients, recipient.constData());
    curl_easy_setopt(easy, CURLOPT_MAIL_RCPT, m_curl->recipients);
    curl_easy_setopt(easy, CURLOPT_MAIL_RCPT_ALLLOWFAILS, 1L);
    curl_easy_setopt(easy, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(easy, CURLOPT_INFILESIZE_LARGE,
                     static_cast<curl_off_t>(m_task.mail.text.size()));
    curl_easy_setopt(easy, CURLOPT_READFUNCTION, &Curl::read);
    curl_easy_setopt(easy, CURLOPT_READDATA, this);
    // The talk with the server tells which recipient an answer is about; nothing of it is kept.
    curl_easy_setopt(easy, CURLOPT_VERBOSE, 1L);
    curl_easy_setopt(easy, CURLOPT_DEBUGFUNCTION, &Curl::debug);
    curl_easy_setopt(easy, CURLOPT_DEBUGDATA, this);
}

void MailTransfer::setLogin()
{
    CURL* easy = m_curl->easy;
    const bool mustEncrypt = m_task.server.encryption != MailEncryption::None;
    curl_easy_setopt(easy, CURLOPT_USE_SSL,
                     static_cast<long>(mustEncrypt ? CURLUSESSL_ALL : CURLUSESSL_TRY));
    if (!m_habits.certificates.isEmpty())
        curl_easy_setopt(easy, CURLOPT_CAINFO, m_habits.certificates.toLocal8Bit().constData());
    if (m_task.server.user.isEmpty())
        return;
    curl_easy_setopt(easy, CURLOPT_USERNAME, m_task.server.user.toUtf8().constData());
    curl_easy_setopt(easy, CURLOPT_PASSWORD, m_task.server.password.toUtf8().constData());
}

void MailTransfer::watch(int socket, int what)
{
    const auto known = m_watches.find(socket);
    if (known != m_watches.end()) {
        for (QSocketNotifier* notifier : {known->second.read, known->second.write}) {
            notifier->setEnabled(false);
            if (what == CURL_POLL_REMOVE)
                notifier->deleteLater();
        }
        if (what == CURL_POLL_REMOVE)
            m_watches.erase(known);
    }
    if (what == CURL_POLL_REMOVE || m_over)
        return;
    Watch& watch = m_watches[socket];
    if (!watch.read) {
        watch.read = new QSocketNotifier(socket, QSocketNotifier::Read, this);
        watch.write = new QSocketNotifier(socket, QSocketNotifier::Write, this);
        connect(watch.read, &QSocketNotifier::activated, this,
                [this, socket] { drive(socket, CURL_CSELECT_IN); });
        connect(watch.write, &QSocketNotifier::activated, this,
                [this, socket] { drive(socket, CURL_CSELECT_OUT); });
    }
    watch.read->setEnabled((what & CURL_POLL_IN) != 0);
    watch.write->setEnabled((what & CURL_POLL_OUT) != 0);
}

void MailTransfer::setTimer(long milliseconds)
{
    if (milliseconds < 0 || m_over)
        m_timer.stop();
    else
        m_timer.start(std::chrono::milliseconds(milliseconds));
}

void MailTransfer::drive(int socket, int events)
{
    if (m_over)
        return;
    int running = 0;
    curl_multi_socket_action(m_curl->multi, socket, events, &running);
    tellProgress();
    if (m_over)
        return;
    int left = 0;
    while (const CURLMsg* message = curl_multi_info_read(m_curl->multi, &left)) {
        if (message->msg == CURLMSG_DONE) {
            finish(message->data.result);
            return;
        }
    }
}

void MailTransfer::tellProgress()
{
    const int percent = static_cast<int>(m_sent * 100 / m_task.mail.text.size());
    if (percent == m_percent || !m_events.progress)
        return;
    m_percent = percent;
    m_events.progress(percent);
}

long MailTransfer::patienceSeconds() const
{
    return static_cast<long>(std::chrono::ceil<std::chrono::seconds>(m_habits.patience).count());
}

void MailTransfer::finish(int code)
{
    const MailReport report = mailReportOf(
        {code, static_cast<int>(patienceSeconds()), m_reply, m_refused, m_task.recipients.size()},
        m_task.server);
    const auto finished = std::move(m_events.finished);
    stop();
    if (finished)
        finished(report);
}

void MailTransfer::stop()
{
    if (m_over)
        return;
    m_over = true;
    m_timer.stop();
    m_patience.stop();
    breakOff();
    m_curl.reset();
    deleteLater();
}

void MailTransfer::breakOff()
{
    // A transfer that is only removed still sends the end of the letter: the server would deliver
    // half of it. One whose connection fails ends without.
    const std::map<int, Watch> watches = m_watches;
    for (const auto& [socket, watch] : watches) {
        ::shutdown(socket, SHUT_RDWR);
        int running = 0;
        curl_multi_socket_action(m_curl->multi, socket, CURL_CSELECT_IN | CURL_CSELECT_ERR,
                                 &running);
    }
}

void MailTransfer::stopListening()
{
    // libcurl waits for the answer to its farewell, and the windows would stand still as long.
    for (const auto& [socket, watch] : m_watches)
        ::shutdown(socket, SHUT_RD);
}

void MailTransfer::note(int kind, const QByteArray& bytes)
{
    if (kind == CURLINFO_TEXT)
        return;
    if (!m_over)
        m_patience.start();
    if (kind == CURLINFO_HEADER_OUT) {
        m_namesRecipient = bytes.startsWith("RCPT TO:");
        m_recipientsNamed += m_namesRecipient ? 1 : 0;
        m_leaves = bytes.startsWith("QUIT");
        if (m_leaves)
            stopListening();
    } else if (kind == CURLINFO_HEADER_IN && !m_leaves) {
        noteReply(bytes);
    }
}

void MailTransfer::noteReply(const QByteArray& line)
{
    const bool goesOn = line.size() > 3 && line[3] == '-';
    if (goesOn)
        return;
    m_reply = QString::fromUtf8(line).trimmed();
    if (m_namesRecipient && !line.startsWith('2') && m_recipientsNamed <= m_task.recipients.size())
        m_refused.append({m_task.recipients[m_recipientsNamed - 1], m_reply});
}

} // namespace lumen
