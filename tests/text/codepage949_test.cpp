// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/codepage949.h"

#include <gtest/gtest.h>

#include <QStringDecoder>
#include <QStringEncoder>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TEST(CodePage949, AgreesWithTheCodecOnEveryUnit)
{
    int encodable = 0;
    for (int unit = 0; unit < 0x10000; ++unit) {
        const QChar c(static_cast<char16_t>(unit));
        if (c.isSurrogate())
            continue;
        QStringEncoder encoder("windows-949");
        const QByteArray bytes = encoder.encode(QStringView(&c, 1));
        // The codec passes over invisible characters without an error.
        if (encoder.hasError() || bytes.isEmpty())
            continue;
        ++encodable;
        ASSERT_EQ(toCodePage949(QStringView(&c, 1)), bytes) << unit;
        ASSERT_EQ(fromCodePage949(bytes), QString(c)) << unit;
    }
    // All modern syllables, the Hanja and the symbols of the page.
    EXPECT_GT(encodable, 17000);
}

TEST(CodePage949, WhatThePageLacksBecomesOneQuestionMark)
{
    EXPECT_EQ(toCodePage949(u"a\u05D0b"), QByteArray("a?b"));
    EXPECT_EQ(toCodePage949(u"\U0001F600!"), QByteArray("?!"));
    const char16_t lone[] = {0xDE00, 0xD83D, u'x'};
    EXPECT_EQ(toCodePage949(QStringView(lone, 3)), QByteArray("??x"));
}

TEST(CodePage949, BadPairsLeaveTheirNeighboursReadable)
{
    struct Row
    {
        const char* name;
        QByteArray bytes;
        QString text;
    };
    const Row rows[] = {
        {"line end behind a lead byte", "\xB0\nx", u"\uFFFD\nx"_s},
        {"cut at the end", "a\xB0", u"a\uFFFD"_s},
        {"pair that is not assigned",
         "\xC9\x41"
         "b",
         u"\uFFFDb"_s},
        {"good pair after a bad one", "\xFE\xFF\xB0\xA1", u"\uFFFD\uF8F7가"_s},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(fromCodePage949(row.bytes), row.text);
    }
}

} // namespace
} // namespace lumen
