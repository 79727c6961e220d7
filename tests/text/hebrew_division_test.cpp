// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/original/hebrew_division.h"

#include <gtest/gtest.h>

#include <numeric>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// Breaks at fixed lengths and keeps what it was asked.
class FixedBreaker : public LineBreaker
{
public:
    explicit FixedBreaker(std::vector<qsizetype> lengths) : m_lengths(std::move(lengths)) {}

    std::vector<qsizetype> lineLengths(const QString& text, const QString& fontName,
                                       double pointSize, int width, int taken) override
    {
        asked = u"%1|%2|%3|%4"_s.arg(text, fontName).arg(pointSize).arg(width - taken);
        return m_lengths;
    }

    QString asked;

private:
    std::vector<qsizetype> m_lengths;
};

const HebrewTarget kTarget{u"OrvaneHeb"_s, 32, 3000};

TEST(HebrewDivision, LinesComeFromTheEndOfTheStoredVerse)
{
    FixedBreaker breaker({4, 3, 2});
    EXPECT_EQ(DivideHebrewCont(u"ih gfedcba"_s.sliced(1), kTarget, false, breaker),
              u"dcba\r\ngfe\r\nh "_s);
    EXPECT_EQ(breaker.asked, u"abcdefg h|OrvaneHeb|17|2900"_s);
    EXPECT_EQ(DivideHebrewCont(u"ihgfedcba"_s, kTarget, true, breaker), u"dcba\\par gfe\\par ih"_s);
    EXPECT_EQ(DivideHebrewContForPrint(u"ihgfedcba"_s, kTarget, false, breaker),
              u"dcba\ngfe\nih"_s);
    EXPECT_EQ(DivideHebrewContForPrint(u"ihgfedcba"_s, kTarget, true, breaker),
              u"dcba\\par gfe\\par ih"_s);
}

TEST(HebrewDivision, ABreakerThatCountsTooMuchCannotReachBeyondTheVerse)
{
    FixedBreaker breaker({3, 30, 2});
    EXPECT_EQ(DivideHebrewCont(u"edcba"_s, kTarget, false, breaker), u"cba\r\ned\r\n"_s);
}

class FontLineBreakerTest : public testing::Test
{
protected:
    QString m_text = u"abc defg hi jklm nopq rst uvw-xyz abc defg hi jklm nopq rst uvw"_s;
    FontLineBreaker m_breaker{96.0 / 1440.0};
};

TEST_F(FontLineBreakerTest, LinesCoverTheTextAndEndBehindBlanks)
{
    const auto lengths = m_breaker.lineLengths(m_text, u"DejaVu Sans"_s, 16, 2500, 0);
    ASSERT_GT(lengths.size(), 2U);
    EXPECT_EQ(std::accumulate(lengths.begin(), lengths.end(), qsizetype(0)), m_text.size());
    qsizetype at = 0;
    for (std::size_t i = 0; i + 1 < lengths.size(); ++i) {
        at += lengths[i];
        const QChar last = m_text[at - 1];
        EXPECT_TRUE(last == u' ' || last == u'-') << at;
    }
    EXPECT_EQ(m_breaker.lineLengths(m_text, u"DejaVu Sans"_s, 16, 2500, 0), lengths);
}

TEST_F(FontLineBreakerTest, WidthAndSizeDecideAboutTheLines)
{
    const auto lines = [this](double size, int width) {
        return m_breaker.lineLengths(m_text, u"DejaVu Sans"_s, size, width, 0).size();
    };
    EXPECT_EQ(lines(16, 30000), 1U);
    EXPECT_GT(lines(16, 2500), lines(16, 5000));
    EXPECT_GT(lines(24, 5000), lines(12, 5000));
    // A target without room still gives every character a place.
    const auto narrow = m_breaker.lineLengths(m_text, u"DejaVu Sans"_s, 16, -100, 0);
    EXPECT_EQ(std::accumulate(narrow.begin(), narrow.end(), qsizetype(0)), m_text.size());
}

} // namespace
} // namespace lumen
