// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/printing/paper_table.h"
#include "platform/printing/qt_printers.h"
#include "platform/printing/vs_printer.h"
#include "support/scripted_printers.h"
#include "text/original/original_unicode.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QRegularExpression>
#include <QTextCursor>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class VsPrinterTest : public testing::Test
{
protected:
    ScriptedPrinters printers;
    VSPrinter vp{printers};

    void SetUp() override { vp.Footer = u"왼쪽||Page 1"_s; }

    /// Nothing stands outside of its page, no line of the text in the foot, none upon another.
    void expectInOrder(const QRectF& body)
    {
        for (const PrintPage& page : vp.pages()) {
            std::vector<QRectF> lines;
            for (const PageItem& item : page.items) {
                const QRectF box = boxOf(item);
                EXPECT_TRUE(QRectF({0, 0}, page.size).adjusted(-1, -1, 1, 1).contains(box));
                const auto* const text = std::get_if<PageText>(&item);
                if (text == nullptr || text->text.contains(u"Page") || text->text == u"왼쪽")
                    continue;
                EXPECT_GE(box.top(), body.top() - 1) << text->text.toStdString();
                EXPECT_LE(box.bottom(), body.bottom() + 1) << text->text.toStdString();
                for (const QRectF& other : lines)
                    EXPECT_FALSE(box.adjusted(2, 2, -2, -2).intersects(other));
                lines.push_back(box);
            }
        }
    }

    QRectF body() const
    {
        return {vp.MarginLeft, vp.bodyTop(), vp.bodyWidth(), vp.bodyBottom() - vp.bodyTop()};
    }

    QString allText() const
    {
        QString all;
        for (const PrintPage& page : vp.pages())
            for (const PageItem& item : page.items)
                if (const auto* const text = std::get_if<PageText>(&item))
                    if (!text->text.contains(u"Page") && text->text != u"왼쪽")
                        all += text->text;
        static const QRegularExpression blanks(u"\\s"_s);
        return all.remove(blanks);
    }

    static QString longText(int sentences)
    {
        QString text;
        for (int i = 0; i < sentences; ++i)
            text += u"번호 %1 포도원 지기는 아침마다 돌담을 고치고 물길을 열었더라 "_s.arg(i);
        return text;
    }
};

TEST_F(VsPrinterTest, ATextFlowsOverThePagesWithoutLosingALetter)
{
    for (const PageOrientation turn : {PageOrientation::Portrait, PageOrientation::Landscape}) {
        vp.Orientation = turn;
        vp.StartDoc();
        const QString text = longText(600);
        vp.addText(text, {});
        vp.EndDoc();
        EXPECT_GT(vp.PageCount(), 3);
        EXPECT_EQ(allText(), QString(text).remove(u' '));
        expectInOrder(body());
    }
}

TEST_F(VsPrinterTest, ALineOfAParagraphDoesNotStayAlone)
{
    // A few words more each time, so that some end comes to stand at each place of the page.
    for (int words = 1; words < 40; ++words) {
        vp.StartDoc();
        for (int i = 0; i < 40; ++i)
            vp.addText(longText(words % 7 + 3), {});
        vp.EndDoc();
        expectInOrder(body());
    }
    TextFlow flow;
    for (int line = 0; line < 6; ++line) {
        const double top = 100.0 * line;
        flow.bands.push_back({top, top + 100, line / 3, {}});
    }
    flow.height = 600;
    EXPECT_EQ(flow.fitting(0, 350, true), 3u); // ends where a paragraph does
    EXPECT_EQ(flow.fitting(0, 250, true), 2u); // no other place: a third line would be alone
    EXPECT_EQ(flow.fitting(0, 450, true), 3u); // the first line of the second goes along
    EXPECT_EQ(flow.fitting(0, 50, true), 1u);  // nothing fits, yet the page takes one
    EXPECT_EQ(flow.fitting(0, 50, false), 0u); // the next page has more room
}

TEST_F(VsPrinterTest, ATableRepeatsItsHeaderAndPartsOnlyWhatIsHigherThanAPage)
{
    PrintTable table;
    table.columns = {{1000, {}}, {vp.bodyWidth() - 1000, {}}};
    table.header = PrintRow{{u"절머리"_s}, {u"본문머리"_s}};
    for (int row = 0; row < 60; ++row)
        table.rows.push_back({{QString::number(row)}, {longText(row == 30 ? 400 : 4)}});
    vp.StartDoc();
    vp.addTable(table);
    vp.EndDoc();
    expectInOrder(body());
    for (const PrintPage& page : vp.pages())
        EXPECT_EQ(1, std::count_if(page.items.begin(), page.items.end(), [](const PageItem& item) {
                      const auto* const text = std::get_if<PageText>(&item);
                      return text != nullptr && text->text == u"절머리";
                  }));
    QString expected = longText(4);
    EXPECT_EQ(allText().count(expected.remove(u' ')), 60);
}

