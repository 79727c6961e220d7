// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/results/verse_copy.h"
#include "text/rtf/rtf_reader.h"

#include <gtest/gtest.h>

#include <QTextDocumentFragment>

#include <ostream>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

CopiedVerse korean(const QString& label, const QString& text)
{
    return {101, label, text, u"굴림"_s, 20, RGB(1, 2, 3)};
}

CopiedVerse hebrew()
{
    // The word for "in the beginning" as its font draws it, from the left.
    return {301, u"1"_s, u"tyi`va2r;5b"_s, u"OrvaneHeb"_s, 32, RGB(136, 33, 28)};
}

CopiedVerse greek()
{
    return {306, u"1"_s, u"lo2goj"_s, u"OrvaneGrk"_s, 24, RGB(0, 89, 53)};
}

const QString kHebrewWord = u"בְּרֵאשִׁית"_s.normalized(QString::NormalizationForm_C);
const QString kGreekWord = u"λο\u0314γος"_s.normalized(QString::NormalizationForm_C);

TEST(VerseCopyTest, EachVerseIsALineAndTheEndingFollowsTheLast)
{
    const ClipboardContent copy =
        composeVerseCopy({korean(u"1"_s, u"하나"_s), korean(u"2"_s, u"둘"_s)}, u" (창1:1~2)"_s,
                         OriginalText::FontCodes);
    EXPECT_EQ(copy.plain, u"1\t하나\r\n2\t둘 (창1:1~2)"_s);
    EXPECT_EQ(rtfToPlainText(copy.rtf).trimmed(), u"1\t하나\n2\t둘 (창1:1~2)"_s);
    EXPECT_EQ(QTextDocumentFragment::fromHtml(copy.html).toPlainText(),
              u"1 하나\n2 둘 (창1:1~2)"_s);
}

TEST(VerseCopyTest, OriginalsKeepTheirCodesButForHtml)
{
    const ClipboardContent copy =
        composeVerseCopy({hebrew(), greek()}, QString(), OriginalText::FontCodes);
    EXPECT_EQ(copy.plain, u"1   tyi`va2r;5b\r\n1\tlo2goj"_s);
    EXPECT_EQ(rtfToPlainText(copy.rtf).trimmed(), u"1   tyi`va2r;5b\n1\tlo2goj"_s);
    EXPECT_TRUE(copy.rtf.contains("OrvaneHeb")) << copy.rtf.toStdString();
    EXPECT_TRUE(copy.html.contains(u"<p dir=\"rtl\" lang=\"he\">"));
    EXPECT_TRUE(copy.html.contains(kHebrewWord));
    EXPECT_TRUE(copy.html.contains(kGreekWord));
    EXPECT_FALSE(copy.html.contains(u"Orvane"));
}

TEST(VerseCopyTest, TheUnicodeCopyIsUnicodeThroughout)
{
    const ClipboardContent copy =
        composeVerseCopy({hebrew(), greek()}, u" (BHS 창1:1)"_s, OriginalText::Unicode);
    EXPECT_EQ(copy.plain, u"1\t"_s + kHebrewWord + u"\r\n1\t"_s + kGreekWord + u" (BHS 창1:1)"_s);
    EXPECT_EQ(rtfToPlainText(copy.rtf).trimmed(),
              u"1\t"_s + kHebrewWord + u"\n1\t"_s + kGreekWord + u" (BHS 창1:1)"_s);
    EXPECT_FALSE(copy.rtf.contains("Orvane"));
}

TEST(VerseCopyTest, SignsOfTheFormatsAreText)
{
    const QString text = u"<b> & \\par {x} é\" 한"_s;
    CopiedVerse western = korean({}, text);
    western.code = 218;
    western.font = u"OrvaneFra"_s;
    for (const CopiedVerse& verse : {korean({}, text), western}) {
        const ClipboardContent copy = composeVerseCopy({verse}, QString(), OriginalText::FontCodes);
        EXPECT_EQ(copy.plain, text);
        EXPECT_EQ(QTextDocumentFragment::fromHtml(copy.html).toPlainText(), text);
        EXPECT_EQ(rtfToPlainText(copy.rtf).trimmed(), text);
        EXPECT_TRUE(copy.rtf.contains("{\\f1\\fs")) << "the first font behind the document's own";
        // A Western font takes no bytes of the Korean page.
        const bool plain = verse.font == western.font;
        EXPECT_EQ(copy.rtf.contains("{\\f1\\fnil\\fcharset0 OrvaneFra;}"), plain);
        EXPECT_EQ(copy.rtf.contains("\\u-10916?"), plain) << copy.rtf.toStdString();
    }
}

} // namespace
} // namespace lumen
