// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"

#include <QString>
#include <QStringView>

#include <map>

namespace lumen {

/// The kind argument of the value calls. Every value is kept as text all the same.
enum class ValueKind { Integer = 2, Long = 3, Double = 5, String = 6 };

/// The root of all the program's keys.
inline constexpr char16_t kRegistryRoot[] = u"HKEY_CURRENT_USER\\Software\\ORVANE\\Lumenscript 2.0";

/// The settings tree: key paths and value names are matched without regard to case, an absent value
/// reads as "". One tree in memory for the process; flush() writes it to disk atomically.
class RegistryStore
{
public:
    /// `nativeFile` "" keeps the tree in memory only.
    explicit RegistryStore(QString nativeFile);

    /// Selects the current key and creates it when it does not exist.
    void OpenKey(const QString& keyPath);
    void SetValue(const QString& name, const QString& value, ValueKind kind);
    /// "" when absent.
    QString GetValue(const QString& name, ValueKind kind) const;

    /// A walk over the values of a key: EnumOpen, EnumStart, then EnumNext until it is false.
    bool EnumOpen(const QString& keyPath);
    void EnumStart();
    bool EnumNext(QString& name, QString& value);

    /// Writes the tree to its file: a temporary file renamed over the old one, so that a killed
    /// program finds the last complete settings.
    Result<Done> flush();

private:
    struct Value
    {
        QString name;
        QString text;
    };
    struct Key
    {
        QString path;
        std::map<QString, Value> values; // by folded name
    };

    void load();

    QString m_nativeFile;
    std::map<QString, Key> m_keys; // by folded path
    QString m_current;             // folded
    QString m_walkKey;
    std::map<QString, Value>::const_iterator m_walk;
};

} // namespace lumen
