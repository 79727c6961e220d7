// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mail/desktop_secret_store.h"

#include <qt6keychain/keychain.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// The name under which the safe shows the entry to the user.
const QString kService = u"Lumenscript"_s;

} // namespace

// Jobs delete themselves when they are over.
void DesktopSecretStore::read(const QString& account,
                              std::function<void(const std::optional<QString>&)> answer)
{
    auto* job = new QKeychain::ReadPasswordJob(kService);
    job->setInsecureFallback(false);
    job->setKey(account);
    QObject::connect(job, &QKeychain::Job::finished, job, [job, answer = std::move(answer)] {
        const bool found = job->error() == QKeychain::NoError && !job->textData().isEmpty();
        answer(found ? std::optional(job->textData()) : std::nullopt);
    });
    job->start();
}

void DesktopSecretStore::write(const QString& account, const QString& password)
{
    auto* job = new QKeychain::WritePasswordJob(kService);
    job->setInsecureFallback(false);
    job->setKey(account);
    job->setTextData(password);
    job->start();
}

void DesktopSecretStore::remove(const QString& account)
{
    auto* job = new QKeychain::DeletePasswordJob(kService);
    job->setInsecureFallback(false);
    job->setKey(account);
    job->start();
}

} // namespace lumen
