// SPDX-License-Identifier: GPL-2.0-or-later
// What the wizard composes, asked of the module as it is built from the installed sources, beside a
// reading of the module's codes by the words that tell them. Needs LUMENSCRIPT_MODULES.
#include "data/data_store.h"
#include "search/original/original_search.h"
#include "search/wizard/parsing_wizard.h"
#include "support/test_services.h"
#include "text/field_scramble.h"
#include "text/original/parsing_decoder.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QHash>
#include <QSet>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

QStringList phrasesOf(QString code)
{
    return BibleCode::ParsingDecoder(code).split(u',');
}

class WizardSearchTest : public testing::Test
{
protected:
    void SetUp() override
    {
        const QString folder = qEnvironmentVariable("LUMENSCRIPT_MODULES");
        if (!QFile::exists(folder + u"/z103.dts"_s))
            GTEST_SKIP() << "LUMENSCRIPT_MODULES names no folder with the original languages";
        ASSERT_TRUE(
            createUserDatabases(test.state.AppPath, test.files, test.drives, QDate(2024, 1, 1)));
        ASSERT_TRUE(QFile::link(folder + u"/z103.dts"_s, test.folders.data(u"z103.dts"_s)));
        readModule();
    }

    void readModule()
    {
        const auto database =
            test.jet.OpenDatabase(u"C:\\lumenscript\\Data\\z103.dts"_s, false, true,
                                  QString::fromUtf16(connect_text::kSearch));
        const auto rows = database->OpenRecordset(u"select * from ParsingSearch"_s);
        for (; !rows->Eof(); rows->MoveNext()) {
            const QString codes = DES::UnscrambleField(Text(rows->Fields(u"Parsing")));
            for (const QString& code : codes.split(u';', Qt::SkipEmptyParts))
                versesOf[code] << Text(rows->Fields(u"Index"));
        }
    }

    /// The verses with a word of which all phrases of the pattern are told.
    QStringList told(const QString& pattern) const
    {
        const QStringList wanted = phrasesOf(pattern);
        QSet<QString> verses;
        for (auto code = versesOf.begin(); code != versesOf.end(); ++code) {
            const QStringList phrases = phrasesOf(code.key());
            if (std::ranges::all_of(wanted,
                                    [&](const QString& one) { return phrases.contains(one); }))
                verses.unite(QSet<QString>(code->begin(), code->end()));
        }
        QStringList keys = verses.values();
        keys.sort();
        return keys;
    }

    QStringList found(const QString& pattern)
    {
        OriginalQuestion question;
        question.language =
            pattern.startsWith(u'$') ? OriginalLanguage::Greek : OriginalLanguage::Hebrew;
        question.conditions.front() = {ConditionKind::Parsing, {}, pattern};
        question.scopeTag = u"All"_s;
        EXPECT_TRUE(tables.prepare());
        search.run(question);
        QStringList keys = tables.keys(ScratchTables::kShown);
        tables.close();
        keys.sort();
        return keys;
    }

    TestServices test;
    BibleSearch lookUps{test.jet};
    ScratchTables tables{test.jet, test.files, test.state.AppPath};
    OriginalSearch search{lookUps, tables, [](QStringView module) {
                              return QString(u"C:\\lumenscript"_s + module.toString());
                          }};
    QHash<QString, QStringList> versesOf; ///< by code
};

using Choices = QList<std::pair<QString, QString>>; // list, entry

/// Goes through the wizard's pages as far as the lists are that something is chosen in.
QString composed(Testament testament, int partOfSpeech, const Choices& choices)
{
    frmParsingWiz wizard;
    wizard.show();
    wizard.setTestament(testament);
    QTest::mouseClick(wizard.cmdNext, Qt::LeftButton);
    const bool old = testament == Testament::Old;
    (old ? wizard.lstPumsa : wizard.NlstPumsa)->setListIndex(partOfSpeech);
    for (const auto& [name, entry] : choices) {
        auto* list = wizard.findChild<ComboBox*>(name);
        while (!list->isVisible() && wizard.cmdNext->isEnabled())
            QTest::mouseClick(wizard.cmdNext, Qt::LeftButton);
        EXPECT_TRUE(list->isVisible() && list->isEnabled()) << name.toStdString();
        EXPECT_GE(list->findItem(entry), 0) << entry.toStdString();
        list->setListIndex(list->findItem(entry));
    }
    QTest::mouseClick(wizard.cmdDone, Qt::LeftButton);
    return wizard.code();
}

TEST_F(WizardSearchTest, FindsTheVersesWithAWordThatIsToldSo)
{
    struct Row
    {
        Testament testament;
        int partOfSpeech;
        Choices choices;
        bool untold = false; ///< the sources don't tell it of any word
    };
    const QList<Row> rows{
        {Testament::Old, 0, {{u"cbnSung"_s, u"여성"_s}, {u"cbnSu"_s, u"쌍수"_s}}},
        {Testament::Old, 1, {{u"cbdGubun"_s, u"의문대명사"_s}}},
        {Testament::Old, 2, {{u"cbaSu"_s, u"쌍수"_s}}},
        {Testament::Old, 4, {{u"cbbGubun"_s, u"부정어"_s}, {u"cbbsInching"_s, u"3인칭"_s}}},
        {Testament::Old,
         3,
         {{u"cbvEogeun"_s, u"Hithpael"_s},
          {u"cbvSang"_s, u"미완료"_s},
          {u"cbvInching"_s, u"3인칭"_s}}},
        {Testament::Old, 3, {{u"cbvSang"_s, u"분사"_s}, {u"cbvsDanchuk"_s, u"단축형 아님"_s}}},
        {Testament::Old, 3, {{u"cbvsDanchuk"_s, u"의미"_s}}},
        {Testament::Old, 3, {{u"cbvsYeonjang"_s, u"형태 및 의미"_s}}},
        {Testament::Old, 3, {{u"cbvsEomi"_s, u"첨가어미 Nun"_s}, {u"cbvsIlgi"_s, u"Kethib"_s}}},
        {Testament::Old, 3, {{u"cbvsDanchuk"_s, u"형태"_s}}, true},
        {Testament::Old, 3, {{u"cbvsEomieumsosil"_s, u"어미음 소실형"_s}}, true},
        {Testament::Old, 3, {{u"cbvsEomieumsosil"_s, u"어미음 소실형 아님"_s}}, true},
        {Testament::New,
         3,
         {{u"NcbvBup"_s, u"소원법"_s},
          {u"NcbvTae"_s, u"능동태"_s},
          {u"NcbvInching"_s, u"3인칭"_s}}},
        {Testament::New, 1, {{u"NcbdGubun"_s, u"상호대명사"_s}}},
    };
    for (const Row& row : rows) {
        const QString pattern = composed(row.testament, row.partOfSpeech, row.choices);
        SCOPED_TRACE(pattern.toStdString());
        const QStringList verses = told(pattern);
        EXPECT_EQ(verses.isEmpty(), row.untold);
        EXPECT_EQ(found(pattern), verses);
    }
}

} // namespace
} // namespace lumen
