// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/registry/registry_store.h"

#include "platform/aside_name.h"
#include "platform/files/safe_write.h"
#include "platform/log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace lumen {

QString settingsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           u"/lumenscript/settings"_s;
}

RegistryStore::RegistryStore(QString nativeFile) : m_nativeFile(std::move(nativeFile))
{
    if (!m_nativeFile.isEmpty())
        load();
}

void RegistryStore::load()
{
    QFile file(m_nativeFile);
    if (!file.exists())
        return;
    if (!file.open(QIODevice::ReadOnly)) {
        m_unreadable = true;
        qCWarning(platformLog) << "settings can't be read:" << m_nativeFile << file.errorString();
        return;
    }
    ReadRegistry read = readRegistryText(file.readAll());
    file.close();
    m_keys = std::move(read.tree);
    if (!read.damaged)
        return;
    const QString aside =
        freeAsideName(m_nativeFile, [](const QString& name) { return QFile::exists(name); });
    qCWarning(platformLog) << "damaged settings put aside as" << aside;
    if (!file.rename(aside)) {
        m_unreadable = true;
        return;
    }
    // What was rescued stands on disk at once: the next start must not depend on this one's end.
    ignoreFailure(flush(), "the settings are in memory and are written again at the end");
}

void RegistryStore::OpenKey(const QString& keyPath)
{
    m_current = foldedName(keyPath);
    RegistryKey& key = m_keys[m_current];
    if (key.path.isEmpty())
        key.path = keyPath;
}

void RegistryStore::SetValue(const QString& name, const QString& value, ValueKind /*kind*/)
{
    const auto key = m_keys.find(m_current);
    if (key == m_keys.end())
        return;
    RegistryValue& entry = key->second.values[foldedName(name)];
    if (entry.name.isEmpty())
        entry.name = name;
    entry.text = value;
}

QString RegistryStore::GetValue(const QString& name, ValueKind /*kind*/) const
{
    const auto key = m_keys.find(m_current);
    if (key == m_keys.end())
        return {};
    const auto value = key->second.values.find(foldedName(name));
    return value == key->second.values.end() ? QString() : value->second.text;
}

bool RegistryStore::EnumOpen(const QString& keyPath)
{
    m_walking = false;
    m_walkKey = foldedName(keyPath);
    if (m_keys.count(m_walkKey) == 0)
        return false;
    EnumStart();
    return true;
}

void RegistryStore::EnumStart()
{
    const auto key = m_keys.find(m_walkKey);
    m_walking = key != m_keys.end();
    if (m_walking)
        m_walk = key->second.values.cbegin();
}

bool RegistryStore::EnumNext(QString& name, QString& value)
{
    if (!m_walking || m_walk == m_keys.at(m_walkKey).values.cend())
        return false;
    name = m_walk->second.name;
    value = m_walk->second.text;
    ++m_walk;
    return true;
}

Result<Done> RegistryStore::flush()
{
    if (m_nativeFile.isEmpty())
        return Done{};
    if (m_unreadable)
        return Failure{FailureKind::NoAccess, m_nativeFile};
    if (!QDir().mkpath(QFileInfo(m_nativeFile).path()))
        return Failure{FailureKind::NoAccess, QFileInfo(m_nativeFile).path()};
    return writeSafely(m_nativeFile, registryText(m_keys));
}

} // namespace lumen
