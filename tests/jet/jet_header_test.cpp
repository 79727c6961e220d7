// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/import/jet_header.h"
#include "support/jet_header_maker.h"

#include <gtest/gtest.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kJet3 = 0;
constexpr int kJet4 = 1;
constexpr double kSomeDay = 38143.75;

TEST(JetHeaderTest, TheFirstBytesTellStoresAndJetFilesFromAllElse)
{
    const QByteArray jet = JetHeaderMaker(kJet4).page();
    QByteArray successor = jet;
    successor.replace(4, 16, QByteArray("Standard ACE DB\0", 16));
    const QByteArray store("SQLite format 3\0 and more", 25);

    EXPECT_EQ(databaseKind(JetHeaderMaker(kJet3).page()), DatabaseKind::JetFile);
    EXPECT_EQ(databaseKind(jet), DatabaseKind::JetFile);
    EXPECT_EQ(databaseKind(store), DatabaseKind::Store);
    EXPECT_EQ(databaseKind(successor), DatabaseKind::Unknown);
    EXPECT_EQ(databaseKind(JetHeaderMaker(2).page()), DatabaseKind::Unknown);
    EXPECT_EQ(databaseKind(jet.left(20)), DatabaseKind::Unknown) << "cut before the version";
    EXPECT_EQ(databaseKind(store.left(15)), DatabaseKind::Unknown) << "cut before the NUL";
    EXPECT_EQ(databaseKind({}), DatabaseKind::Unknown);
}

TEST(JetHeaderTest, Jet3PasswordsStandInTheCodePageOfTheFile)
{
    const auto password = [](quint16 codePage, const QByteArray& bytes) {
        return readJetHeader(JetHeaderMaker(kJet3).codePage(codePage).jet3Password(bytes).page())
            .value()
            .password;
    };
    EXPECT_EQ(password(949, "lumen"), u"lumen"_s);
    EXPECT_EQ(password(949, "\xBE\xCF\xC8\xA3"), u"암호"_s);
    EXPECT_EQ(password(0, "\xBE\xCF\xC8\xA3"), u"암호"_s) << "a file that names no code page";
    EXPECT_EQ(password(1252, "caf\xE9"), u"café"_s);
    EXPECT_EQ(password(949, "12345678901234567890"), u"12345678901234567890"_s) << "no final NUL";
    EXPECT_EQ(password(949, QByteArray("ab\0rest", 7)), u"ab"_s);
    EXPECT_EQ(password(949, ""), QString());
}

TEST(JetHeaderTest, Jet4PasswordsAreUnmaskedByTheDayOfCreation)
{
    const auto password = [](const QString& text, double created) {
        return readJetHeader(JetHeaderMaker(kJet4).jet4Password(text, created).page())
            .value()
            .password;
    };
    EXPECT_EQ(password(u"password"_s, kSomeDay), u"password"_s);
    EXPECT_EQ(password(u"암호 Ä"_s, kSomeDay), u"암호 Ä"_s);
    EXPECT_EQ(password(QString(), kSomeDay), QString());
    EXPECT_EQ(password(u"12345678901234567890"_s, kSomeDay), u"12345678901234567890"_s);
    EXPECT_EQ(password(u"old"_s, -70000.5), u"old"_s) << "both halves of the mask count";
}

} // namespace
} // namespace lumen
