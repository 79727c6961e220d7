// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/chapter_reader.h"
#include "fonts/drawn_text.h"
#include "jet/database.h"
#include "jet/engine.h"
#include "platform/controls/grid/grid_layout.h"
#include "platform/controls/text/text_control.h"
#include "platform/controls/twips.h"
#include "reader/views/chapter_document.h"
#include "support/test_services.h"
#include "text/field_scramble.h"
#include "text/original/hebrew_division.h"
#include "text/rtf/rtf_composer.h"

#include <QTextBlock>
#include <QTextLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kFirstWidth = 2400; // twips: a quarter of the smallest window, beside the panel
constexpr int kWidthStep = 430;
constexpr int kWidths = 30;

/// The Hebrew versions as they are built, laid out as the reader does. LUMENSCRIPT_EVERY_CHAPTER=1
/// looks at all chapters and 30 widths, which takes an hour; else a few long ones stand for them.
class HebrewLinesTest : public BuiltFontsTest
{
protected:
    void SetUp() override
    {
        if (qEnvironmentVariableIsEmpty("LUMENSCRIPT_MODULES"))
            GTEST_SKIP() << "LUMENSCRIPT_MODULES names no folder of modules";
    }

    /// The chapters of a version, each as the composer takes it.
    std::vector<ChapterSource> chapters(int code, const QString& table)
    {
        const QString path = qEnvironmentVariable("LUMENSCRIPT_MODULES") + u"/%1.dts"_s.arg(code);
        const auto database = services.jet.OpenDatabase(path, false, true, u";pwd=qolvetrinam"_s);
        const auto rows =
            database->OpenRecordset(u"select * from ["_s + table + u"] order by index"_s);
        std::vector<ChapterSource> all;
        QString chapter;
        for (; !rows->Eof(); rows->MoveNext()) {
            const QString of = Text(rows->Fields(u"chap"));
            if (!isWanted(of))
                continue;
            if (of != chapter)
                all.push_back({0, code, {}});
            chapter = of;
            all.back().verses.push_back({Number(rows->Fields(u"verse")),
                                         DES::UnscrambleField(Text(rows->Fields(u"cont"))),
                                         {},
                                         {}});
        }
        return all;
    }

    static bool isWanted(const QString& chapter)
    {
        static const QStringList few{u"창01"_s, u"시119"_s, u"에08"_s, u"대상01"_s};
        return everyChapter() || few.contains(chapter);
    }
    static bool everyChapter() { return qEnvironmentVariableIsSet("LUMENSCRIPT_EVERY_CHAPTER"); }
    static int step() { return everyChapter() ? 1 : 7; }

    ChapterStyle styleFor(int size, int width)
    {
        ChapterStyle style;
        style.rtf.fontSize = size;
        style.divideHebrew = [this, rtf = style.rtf, width](const QString& stored,
                                                            const QString& font, int halfPoints,
                                                            const VerseHead& head) {
            const int taken = headWidth(head, rtf, font, halfPoints);
            return DivideHebrewCont(stored, {font, halfPoints, width, taken}, true, breaker);
        };
        return style;
    }

    TestServices services;
    FontLineBreaker breaker;
};

const std::pair<int, QString> kVersions[] = {{301, u"BHS"_s}, {302, u"BHS 자음"_s}};

TEST_F(HebrewLinesTest, NoDividedLineWrapsInTheText)
{
    TextControl control;
    control.show();
    for (const auto& [code, table] : kVersions)
        for (const ChapterSource& chapter : chapters(code, table))
            for (int size = 1; size <= 5; ++size)
                for (int number = 0; number < kWidths; number += step()) {
                    control.resize(toPixels(kFirstWidth + number * kWidthStep), 600);
                    const ChapterStyle style = styleFor(size, control.textWidth());
                    control.LoadRtf(toRtfBytes(composeChapter({chapter}, style).rtf));
                    control.document()->setTextWidth(toPixels(control.textWidth()) +
                                                     2 * control.document()->documentMargin());
                    for (QTextBlock block = control.document()->begin(); block.isValid();
                         block = block.next())
                        ASSERT_LE(block.layout()->lineCount(), 1)
                            << code << " size " << size << " width " << number << ": "
                            << block.text().toStdString();
                }
}

TEST_F(HebrewLinesTest, NoDividedLineWrapsInACellOfTheTable)
{
    for (const auto& [code, table] : kVersions) {
        const VersionFont face = GetVersionFontEx(code, defaultFontSettings());
        for (const ChapterSource& chapter : chapters(code, table))
            for (int size = 1; size <= 5; ++size) {
                const int halfPoints = scaledSize(face.factor, rtfSizes(size).text);
                QFont font(face.font);
                font.setPointSizeF(halfPoints / 2.0);
                for (int number = 0; number < kWidths; number += step())
                    for (const ChapterVerse& verse : chapter.verses) {
                        const int width = kFirstWidth + number * kWidthStep;
                        const QStringList lines =
                            hebrewLines(verse.cont, {face.font, halfPoints, width}, breaker);
                        for (const QString& line : lines) {
                            QTextLayout layout(line, font);
                            layOutCell(layout, toPixels(width), GridAlign::Right);
                            ASSERT_LE(layout.lineCount(), 1)
                                << code << " size " << size << " width " << width << ": "
                                << line.toStdString();
                        }
                    }
            }
    }
}

} // namespace
} // namespace lumen
