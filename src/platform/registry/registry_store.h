// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/registry/registry_file.h"
#include "platform/result.h"

#include <QString>

#include <map>

namespace lumen {

/// The kind argument of the value calls. Every value is kept as text all the same.
enum class ValueKind { Integer = 2, Long = 3, Double = 5, String = 6 };

/// The root of all the program's keys.
inline constexpr char16_t kRegistryRoot[] = u"HKEY_CURRENT_USER\\Software\\ORVANE\\Lumenscript 2.0";

/// The native path of the settings of this user, $XDG_CONFIG_HOME/lumenscript/settings.
QString settingsFile();

/// The settings tree: key paths and value names are matched without regard to case, an absent value
/// reads as "". One tree in memory for the process; flush() writes it to disk atomically.
class RegistryStore
{
public:
    /// `nativeFile` "" keeps the tree in memory only. A damaged file is put aside under another
    /// name, and what could be read of it is kept.
    explicit RegistryStore(QString nativeFile);
    RegistryStore(const RegistryStore&) = delete;
    RegistryStore& operator=(const RegistryStore&) = delete;

    /// Selects the current key and creates it when it does not exist.
    void OpenKey(const QString& keyPath);
    /// Does nothing before a key was opened.
    void SetValue(const QString& name, const QString& value, ValueKind kind);
    /// "" when absent.
    QString GetValue(const QString& name, ValueKind kind) const;

    /// A walk over the values of a key: EnumOpen, EnumStart, then EnumNext until it is false.
    bool EnumOpen(const QString& keyPath);
    void EnumStart();
    bool EnumNext(QString& name, QString& value);

    /// Writes the tree to its file: a temporary file renamed over the old one, so that a killed
    /// program finds the last complete settings. A file that couldn't be read is left alone.
    Result<Done> flush();

private:
    void load();

    QString m_nativeFile;
    bool m_unreadable = false;
    RegistryTree m_keys;
    QString m_current; // folded
    QString m_walkKey; // folded
    std::map<QString, RegistryValue>::const_iterator m_walk;
    bool m_walking = false;
};

} // namespace lumen
