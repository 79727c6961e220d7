// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace lumen {

/// Passwords in the desktop's own safe. Answers come from the event loop, or at once.
class SecretStore
{
public:
    virtual ~SecretStore() = default;

    /// The password of an account; nothing where there is none, or no safe.
    virtual void read(const QString& account,
                      std::function<void(const std::optional<QString>& password)> answer) = 0;
    /// Nobody is told of a failure: the password is asked for again next time.
    virtual void write(const QString& account, const QString& password) = 0;
    virtual void remove(const QString& account) = 0;
};

} // namespace lumen
