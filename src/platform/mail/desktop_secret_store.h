// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/mail/secret_store.h"

namespace lumen {

/// The secret service of the desktop, by QtKeychain. It never falls back to a plain file.
class DesktopSecretStore : public SecretStore
{
public:
    void read(const QString& account,
              std::function<void(const std::optional<QString>& password)> answer) override;
    void write(const QString& account, const QString& password) override;
    void remove(const QString& account) override;
};

} // namespace lumen
