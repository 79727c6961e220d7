// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/user_files.h"
#include "jet/error.h"
#include "jet/import/openable_store.h"
#include "platform/path_resolver.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace lumen {

inline QByteArray fileBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

inline void writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << qPrintable(path);
    ASSERT_EQ(file.write(bytes), bytes.size());
}

/// The paths of these tests are native ones.
class NativePaths : public PathResolver
{
public:
    QString nativePath(const QString& path) const override { return path; }
};

/// A folder for databases and one for the cache, both of the test's own.
class ImportTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_root.isValid());
        QDir(m_root.path()).mkdir(QStringLiteral("data"));
        options.importProgram = importProgram();
        options.cacheFolder = m_root.filePath(QStringLiteral("cache"));
    }

    QString dataFile(const QString& name) const
    {
        return m_root.filePath(QStringLiteral("data/") + name);
    }
    QString rootFile(const QString& name) const { return m_root.filePath(name); }

    /// All files below the data and the cache folder, hidden ones too: what an import leaves.
    QStringList filesLeft() const
    {
        QStringList names;
        for (const QString& folder : {QStringLiteral("data"), QStringLiteral("cache")})
            names += QDir(m_root.filePath(folder))
                         .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        return names;
    }

    /// The store that stands for a file of the program.
    QString opened(const QString& path, const QString& password = {}) const
    {
        return openableStore({path, password, filePolicy(path)}, options);
    }

    /// The error that opening a file ends in, 0 for success.
    int openingError(const QString& path, const QString& password = {}) const
    {
        try {
            opened(path, password);
            return 0;
        } catch (const JetError& error) {
            return error.number();
        }
    }

    ImportOptions options;

private:
    QTemporaryDir m_root;
};

/// Skips the test unless the user's sample files are there.
class JetSampleTest : public ImportTest
{
protected:
    void SetUp() override
    {
        ImportTest::SetUp();
        const QString userData = qEnvironmentVariable("LUMENSCRIPT_USER_DATA");
        m_samples = userData + QStringLiteral("/jet");
        if (userData.isEmpty() || !QDir(m_samples).exists())
            GTEST_SKIP() << "LUMENSCRIPT_USER_DATA names no folder with Jet files";
    }

    QString sample(const QString& name) const { return m_samples + u'/' + name; }
    /// Copies a sample among the databases, under a name of the test's choice.
    QString placeSample(const QString& name, const QString& as) const
    {
        const QString path = dataFile(as);
        EXPECT_TRUE(QFile::copy(sample(name), path)) << qPrintable(name);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
        return path;
    }
    QStringList sampleNames() const
    {
        return QDir(m_samples).entryList({QStringLiteral("*.mdb"), QStringLiteral("*.dts")},
                                         QDir::Files, QDir::Name);
    }

private:
    QString m_samples;
};

} // namespace lumen