TEST_F(VsPrinterTest, RtfKeepsTablesPicturesAndTheUnicodeOfHebrew)
{
    QTextDocument document;
    QTextCursor cursor(&document);
    cursor.insertText(longText(30));
    QImage large(4000, 9000, QImage::Format_RGB32);
    large.fill(Qt::darkGreen);
    cursor.insertBlock();
    cursor.insertImage(large, u"large"_s);
    cursor.insertTable(40, 2);
    for (int cell = 0; cell < 80; ++cell) {
        cursor.insertText(u"칸 %1"_s.arg(cell));
        cursor.movePosition(QTextCursor::NextCell);
    }
    vp.StartDoc();
    vp.addDocument(document);
    vp.EndDoc();
    expectInOrder(body());
    EXPECT_TRUE(allText().contains(u"칸79")) << allText().right(300).toStdString();
    int pictures = 0;
    int fills = 0;
    for (const PrintPage& page : vp.pages())
        for (const PageItem& item : page.items) {
            pictures += std::holds_alternative<PagePicture>(item) ? 1 : 0;
            fills += std::holds_alternative<PageFill>(item) ? 1 : 0;
        }
    EXPECT_EQ(pictures, 1);
    EXPECT_GT(fills, 80);

    PrintLook hebrew;
    hebrew.family = u"OrvaneHeb"_s;
    vp.StartDoc();
    vp.addText(hebrewToCodes(u"בְּרֵאשִׁית", HebrewForm::Pointed).codes, hebrew);
    vp.EndDoc();
    static const QRegularExpression latin(u"[A-Za-z]"_s);
    EXPECT_FALSE(allText().contains(latin)) << allText().toStdString();
    EXPECT_NEAR(boxOf(vp.pages()[0].items[0]).right(), body().right(), 2);
}

TEST_F(VsPrinterTest, HeadAndFootKeepTheirRoomWhereMarginsLeaveNone)
{
    vp.MarginTop = vp.MarginBottom = 0;
    vp.MarginLeft = vp.MarginRight = 0;
    vp.onBeforeHeader = [this] {
        vp.HdrFontSize = 14;
        vp.Header = u"|머리"_s;
    };
    vp.onBeforeFooter = [this] {
        vp.Footer = u"왼쪽||Page "_s + QString::number(vp.CurrentPage());
    };
    vp.StartDoc();
    vp.addText(longText(300), {});
    vp.EndDoc();
    ASSERT_GT(vp.PageCount(), 1);
    for (const PrintPage& page : vp.pages()) {
        QRectF head;
        QRectF firstLine;
        for (const PageItem& item : page.items)
            if (const auto* const text = std::get_if<PageText>(&item))
                (text->text == u"머리" ? head : firstLine.isNull() ? firstLine : head) = text->box;
        EXPECT_TRUE(QRectF({0, 0}, page.size).contains(firstLine));
    }
}

TEST_F(VsPrinterTest, PapersAreThoseThatTheDeviceKnowsWithinAMillimetre)
{
    printers.devices = {{u"작은"_s, {{{210.4, 297}, {148, 210}}, false, {148, 210}}}};
    VSPrinter small(printers);
    EXPECT_EQ(small.PaperSize(), 11);
    EXPECT_TRUE(small.PaperSizes(kPaperA4));
    EXPECT_FALSE(small.PaperSizes(8));
    EXPECT_FALSE(small.PaperSizes(kUserPaper));
    small.setPaperSize(8);
    EXPECT_EQ(small.PaperSize(), 11);
    for (const int code : {0, 48, 49})
        EXPECT_EQ(paperRow(code), nullptr);
}

TEST_F(VsPrinterTest, AFormatThatCantBeReadGivesColumnsOfEqualWidth)
{
    const auto columns = columnsOfFormat(u"^+1 cm\t+2000\t>1in"_s, u'\t', 9000);
    ASSERT_EQ(columns.size(), 3u);
    EXPECT_NEAR(columns[0].width, 566.9, 0.1);
    EXPECT_EQ(columns[0].look.align, Qt::AlignHCenter);
    EXPECT_TRUE(columns[1].look.wraps);
    EXPECT_EQ(columns[2].width, 1440);
    const auto equal = columnsOfFormat(u"^+1 cm\tbroad\t"_s, u'\t', 9000);
    ASSERT_EQ(equal.size(), 3u);
    EXPECT_EQ(equal[1].width, 3000);
}

TEST_F(VsPrinterTest, ThePdfFileHasThePagesInTheirSize)
{
    vp.Orientation = PageOrientation::Landscape;
    vp.StartDoc();
    vp.addText(longText(200), {});
    vp.EndDoc();
    const QByteArray pdf = pdfOfPages(vp.pages(), u"제목"_s);
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_EQ(pdf.count("/Type /Page\n"), vp.PageCount());
    EXPECT_TRUE(pdf.contains("842") && pdf.contains("595"));
}

} // namespace
} // namespace lumen
