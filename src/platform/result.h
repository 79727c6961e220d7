// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <utility>
#include <variant>

namespace lumen {

/// What kept an operation from its end; the form that asked turns it into words.
enum class FailureKind { NotFound, NoAccess, InUse, Damaged, Cancelled, Invalid, System };

struct Failure
{
    FailureKind kind = FailureKind::System;
    QString detail; ///< path, line or system text; for the log or the end of a message
};

/// A value or the reason why there is none. Callers must look at it.
template <typename T>
class [[nodiscard]] Result
{
public:
    Result(T value) : m_state(std::move(value)) {}
    Result(Failure failure) : m_state(std::move(failure)) {}

    bool ok() const { return std::holds_alternative<T>(m_state); }
    explicit operator bool() const { return ok(); }
    const T& value() const { return std::get<T>(m_state); }
    T& value() { return std::get<T>(m_state); }
    const Failure& failure() const { return std::get<Failure>(m_state); }

private:
    std::variant<T, Failure> m_state;
};

/// The Result of an operation that yields nothing but success.
struct Done
{
};

void logIgnoredFailure(const Failure& failure, const char* reason);

/// Passes over a failure by design; `reason` says why that is right and goes to the log.
template <typename T>
void ignoreFailure(const Result<T>& result, const char* reason)
{
    if (!result.ok())
        logIgnoredFailure(result.failure(), reason);
}

} // namespace lumen
