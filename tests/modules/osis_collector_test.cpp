// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/sword/markup_scanner.h"
#include "sources/sword/osis_collector.h"
#include "sources/text_cleaning.h"

#include <gtest/gtest.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

VerseText scanned(QStringView markup, StrongNumbers numbers = StrongNumbers::Drop)
{
    OsisCollector collector(numbers);
    scanMarkup(markup, collector);
    VerseText verse;
    collector.takeVerse(verse);
    return verse;
}

TEST(MarkupScanner, KeepsWordsAndDropsWhatStandsBesideThem)
{
    struct Row
    {
        QStringView markup;
        QStringView words;
    };
    const Row rows[] = {
        {u"Alpha <w lemma=\"strong:H0001\">beta</w> gamma.", u"Alpha beta gamma."},
        {u"one<note>two <note>three</note> four</note> five", u"one five"},
        {u"one<l>two</l><l>three</l>", u"one two three"},
        {u"<milestone type=\"x-p\" marker=\"¶\"/>¶ one", u"one"},
        {u"one <transChange type=\"added\">two</transChange> , three", u"one two, three"},
        {u"<divineName>Lord's</divineName> and the <divineName>Lord</divineName>",
         u"LORD's and the LORD"},
        {u"<w>of the <divineName>Lord</divineName></w>.", u"of the LORD."},
        {u"a &amp; b &lt; c &#65; d &nothing; e & f", u"a & b < c A d &nothing; e & f"},
        {u"<q marker=\"“\" sID=\"1\"/>Go<q marker=\"”\" eID=\"1\"/>", u"“Go”"},
        {u"<div type=\"colophon\" sID=\"c\"/>written<div eID=\"c\"/> end", u"end"},
        // What converters leave behind: markers of USFM, ends without a start, notes cut off.
        {u"the \\nd <w>LORD</w></divineName> is", u"the LORD is"},
        {u"one</note></title></w> two", u"one two"},
        {u"one <note>two", u"one"},
        {u"one <", u"one <"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.markup.toString().toStdString());
        EXPECT_EQ(scanned(row.markup).text.value_or(QString()), row.words.toString());
    }
}

TEST(OsisCollector, TellsTitlesApart)
{
    const VerseText verse =
        scanned(u"<title type=\"main\">Book</title><title>Heading  one</title>"
                u"<title type=\"acrostic\"><foreign n=\"א\">ALEPH.</foreign></title>"
                u"<title type=\"psalm\">A song of <divineName>Lord</divineName></title> words");
    EXPECT_EQ(verse.miniTitle, u"Heading one / א ALEPH."_s);
    EXPECT_EQ(verse.part.value_or(QString()), u"A song of LORD"_s);
    EXPECT_EQ(verse.text.value_or(QString()), u"words"_s);
}

TEST(OsisCollector, HeadingInsideAVerseStandsAboveItAndOneBehindItIsHandedBack)
{
    OsisCollector collector;
    scanMarkup(u"one <title>Middle</title> two <title>Behind</title> ", collector);
    VerseText verse;
    EXPECT_EQ(collector.takeVerse(verse), u"Behind"_s);
    EXPECT_EQ(verse.miniTitle, u"Middle"_s);
    EXPECT_EQ(verse.text.value_or(QString()), u"one two"_s);
}

TEST(OsisCollector, WritesTheNumbersBehindEachWordThatIsThere)
{
    const VerseText verse =
        scanned(u"<w lemma=\"strong:H0853 strong:H01254\">made</w> "
                u"<w lemma=\"strong:G3588 lemma.TR:x\"/><w lemma=\"strong:G26\">love</w>, and "
                u"<divineName><w lemma=\"strong:H3068\">Lord</w></divineName> <w>bare</w>"
                u"<note><w lemma=\"strong:H9\">note</w></note>",
                StrongNumbers::Write);
    EXPECT_EQ(verse.text.value_or(QString()), u"made<853><1254> love<26>, and LORD<3068> bare"_s);
}

TEST(TextCleaning, JoinsBlanksButKeepsTheNoBreakSpace)
{
    EXPECT_EQ(tidyText(u" a \t b\u00A0: c \n;d ! "), u"a b\u00A0: c;d!"_s);
    EXPECT_FALSE(textOrNothing(u" ¶ \n").has_value());
}

TEST(TextCleaning, DropsSignsThatNobodySees)
{
    const QString text = u"a\u200Bb\uFEFFc\u00ADd"_s + QChar(0) + u"\u200De \u0628\u200C\u0628"_s;
    EXPECT_EQ(tidyText(text), u"abcde \u0628\u200C\u0628"_s);
}

} // namespace
} // namespace lumen
