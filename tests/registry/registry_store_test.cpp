// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/registry/registry_store.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

const QString kKey = u"HKEY_CURRENT_USER\\Software\\Test"_s;

class RegistryStoreTest : public testing::Test
{
protected:
    QString file() const { return folder.filePath(u"below/settings"_s); }

    void write(const QByteArray& bytes)
    {
        QDir().mkpath(folder.filePath(u"below"_s));
        QFile out(file());
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(bytes);
    }

    QByteArray bytes()
    {
        QFile in(file());
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    }

    static QString value(RegistryStore& store, const QString& name, const QString& key = kKey)
    {
        store.OpenKey(key);
        return store.GetValue(name, ValueKind::String);
    }

    static void put(RegistryStore& store, const QString& name, const QString& text)
    {
        store.OpenKey(kKey);
        store.SetValue(name, text, ValueKind::String);
    }

    QTemporaryDir folder;
};

TEST_F(RegistryStoreTest, KeysAndNamesIgnoreCaseAndValuesKeepTheirText)
{
    RegistryStore store{QString()};
    put(store, u"CpAddVersion"_s, u" 1 "_s);
    EXPECT_EQ(value(store, u"cpAddVersion"_s), u" 1 "_s);
    EXPECT_EQ(value(store, u"CPADDVERSION"_s, u"HKEY_CURRENT_USER\\SOFTWARE\\test"_s), u" 1 "_s);
    EXPECT_EQ(value(store, u"CpAdd"_s), QString());
    EXPECT_EQ(value(store, u"CpAddVersion"_s, kKey + u"\\Bible"_s), QString());
    put(store, u"cpaddversion"_s, u"0"_s);
    EXPECT_EQ(value(store, u"CpAddVersion"_s), u"0"_s);
}

TEST_F(RegistryStoreTest, EveryTextSurvivesTheFile)
{
    const QStringList texts{QString(),      u"굴림"_s, u"a=b"_s,        u"[x]"_s,
                            u"; no mark"_s, u"\\n"_s,  u"a\r\nb\nc"_s,  u"C:\\lumen\\"_s,
                            u" blanks "_s,  u"\t"_s,   u"\U0001F54A"_s, u"\\"_s};
    {
        RegistryStore store(file());
        for (qsizetype i = 0; i < texts.size(); ++i)
            put(store, QString::number(i), texts[i]);
        // The same texts as names.
        for (const QString& text : texts)
            put(store, u"#"_s + text, text);
        put(store, u"[name"_s, u"bracket"_s);
        put(store, u";name"_s, u"semicolon"_s);
        ASSERT_TRUE(store.flush());
    }
    RegistryStore store(file());
    for (qsizetype i = 0; i < texts.size(); ++i) {
        SCOPED_TRACE(texts[i].toStdString());
        EXPECT_EQ(value(store, QString::number(i)), texts[i]);
        EXPECT_EQ(value(store, u"#"_s + texts[i]), texts[i]);
    }
    EXPECT_EQ(value(store, u"[name"_s), u"bracket"_s);
    EXPECT_EQ(value(store, u";name"_s), u"semicolon"_s);
    EXPECT_EQ(QDir(folder.filePath(u"below"_s)).entryList(QDir::Files | QDir::Hidden),
              QStringList{u"settings"_s});
}

TEST_F(RegistryStoreTest, TheWalkGivesEachValueOfOneKeyOnce)
{
    RegistryStore store{QString()};
    put(store, u"b"_s, u"2"_s);
    put(store, u"A"_s, u"1"_s);
    store.OpenKey(kKey + u"\\Sub"_s);
    store.SetValue(u"other"_s, u"x"_s, ValueKind::String);

    QString name;
    QString text;
    EXPECT_FALSE(store.EnumNext(name, text));
    EXPECT_FALSE(store.EnumOpen(u"HKEY_CURRENT_USER\\None"_s));
    EXPECT_FALSE(store.EnumNext(name, text));
    ASSERT_TRUE(store.EnumOpen(kKey.toUpper()));
    for (int round = 0; round < 2; ++round) {
        store.EnumStart();
        QStringList seen;
        while (store.EnumNext(name, text))
            seen << name + text;
        EXPECT_EQ(seen, (QStringList{u"A1"_s, u"b2"_s}));
    }
}

