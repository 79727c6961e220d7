// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/canon_table.h"
#include "canon/verse_index.h"
#include "sources/user_table.h"
#include "sources/versification.h"
#include "text/codepage949.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <map>

// The files under content/: their form, not their prose.

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

struct Line
{
    int number = 0; ///< from 1
    QString key;
    QString text;
};

QString contentFile(const QString& name)
{
    return QStringLiteral(LUMEN_CONTENT) + u'/' + name;
}

/// The lines "key TAB text" of a file, comments left out.
std::vector<Line> linesOf(const QString& name)
{
    QFile file(contentFile(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    std::vector<Line> lines;
    int number = 0;
    for (const QString& text : QString::fromUtf8(file.readAll()).split(u'\n')) {
        ++number;
        if (text.isEmpty() || text.startsWith(u'#'))
            continue;
        const QStringList parts = text.split(u'\t');
        EXPECT_EQ(parts.size(), 2) << name.toStdString() << ':' << number;
        lines.push_back({number, parts.value(0), parts.value(1)});
    }
    return lines;
}

/// What keeps a Korean text from the modules: letters that code page 949 lacks, Latin ones,
/// decomposed Hangul, blanks at an end or in a row.
QString faultOf(const QString& text)
{
    static const QRegularExpression latin(u"[A-Za-z]"_s);
    if (text != text.simplified() || text.isEmpty())
        return u"blanks"_s;
    if (text != text.normalized(QString::NormalizationForm_C))
        return u"decomposed"_s;
    if (text.contains(latin))
        return u"Latin letters"_s;
    return fromCodePage949(toCodePage949(text)) == text ? QString() : u"beyond code page 949"_s;
}

bool exists(const QString& reference)
{
    const VersePlace place = BibleCode::ParseRef(reference);
    return place.book >= 0 && place.book < kBookCount && place.verse >= 1 &&
           place.verse <= verseCount(Numbering::Korean, place.book, place.chapter) &&
           BibleCode::IndexToRef(BibleCode::RefToIndex(reference)) == reference;
}

TEST(Content, HeadingsStandAtVersesInTheirOrder)
{
    constexpr int kLongest = 22;
    const std::vector<Line> lines = linesOf(u"headings.tsv"_s);
    EXPECT_GE(lines.size(), 2000U);
    QString before;
    for (const Line& line : lines) {
        SCOPED_TRACE(line.number);
        ASSERT_TRUE(exists(line.key)) << line.key.toStdString();
        const QString index = BibleCode::RefToIndex(line.key);
        EXPECT_LT(before, index) << line.key.toStdString();
        before = index;
        EXPECT_LE(line.text.size(), kLongest) << line.text.toStdString();
        EXPECT_EQ(faultOf(line.text), QString()) << line.text.toStdString();
    }
}

void expectGlosses(const QString& name, const QList<int>& numbers)
{
    constexpr int kLongest = 30;
    const std::vector<Line> lines = linesOf(name);
    ASSERT_EQ(static_cast<int>(lines.size()), numbers.size());
    for (int i = 0; i < numbers.size(); ++i) {
        const Line& line = lines[static_cast<std::size_t>(i)];
        SCOPED_TRACE(line.number);
        EXPECT_EQ(line.key, QString::number(numbers[i]));
        EXPECT_LE(line.text.size(), kLongest) << line.text.toStdString();
        EXPECT_EQ(faultOf(line.text), QString()) << line.text.toStdString();
        const QStringList glosses = line.text.split(u", "_s);
        EXPECT_LE(glosses.size(), 5);
        EXPECT_EQ(QSet<QString>(glosses.begin(), glosses.end()).size(), glosses.size())
            << line.text.toStdString();
    }
}

TEST(Content, EveryStrongNumberHasItsGlosses)
{
    constexpr int kLastHebrew = 8674;
    constexpr int kLastGreek = 5624;
    QList<int> hebrew;
    for (int number = 1; number <= kLastHebrew; ++number)
        hebrew << number;
    QList<int> greek;
    for (int number = 1; number <= kLastGreek; ++number)
        if (number != 2717 && (number < 3203 || number > 3302)) // were never given
            greek << number;
    expectGlosses(u"glosses/hebrew.tsv"_s, hebrew);
    expectGlosses(u"glosses/greek.tsv"_s, greek);
}

TEST(Content, DictionaryEntriesNameVersesThatExist)
{
    static const QRegularExpression inBrackets(u"\\(([^()]*\\d:\\d[^()]*)\\)"_s);
    QSet<QString> heads;
    for (const QString& name :
         QDir(contentFile(u"dictionary"_s)).entryList({u"*.tsv"_s}, QDir::Files)) {
        QString before;
        for (const Line& line : linesOf(u"dictionary/"_s + name)) {
            SCOPED_TRACE((name + u' ' + line.key).toStdString());
            EXPECT_LT(before, line.key) << "the order of the alphabet";
            before = line.key;
            EXPECT_FALSE(heads.contains(line.key)) << "a second entry";
            heads.insert(line.key);
            EXPECT_EQ(faultOf(line.text), QString());
            int references = 0;
            auto found = inBrackets.globalMatch(line.text);
            while (found.hasNext())
                for (const QString& reference : found.next().captured(1).split(u"; "_s)) {
                    EXPECT_TRUE(exists(reference)) << reference.toStdString();
                    ++references;
                }
            EXPECT_GE(references, 1);
        }
    }
}

TEST(Content, EveryBookHasItsIntroduction)
{
    const QDir folder(contentFile(u"introductions"_s));
    const QStringList pages = folder.entryList({u"*.html"_s}, QDir::Files, QDir::Name);
    ASSERT_EQ(pages.size(), kBookCount);
    for (int book = 0; book < kBookCount; ++book) {
        SCOPED_TRACE(pages[book].toStdString());
        EXPECT_TRUE(
            pages[book].startsWith(QString::number(book + 1).rightJustified(2, u'0') + u'-'));
        QFile page(folder.filePath(pages[book]));
        ASSERT_TRUE(page.open(QIODevice::ReadOnly));
        EXPECT_TRUE(QString::fromUtf8(page.readAll()).contains(bookName(book)));
    }
}

/// The lines of a table of hymns by the number in their first cell, each with its cells.
std::map<int, std::vector<QStringList>> hymnTable(const QString& name, qsizetype columns)
{
    std::map<int, std::vector<QStringList>> byHymn;
    const auto table = readUserTable(contentFile(name), {QStringList(columns), columns});
    EXPECT_TRUE(table) << name.toStdString();
    if (table)
        for (const TableLine& line : table.value())
            byHymn[line.cells[0].toInt()].push_back(line.cells);
    return byHymn;
}

TEST(Content, HymnsAreSungToTheirTunes)
{
    static const QRegularExpression syllable(u"[가-힣]"_s);
    static const QRegularExpression sungNote(u"(?<![^ ])[A-G]"_s); // "+" sings on
    const auto hymns = hymnTable(u"hymns/hymns.tsv"_s, 8);
    auto tunes = hymnTable(u"hymns/tunes.tsv"_s, 4);
    EXPECT_EQ(hymns.size(), 12U);
    EXPECT_EQ(tunes.size(), hymns.size());
    for (const auto& [number, lines] : hymns) {
        ASSERT_EQ(lines.size(), 1U) << number;
        for (const QString& cell : lines.front().mid(1))
            EXPECT_EQ(faultOf(cell), QString()) << cell.toStdString();
        for (const QString& stanza : lines.front().last().split(u" // "_s)) {
            SCOPED_TRACE(stanza.toStdString());
            const QStringList sung = stanza.split(u" / "_s);
            ASSERT_EQ(static_cast<std::size_t>(sung.size()), tunes[number].size());
            for (qsizetype i = 0; i < sung.size(); ++i)
                EXPECT_EQ(sung[i].count(syllable),
                          tunes[number][static_cast<std::size_t>(i)].last().count(sungNote))
                    << sung[i].toStdString();
        }
    }
}

} // namespace
} // namespace lumen
