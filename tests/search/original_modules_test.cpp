// SPDX-License-Identifier: GPL-2.0-or-later
// The original-language search on the modules as they are built from the installed sources, beside
// a count of those sources themselves. Needs LUMENSCRIPT_MODULES.
#include "data/data_store.h"
#include "search/original_search.h"
#include "search/source_words.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class OriginalModulesTest : public testing::Test
{
protected:
    void SetUp() override
    {
        const QString folder = qEnvironmentVariable("LUMENSCRIPT_MODULES");
        if (!QFile::exists(folder + u"/z102.dts"_s))
            GTEST_SKIP() << "LUMENSCRIPT_MODULES names no folder with the original languages";
        ASSERT_TRUE(SourceWords::installed());
        ASSERT_TRUE(
            createUserDatabases(test.state.AppPath, test.files, test.drives, QDate(2024, 1, 1)));
        for (const QString& name : {u"301.dts"_s, u"z102.dts"_s, u"z103.dts"_s})
            ASSERT_TRUE(QFile::link(folder + u'/' + name, test.folders.data(name)));
    }

    int found(OriginalLanguage language, const OriginalCondition& condition)
    {
        OriginalQuestion question;
        question.language = language;
        question.conditions.front() = condition;
        question.scopeTag = u"All"_s;
        EXPECT_TRUE(tables.prepare());
        return search.run(question).count;
    }

    TestServices test;
    BibleSearch lookUps{test.jet};
    ScratchTables tables{test.jet, test.files, test.state.AppPath};
    OriginalSearch search{lookUps, tables, [](QStringView module) {
                              return QString(u"C:\\lumenscript"_s + module.toString());
                          }};
};

TEST_F(OriginalModulesTest, NumbersAreFoundInAsManyVersesAsTheSourcesHoldThem)
{
    for (const OriginalLanguage language : {OriginalLanguage::Hebrew, OriginalLanguage::Greek}) {
        const bool hebrew = language == OriginalLanguage::Hebrew;
        const QList<int> numbers =
            hebrew ? QList<int>{430, 776, 1254, 2617, 7965, 8451, 1732, 4428, 1121, 7307}
                   : QList<int>{2316, 25, 26, 3056, 4102, 5485, 2424, 5547, 1411, 4151};
        for (const int number : numbers) {
            SCOPED_TRACE((hebrew ? "H" : "G") + std::to_string(number));
            const auto same = [number](int strong, const QString&) { return strong == number; };
            const auto verses = hebrew ? SourceWords::hebrew(same) : SourceWords::greek(same);
            ASSERT_GT(verses.size(), 40);
            EXPECT_EQ(found(language, {ConditionKind::Strong, QString::number(number), {}}),
                      verses.size());
        }
    }
}

QRegularExpression regex(const QString& pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

TEST_F(OriginalModulesTest, PatternsAreFoundInAsManyVersesAsTheSourcesHoldSuchWords)
{
    struct Row
    {
        OriginalLanguage language;
        QString pattern;
        QRegularExpression morph; // a piece of the source's own code
    };
    const QList<Row> rows{
        // The sources tell the perfect in sequence from the plain one, and four imperfects.
        {OriginalLanguage::Hebrew, u"@vnp3ms_S___J_C_A_E_H_R_"_s, regex(u"VN[pq]3ms"_s)},
        {OriginalLanguage::Hebrew, u"@vhi____S___J_C_A_E_H_R_"_s, regex(u"Vh[iuhj].*"_s)},
        {OriginalLanguage::Hebrew, u"@vpi____S___J_C_A_E_H_R_"_s, regex(u"Vp[iuhj].*"_s)},
        {OriginalLanguage::Greek, u"$viaa3s"_s, regex(u"V-2?AAI-3S.*"_s)},
        {OriginalLanguage::Greek, u"$ngfp"_s, regex(u"N-GPF.*"_s)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.pattern.toStdString());
        const auto fits = [&](int, const QString& morph) {
            if (row.language == OriginalLanguage::Greek)
                return row.morph.match(morph).hasMatch();
            const QStringList pieces = morph.mid(1).split(u'/');
            return morph.startsWith(u'H') && std::ranges::any_of(pieces, [&](const QString& piece) {
                       return row.morph.match(piece).hasMatch();
                   });
        };
        const auto verses = row.language == OriginalLanguage::Hebrew ? SourceWords::hebrew(fits)
                                                                     : SourceWords::greek(fits);
        ASSERT_GT(verses.size(), 40);
        EXPECT_EQ(found(row.language, {ConditionKind::Parsing, {}, row.pattern}), verses.size());
    }
}

} // namespace
} // namespace lumen
