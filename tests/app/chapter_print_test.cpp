// SPDX-License-Identifier: GPL-2.0-or-later
// Chapters of the installed modules as they come on paper. LUMENSCRIPT_PRINT_STEP takes more of
// them than the fifty of a usual run, 1 for all; scripts/print-trials does that.
#include "canon/canon_table.h"
#include "platform/printing/qt_printers.h"
#include "print/header_footer.h"
#include "support/real_program.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <algorithm>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

constexpr int kUsualStep = 24;
constexpr int kOldTestament = 39; // books
constexpr double kSlack = 2;      // twips: letters reach over their boxes by rounding

/// The letters of a text in one order, so that columns may be read in any.
QString letters(const QString& text)
{
    QString kept;
    const QString apart = text.normalized(QString::NormalizationForm_KD);
    for (const QChar each : apart)
        if (each.isLetterOrNumber() || each.isMark())
            kept += each;
    std::sort(kept.begin(), kept.end());
    return kept;
}

QString run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

class ChapterPrintTest : public testing::Test
{
protected:
    void expectNothingCut(const VSPrinter& vp) const
    {
        for (const PrintPage& page : vp.pages()) {
            std::vector<const PageText*> texts;
            for (const PageItem& item : page.items) {
                EXPECT_TRUE(QRectF({0, 0}, page.size)
                                .adjusted(-kSlack, -kSlack, kSlack, kSlack)
                                .contains(boxOf(item)));
                if (const auto* const text = std::get_if<PageText>(&item))
                    texts.push_back(text);
            }
            for (std::size_t i = 0; i < texts.size(); ++i)
                for (std::size_t j = i + 1; j < texts.size(); ++j)
                    EXPECT_FALSE(texts[i]
                                     ->box.adjusted(kSlack, kSlack, -kSlack, -kSlack)
                                     .intersects(texts[j]->box))
                        << texts[i]->text.toStdString() << " / " << texts[j]->text.toStdString();
        }
    }

    static QString recorded(const VSPrinter& vp)
    {
        QString all;
        for (const PrintPage& page : vp.pages())
            for (const PageItem& item : page.items)
                if (const auto* const text = std::get_if<PageText>(&item))
                    all += text->text;
        return all;
    }

    static QString source(const frm성서& reader)
    {
        QString all;
        const std::vector<ChapterSource>& text = reader.model.text();
        for (const ChapterVerse& base : text.front().verses)
            for (const ChapterSource& version : text)
                if (const ChapterVerse* const verse = version.find(base.verse))
                    all += unicodeText(version.code, verse->cont);
        return all;
    }

    /// Every letter of `part` stands in `all` as often at least.
    static bool holds(const QString& all, const QString& part)
    {
        return std::includes(all.begin(), all.end(), part.begin(), part.end());
    }
};

TEST_F(ChapterPrintTest, NoLineIsCutAndPdfGivesTheTextBack)
{
    if (qEnvironmentVariableIsEmpty("LUMENSCRIPT_MODULES"))
        GTEST_SKIP() << "needs modules";
    const real::ProgramFolder folder;
    real::Program program(folder);
    if (!program.loaded)
        GTEST_SKIP() << "no version is installed";
    const bool readsPdf = !QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty();
    const int step = std::max(1, qEnvironmentVariableIntValue("LUMENSCRIPT_PRINT_STEP") > 0
                                     ? qEnvironmentVariableIntValue("LUMENSCRIPT_PRINT_STEP")
                                     : kUsualStep);
    int count = 0;
    int printed = 0;
    for (int book = 0; book < kBookCount; ++book) {
        const bool isOld = book < kOldTestament;
        program.openVersions({101, 201, isOld ? 301 : 308, 205}, 4);
        for (int chapter = 1; chapter <= chapterCount(book); ++chapter) {
            if (count++ % step != 0)
                continue;
            const bool asTable = count % 2 == 1;
            program.reader.atbar_event9(asTable ? u"ID_테이블형식"_s : u"ID_텍스트형식"_s);
            program.reader.model.goTo(book, chapter, 1);
            if (!program.reader.model.hasText())
                continue;
            SCOPED_TRACE(bookName(book).toStdString() + ' ' + std::to_string(chapter));
            VSPrinter vp(program.world.services().printers);
            const PrintRequest request = program.reader.printRequest();
            bindHeaderAndFooter(vp, request);
            vp.StartDoc();
            request.layOut(vp, true);
            vp.EndDoc();
            ++printed;
            expectNothingCut(vp);
            EXPECT_TRUE(holds(letters(recorded(vp)), letters(source(program.reader))));
            if (!readsPdf)
                continue;
            QTemporaryFile pdf;
            ASSERT_TRUE(pdf.open());
            pdf.write(pdfOfPages(vp.pages(), request.docName));
            pdf.close();
            const QString back = run(u"pdftotext"_s, {pdf.fileName(), u"-"_s});
            EXPECT_TRUE(letters(back) == letters(recorded(vp))) << back.left(600).toStdString();
            // A row tells: embedded, named as a subset, Unicode.
            const QStringList fonts =
                run(u"pdffonts"_s, {pdf.fileName()}).split(u'\n', Qt::SkipEmptyParts).sliced(2);
            static const QRegularExpression embedded(u" yes +(yes|no) +yes "_s);
            for (const QString& font : fonts)
                EXPECT_TRUE(font.contains(embedded)) << font.toStdString();
        }
    }
    RecordProperty("chapters", printed);
    EXPECT_GT(printed, 0);
}

} // namespace
} // namespace lumen
