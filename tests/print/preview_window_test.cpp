// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/printing/paper_table.h"
#include "print/preview_window.h"
#include "print/print_dialog.h"
#include "print/record_layout.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class PreviewWindowTest : public testing::Test
{
protected:
    TestServices world;
    PrintState& state = world.state.print;
    int laidOut = 0;
    bool lastWhole = true;

    PrintRequest request(QStringView source = print_source::kBible, int pages = 5)
    {
        PrintRequest request;
        request.source = source.toString();
        request.headTitle = u"창세기 1장"_s;
        request.footerLeft = u"창 1"_s;
        request.docName = u"창세기: 1장"_s;
        request.hasSelection = true;
        request.layOut = [this, pages](VSPrinter& vp, bool whole) {
            ++laidOut;
            lastWhole = whole;
            for (int page = 1; page <= (whole ? pages : 1); ++page) {
                if (page > 1)
                    vp.NewPage();
                vp.addText(u"쪽 %1"_s.arg(page), {});
            }
        };
        return request;
    }

    static QStringList textsOf(const PrintPage& page)
    {
        QStringList texts;
        for (const PageItem& item : page.items)
            if (const auto* const text = std::get_if<PageText>(&item))
                texts << text->text;
        return texts;
    }

    static void type(QDoubleSpinBox& spin, const char* number)
    {
        spin.selectAll();
        QTest::keyClicks(&spin, QString::fromLatin1(number));
        QTest::keyClick(&spin, Qt::Key_Return);
    }
};

TEST_F(PreviewWindowTest, WithoutAPrinterAMessageStandsInForThePreview)
{
    world.printers.devices.clear();
    world.messages.expect(u"프린터 미설치"_s, u"시스템에 설치된 프린터가 없읍니다."_s, 16);
    openPreview(world.services, state, request(), nullptr);
    EXPECT_EQ(laidOut, 0);
}

TEST_F(PreviewWindowTest, HeadAndFootStandOnEachPage)
{
    frm미리보기 preview(world.services, state, request());
    preview.Form_Load();
    ASSERT_EQ(preview.printer.PageCount(), 5);
    const QStringList texts = textsOf(preview.printer.pages()[4]);
    EXPECT_EQ(texts, QStringList({u"창세기 1장"_s, u"쪽 5"_s, u"창 1"_s, u"Page 5"_s}));
}

TEST_F(PreviewWindowTest, AMarginBeyondAThirdOfThePaperIsRefused)
{
    frm미리보기 preview(world.services, state, request());
    preview.Form_Load();
    preview.show();
    world.messages.expect(u"Lumenscript"_s,
                          u"Sorry! The margin value cannot exceed paper width * 1/3."_s, 0);
    type(*preview.spnSpace(1), "7.1");
    EXPECT_EQ(preview.spnSpace(1)->value(), 7);
    const int before = laidOut;
    type(*preview.spnSpace(0), "5");
    EXPECT_TRUE(QTest::qWaitFor([&] { return laidOut > before; }));
    EXPECT_NEAR(preview.printer.MarginTop, 5 * 1440 / 2.54, 1);
    EXPECT_NEAR(preview.printer.MarginLeft, 7 * 1440 / 2.54, 1);
}

TEST_F(PreviewWindowTest, TheUsersOwnPaperComesBackAndAPaperThatThePrinterLacksDoesNot)
{
    {
        frm미리보기 preview(world.services, state, request());
        preview.Form_Load();
        preview.show();
        EXPECT_FALSE(preview.spnPaperSize(0)->isEnabled());
        preview.cb용지크기->setListIndex(preview.cb용지크기->ListCount() - 1);
        ASSERT_EQ(preview.printer.PaperSize(), kUserPaper);
        type(*preview.spnPaperSize(0), "12");
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return qAbs(preview.printer.pages()[0].size.width() - 6803) < 2; }));
        preview.close();
    }
    {
        frm미리보기 preview(world.services, state, request());
        preview.Form_Load();
        EXPECT_EQ(preview.printer.PaperSize(), kUserPaper);
        EXPECT_NEAR(preview.printer.PaperWidth(), 6803, 2);
    }
    world.printers.devices = {{u"작은"_s, {{{210, 297}, {148, 210}}, false, {148, 210}}}};
    frm미리보기 preview(world.services, state, request());
    preview.Form_Load();
    EXPECT_EQ(preview.printer.PaperSize(), 11);
    EXPECT_EQ(preview.cb용지크기->ItemData(preview.cb용지크기->ListIndex()), 11);
    EXPECT_FALSE(preview.spnPaperSize(0)->isEnabled());
}

