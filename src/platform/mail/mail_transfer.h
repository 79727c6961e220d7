// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/mail/mail_sender.h"

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <chrono>
#include <map>
#include <memory>

namespace lumen {

/// How long to wait for a silent server, and whom to trust.
struct MailHabits
{
    std::chrono::milliseconds patience = std::chrono::seconds(30);
    QString certificates; ///< file of trusted certificates instead of the system's
};

/// What is sent, to whom and where.
struct MailTask
{
    QList<MailAddress> recipients; ///< as the user named them, in the order of the letter's
    ComposedMail mail;
    MailServer server;
};

/// One letter on its way: libcurl driven by Qt's event loop. Deletes itself when it is over.
class MailTransfer : public QObject
{
public:
    MailTransfer(MailTask task, const MailHabits& habits, MailEvents events);
    ~MailTransfer() override;
    MailTransfer(const MailTransfer&) = delete;
    MailTransfer& operator=(const MailTransfer&) = delete;

    bool isOver() const { return m_over; }
    /// Breaks the transfer off without an event.
    void stop();

private:
    struct Curl;
    friend struct Curl;

    /// The notifiers of a socket. They outlive the signal in which the socket is closed.
    struct Watch
    {
        QSocketNotifier* read = nullptr;
        QSocketNotifier* write = nullptr;
    };

    void setOptions();
    void setLogin();
    void watch(int socket, int what);
    void setTimer(long milliseconds);
    void drive(int socket, int events);
    void tellProgress();
    long patienceSeconds() const;
    void finish(int code);
    void note(int kind, const QByteArray& bytes);
    void breakOff();
    void stopListening();
    void noteReply(const QByteArray& line);

    MailTask m_task;
    MailHabits m_habits;
    MailEvents m_events;
    std::unique_ptr<Curl> m_curl;
    std::map<int, Watch> m_watches;
    QTimer m_timer;    ///< asked for by libcurl
    QTimer m_patience; ///< since the last byte
    qsizetype m_sent = 0;
    int m_percent = 0;
    qsizetype m_recipientsNamed = 0; ///< RCPT commands so far
    bool m_namesRecipient = false;   ///< the last command was one
    bool m_leaves = false;           ///< the farewell is said
    QString m_reply;
    QList<MailRefusal> m_refused;
    bool m_over = false;
};

} // namespace lumen