TEST_F(RegistryStoreTest, AnyCutFileIsReadAsFarAsItGoesAndKeptAside)
{
    {
        RegistryStore store(file());
        put(store, u"Left"_s, u"12345"_s);
        put(store, u"글꼴"_s, u"바탕체"_s);
        ASSERT_TRUE(store.flush());
    }
    const QByteArray whole = bytes();
    for (qsizetype length = 1; length < whole.size(); ++length) {
        SCOPED_TRACE(length);
        QDir(folder.filePath(u"below"_s)).removeRecursively();
        write(whole.first(length));
        RegistryStore store(file());
        const QString left = value(store, u"Left"_s);
        EXPECT_TRUE(left.isEmpty() || left == u"12345"_s) << left.toStdString();
        const QString font = value(store, u"글꼴"_s);
        EXPECT_TRUE(font.isEmpty() || font == u"바탕체"_s) << font.toStdString();
        QFile aside(file() + u".damaged"_s);
        ASSERT_TRUE(aside.open(QIODevice::ReadOnly));
        EXPECT_EQ(aside.readAll(), whole.first(length));
        EXPECT_FALSE(readRegistryText(bytes()).damaged) << "the rescued part is a whole file again";
    }
}

TEST_F(RegistryStoreTest, DamagedLinesDontTakeTheOthersWithThem)
{
    struct Row
    {
        const char* what;
        QByteArray bytes;
    };
    const QByteArray head = "[" + kKey.toUtf8() + "]\n";
    const Row rows[] = {
        {"a line without a sign", head + "Left=1\nrubbish\nTop=2\n\n; end\n"},
        {"bytes that are no UTF-8", head + "Left=1\nx\xff\xfe=3\nTop=2\n\n; end\n"},
        {"NUL bytes", head + "Left=1\na=" + QByteArray(64, '\0') + "\nTop=2\n\n; end\n"},
        {"a value before any key", "Left=9\n" + head + "Left=1\nTop=2\n\n; end\n"},
        {"a broken key line", head + "Left=1\nTop=2\n[half\nLeft=9\n\n; end\n"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        QDir(folder.filePath(u"below"_s)).removeRecursively();
        write(row.bytes);
        RegistryStore store(file());
        EXPECT_EQ(value(store, u"Left"_s), u"1"_s);
        EXPECT_EQ(value(store, u"Top"_s), u"2"_s);
        EXPECT_TRUE(QFile::exists(file() + u".damaged"_s));
    }
    write(QByteArray("\0\1garbage", 9));
    RegistryStore again(file());
    EXPECT_TRUE(QFile::exists(file() + u".damaged-2"_s)) << "an earlier one is not overwritten";
}

TEST_F(RegistryStoreTest, AFailedFlushLeavesTheOldFile)
{
    RegistryStore store(file());
    put(store, u"Left"_s, u"1"_s);
    ASSERT_TRUE(store.flush());
    const QByteArray before = bytes();

    // A folder under the name of the settings can't be replaced.
    RegistryStore blocked(folder.filePath(u"below"_s));
    put(blocked, u"Left"_s, u"2"_s);
    const Result<Done> result = blocked.flush();
    ASSERT_FALSE(result);
    EXPECT_EQ(result.failure().kind, FailureKind::NoAccess);
    EXPECT_EQ(bytes(), before);
}

TEST_F(RegistryStoreTest, TheSettingsFileFollowsTheConfigFolder)
{
    const QByteArray former = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    EXPECT_EQ(settingsFile(), folder.filePath(u"lumenscript/settings"_s));
    qputenv("XDG_CONFIG_HOME", former);
}

} // namespace
} // namespace lumen