TEST_F(PreviewWindowTest, SliderKeysAndWheelWalkThePages)
{
    frm미리보기 preview(world.services, state, request());
    preview.Form_Load();
    preview.show();
    EXPECT_EQ(preview.lbl쪽표시->text(), u"1 of 5"_s);
    QTest::keyClick(preview.vp, Qt::Key_PageDown);
    EXPECT_EQ(preview.lbl쪽표시->text(), u"2 of 5"_s);
    QTest::keyClick(preview.vp, Qt::Key_End);
    EXPECT_EQ(preview.lbl쪽표시->text(), u"5 of 5"_s);
    preview.cbZoomMode->setListIndex(2);
    EXPECT_EQ(preview.lbl쪽표시->text(), u"1 to 2 of 5"_s);
    EXPECT_EQ(preview.sld쪽이동->maximum(), 3);
    preview.sld쪽이동->setValue(3);
    EXPECT_EQ(preview.lbl쪽표시->text(), u"5 to 5 of 5"_s);
    EXPECT_FALSE(preview.cbPercent->isEnabled());
    preview.cbZoomMode->setListIndex(0);
    EXPECT_TRUE(preview.cbPercent->isEnabled());
    preview.cbPercent->lineEdit()->selectAll();
    QTest::keyClicks(preview.cbPercent->lineEdit(), u"150%"_s);
    QTest::keyClick(preview.cbPercent->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(preview.vp->Zoom(), 150);
    const int before = laidOut;
    EXPECT_EQ(before, 1) << "zoom and moves lay nothing out anew";
}

TEST_F(PreviewWindowTest, CopiesRangeAndPartReachThePrinter)
{
    frm미리보기 preview(world.services, state, request());
    preview.Form_Load();
    preview.show();
    world.modal.expect([](QDialog& shown) {
        auto& dialog = dynamic_cast<frm인쇄&>(shown);
        EXPECT_EQ(dialog.lbl프린터이름->text(), u"사무실"_s);
        dialog.op범위->click();
        dialog.tx시작->setValue(3);
        dialog.tx끝->setValue(2);
        dialog.tx인쇄매수->setValue(2);
        dialog.OKButton->click();
    });
    preview.cmd인쇄->click();
    ASSERT_EQ(world.printers.jobs.size(), 1u);
    const PrintJob& job = world.printers.jobs[0];
    EXPECT_EQ(job.copies, 2);
    EXPECT_EQ(job.quality, -4);
    ASSERT_EQ(job.pages.size(), 2u);
    EXPECT_TRUE(textsOf(job.pages[0]).contains(u"쪽 2"_s));

    world.modal.expect([](QDialog& shown) {
        auto& dialog = dynamic_cast<frm인쇄&>(shown);
        dialog.opt선택->click();
        QTest::keyClick(dialog.tx인쇄매수, Qt::Key_Return);
    });
    preview.cmd인쇄->click();
    ASSERT_EQ(world.printers.jobs.size(), 2u);
    EXPECT_FALSE(lastWhole);
    EXPECT_EQ(world.printers.jobs[1].pages.size(), 1u);

    world.modal.expect([](QDialog& shown) { shown.reject(); });
    preview.cmd인쇄->click();
    EXPECT_EQ(world.printers.jobs.size(), 2u);
}

TEST_F(PreviewWindowTest, APrinterThatHasGoneIsTold)
{
    frm미리보기 preview(world.services, state, request());
    preview.Form_Load();
    world.printers.failure = Failure{FailureKind::NotFound, u"사무실"_s};
    world.modal.expect([](QDialog& shown) { dynamic_cast<frm인쇄&>(shown).OKButton->click(); });
    world.messages.expect(u"인쇄"_s, u"프린터 \"사무실\"을(를) 찾을 수 없습니다."_s, 48);
    preview.cmd인쇄->click();
}

TEST_F(PreviewWindowTest, TheFileEntryAsksForANameThatFilesMayHave)
{
    world.printers.file = u"사무실"_s;
    frm미리보기 preview(world.services, state, request());
    preview.Form_Load();
    const QString path = world.folders.root() + u"/창세기.pdf"_s;
    world.modal.expect([](QDialog& shown) { dynamic_cast<frm인쇄&>(shown).OKButton->click(); });
    world.fileDialogs.answerSave(path);
    preview.cmd인쇄->click();
    ASSERT_EQ(world.fileDialogs.saveRequests.size(), 1);
    EXPECT_EQ(world.fileDialogs.saveRequests[0].name, u"창세기 1장"_s);
    ASSERT_EQ(world.printers.jobs.size(), 1u);
    EXPECT_EQ(world.printers.jobs[0].file, path);
}

TEST_F(PreviewWindowTest, ARecordStandsInItsFormAndAListInItsColumns)
{
    RecordSheet sheet;
    sheet.head = {RecordSheet::Field{u"설교일"_s, u"2026-11-22"_s},
                  RecordSheet::Field{u"작성일"_s, u"2026-11-20"_s},
                  RecordSheet::Field{u"분 류"_s, u"주일예배"_s}};
    sheet.fields = {{u"제 목"_s, u"{\\rtf1 Good news}"_s}, {u"말 씀"_s, QString()}};
    sheet.body = u"{\\rtf1 Body\\par}"_s;
    VSPrinter vp(world.printers);
    vp.StartDoc();
    layOutRecord(vp, sheet);
    vp.EndDoc();
    EXPECT_EQ(textsOf(vp.pages()[0]),
              QStringList({u"설교일"_s, u"2026-11-22"_s, u"작성일"_s, u"2026-11-20"_s, u"분 류"_s,
                           u"주일예배"_s, u"제 목"_s, u"Good news"_s, u"말 씀"_s, u"Body"_s}));
    vp.StartDoc();
    layOutRecordList(vp, {{u"작성일"_s, u"제목"_s}, {false, true}, {{u"2026-11-20"_s, u"기쁨"_s}}});
    vp.EndDoc();
    EXPECT_EQ(textsOf(vp.pages()[0]),
              QStringList({u"작성일"_s, u"제목"_s, u"2026-11-20"_s, u"기쁨"_s}));
    EXPECT_EQ(printedCell(QString(31, u'가') + u"\t"_s), QString(30, u'가') + u"..."_s);
}

} // namespace
} // namespace lumen
