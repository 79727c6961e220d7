// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/check_data.h"
#include "platform/registry/registry_store.h"
#include "print/preview_window.h"
#include "support/active_window.h"
#include "support/fake_reader.h"
#include "support/module_files.h"
#include "support/recording_opener.h"
#include "support/test_services.h"
#include "text/field_scramble.h"
#include "tools/map/map_window.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

QVariant scrambled(const QString& text)
{
    return DES::ScrambleField(text);
}

class MapWindowTest : public testing::Test
{
protected:
    MapWindowTest()
    {
        writePicture(3, {1600, 1200}, {{u"가 마을"_s, {800, 600}, {820, 585, 120, 30}}});
        writePicture(7, {900, 1400},
                     {{u"나성(길)"_s, {700, 1200}, {560, 1185, 120, 30}},
                      {u"가 마을"_s, {100, 100}, {120, 85, 120, 30}}});
        writeModule(world.folders.data(u"BibleMap.dts"_s),
                    {{{u"BibleMap"_s, {{u"Title"_s}, {u"FileNum"_s, FieldType::Short, 0}}, {}},
                      {{scrambled(u"첫 지도"_s), 3},
                       {scrambled(u"둘째 지도"_s), 7},
                       {scrambled(u"없는 지도"_s), 9}}},
                     {{u"BibleMapPlace"_s, {{u"FileNum"_s, FieldType::Short, 0}, {u"Name"_s}}, {}},
                      {{3, scrambled(u"가 마을"_s)},
                       {7, scrambled(u"나성(길)"_s)},
                       {7, scrambled(u"가 마을"_s)}}}});
        writeModule(world.folders.data(u"BibleDic.dts"_s),
                    {{{u"성경사전"_s,
                       {{u"word"_s}, {u"def"_s}, {u"class"_s}, {u"no"_s, FieldType::Long, 0}},
                       {}},
                      {{scrambled(u"나성"_s), scrambled(u"옛 성읍"_s), u"t"_s, 1},
                       {scrambled(u"가 마을"_s), scrambled(u"작은 마을"_s), u"t"_s, 2}}}});
        writeModule(
            world.folders.data(u"101c.dts"_s),
            {{{u"성구사전"_s, {{u"Word"_s}, {u"Pos"_s}, {u"num"_s, FieldType::Long, 0}}, {}},
              {{scrambled(u"나성에"_s), u"43요:001:001"_s, 1}}}});
        writeVersion(world.folders.data(u"101.dts"_s), u"개역한글"_s,
                     {{42, 1, 1, u"나성에 온 사람"_s, {}, {}}});
        CheckData(world.state, world.files, world.jet);
    }

    QString picturePath(int number) const
    {
        return world.folders.program() + u"/maps/k%1.map"_s.arg(number);
    }
    void writePicture(int number, const QSize& size, const std::vector<MapName>& names)
    {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter(&picture).fillRect(0, 0, 10, 10, Qt::red); // the corner
        if (!names.empty())
            picture.setText(kMapNamesKey, mapNamesText(names));
        QDir().mkpath(world.folders.program() + u"/maps"_s);
        ASSERT_TRUE(picture.save(picturePath(number), "PNG"));
    }

    void open()
    {
        window.Form_Load();
        window.resize(1000, 700);
        showActive(window);
        QCoreApplication::processEvents();
    }
    QPoint scrolled() const
    {
        return {view.horizontalScrollBar()->value(), view.verticalScrollBar()->value()};
    }
    void wheel(const QPointF& at, int notches, Qt::KeyboardModifiers keys)
    {
        QWheelEvent event(at, view.viewport()->mapToGlobal(at), {}, {0, notches * 120},
                          Qt::NoButton, keys, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view.viewport(), &event);
    }
    void drag(const QPoint& from, const QPoint& by)
    {
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, from + by, view.viewport()->mapToGlobal(from + by),
                         Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(view.viewport(), &move);
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, from + by);
    }
    void click(const QPointF& at)
    {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.viewPoint(at).toPoint());
    }
    QStringList places() const
    {
        QStringList texts;
        for (int i = 0; i < window.lst지명->ListCount(); ++i)
            texts << window.lst지명->List(i);
        return texts;
    }

    TestServices world;
    FakeReader reader;
    RecordingOpener opener;
    frm성서지도 window{world.services, world.state, reader, opener};
    MapView& view = *window.vsPort;
};

TEST_F(MapWindowTest, AMapIsShownFromItsCornerAndOneThatIsMissingLeavesTheLast)
{
    open();
    EXPECT_EQ(QApplication::focusWidget(), window.lst지도목록);
    EXPECT_EQ(window.lst지도목록->ListCount(), 3);
    EXPECT_EQ(view.virtualSize(), QSizeF(1600, 1200));
    EXPECT_EQ(view.viewport()->grab().toImage().pixelColor(5, 5), QColor(Qt::red));
    EXPECT_EQ(window.statusPanel1->text(), u"첫 지도"_s);

    QTest::keyClick(window.vsPort, Qt::Key_End);
    EXPECT_GT(scrolled().x(), 0);
    QTest::keyClick(window.lst지도목록, Qt::Key_Down);
    EXPECT_EQ(view.virtualSize(), QSizeF(900, 1400));
    EXPECT_EQ(scrolled(), QPoint());

    QTest::keyClick(window.lst지도목록, Qt::Key_Down);
    EXPECT_EQ(view.virtualSize(), QSizeF(900, 1400)) << "its file is missing";
    EXPECT_EQ(window.statusPanel1->text(), u"둘째 지도"_s);
    QFile damaged(picturePath(9));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("no picture");
    damaged.close();
    window.lst지도목록->setListIndex(0);
    window.lst지도목록->setListIndex(2);
    EXPECT_EQ(window.statusPanel1->text(), u"첫 지도"_s) << "its file is none";
}

TEST_F(MapWindowTest, ZoomHoldsWhatIsUnderThePointerAndStaysWithinItsLimits)
{
    open();
    const QPointF pointer(300, 200);
    wheel(pointer, 3, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(view.zoom(), 1.25 * 1.25 * 1.25);
    EXPECT_LT((view.viewPoint(pointer) - pointer).manhattanLength(), 2) << "it was at the corner";
    EXPECT_EQ(window.statusPanel2->text(), u"195%"_s);
    wheel(pointer, 40, Qt::ControlModifier);
    EXPECT_EQ(view.zoom(), MapView::kMost);
    wheel(pointer, -100, Qt::ControlModifier);
    EXPECT_EQ(view.zoom(), MapView::kLeast);

    QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(view.zoom(), 1.25);
    QTest::keyClick(&window, Qt::Key_9, Qt::ControlModifier);
    QCoreApplication::processEvents(); // the bars go
    const QSizeF fitted = view.virtualSize();
    EXPECT_LE(fitted.width(), view.viewport()->width() + 1);
    EXPECT_LE(fitted.height(), view.viewport()->height() + 1);
    EXPECT_FALSE(view.verticalScrollBar()->isVisible());
    window.resize(700, 500);
    EXPECT_LT(view.virtualSize().width(), fitted.width()) << "it stays fitted";
    QCoreApplication::processEvents();
    window.lst지도목록->setListIndex(1);
    EXPECT_LE(view.virtualSize().height(), view.viewport()->height() + 1);
    QTest::keyClick(window.vsPort, Qt::Key_Plus);
    EXPECT_FALSE(window.atbar.tool(u"ID_FitMap").checked());
}

TEST_F(MapWindowTest, WheelAndMouseScrollWithoutTakingAPlace)
{
    open();
    wheel({300, 200}, -2, {});
    EXPECT_EQ(scrolled().x(), 0);
    EXPECT_GT(scrolled().y(), 0);
    wheel({300, 200}, -2, Qt::ShiftModifier);
    EXPECT_GT(scrolled().x(), 0);
    view.showPlace({800, 600});
    const QPoint before = scrolled();
    // From the mark of a place on.
    drag(view.viewPoint(QPoint(800, 600)).toPoint(), {-60, -30});
    EXPECT_EQ(scrolled(), before + QPoint(60, 30));
    EXPECT_EQ(window.ssTab->Tab(), 0) << "nothing was looked up";
}

TEST_F(MapWindowTest, AClickedPlaceIsLookedUpInBothWorks)
{
    open();
    window.lst지도목록->setListIndex(1);
    view.setZoom(0.5);
    click({620, 1195}); // its letters
    EXPECT_EQ(view.ring(), QPoint(700, 1200));
    EXPECT_EQ(window.ssTab->Caption(), u"성경사전"_s);
    EXPECT_EQ(window.dictionary.tx성경사전의미->Text(), u"옛 성읍"_s);
    EXPECT_EQ(window.statusPanel1->text(), u"출처 : 오르베인 한글 성경사전"_s);
    EXPECT_EQ(window.concordance.tx성구본문->Text(), u"나성에 온 사람"_s);
    QTest::keyClick(&window, Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), window.concordance.tx성구사전검색어);
    window.concordance.lst성구인덱스->onDblClick();
    EXPECT_EQ(reader.book(), 42);
    EXPECT_EQ(reader.raises, 1);

    click({110, 104}); // beside the mark
    EXPECT_EQ(window.dictionary.tx성경사전의미->Text(), u"작은 마을"_s);
    const QString shown = window.dictionary.cb성경사전검색어->currentText();
    click({400, 700}); // nothing there
    EXPECT_EQ(window.dictionary.cb성경사전검색어->currentText(), shown);
}

TEST_F(MapWindowTest, APlaceIsFoundOnEveryMapAndStaysInTheList)
{
    open();
    EXPECT_EQ(places(), QStringList{u"가 마을"_s});
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), window.tx지명);
    window.tx지명->setText(QString(u"가마"_s).normalized(QString::NormalizationForm_D));
    EXPECT_EQ(places(), (QStringList{u"가 마을"_s, u"가 마을 - 둘째 지도"_s}));
    QTest::keyClick(window.tx지명, Qt::Key_Return);
    EXPECT_EQ(view.ring(), QPoint(800, 600));
    const QRectF middle(view.viewport()->width() / 2.0 - 2, view.viewport()->height() / 2.0 - 2, 4,
                        4);
    EXPECT_TRUE(middle.contains(view.viewPoint(QPoint(800, 600))));
    QTest::keyClick(window.lst지명, Qt::Key_Down);
    EXPECT_EQ(window.lst지도목록->ListIndex(), 1);
    EXPECT_EQ(view.ring(), QPoint(100, 100));
    EXPECT_EQ(places().size(), 2);
    QTest::keyClick(window.lst지명, Qt::Key_Return);
    EXPECT_EQ(window.dictionary.tx성경사전의미->Text(), u"작은 마을"_s);
}

TEST_F(MapWindowTest, WithoutModulesNothingIsAskedAndAPictureOfTheUserIsShown)
{
    QFile::remove(world.folders.data(u"101c.dts"_s));
    QFile::remove(world.folders.data(u"BibleDic.dts"_s));
    writePicture(3, {300, 200}, {});
    CheckData(world.state, world.files, world.jet);
    open();
    click({150, 100});
    EXPECT_FALSE(view.ring());
    window.lst지도목록->setListIndex(1);
    click({110, 104});
    EXPECT_EQ(view.ring(), QPoint(100, 100));
    window.close();

    QFile::remove(world.folders.data(u"BibleMap.dts"_s));
    open();
    EXPECT_EQ(window.lst지도목록->ListCount(), 0);
    EXPECT_TRUE(view.picture().isNull());
    EXPECT_FALSE(window.atbar.tool(u"ID_인쇄").enabled());
    QTest::keyClick(window.vsPort, Qt::Key_Plus);
    wheel({10, 10}, 1, Qt::ControlModifier);
}

TEST_F(MapWindowTest, TheMapGoesToThePaperWholeWithItsNameBelow)
{
    open();
    view.setZoom(4);
    std::size_t pages = 0;
    world.modal.expect([&](QDialog& dialog) {
        auto& preview = static_cast<frm미리보기&>(dialog);
        EXPECT_FALSE(preview.Op선택->isEnabled());
        pages = preview.printer.pages().size();
        int pictures = 0;
        bool hasName = false;
        for (const PageItem& item : preview.printer.pages().front().items) {
            if (const auto* picture = std::get_if<PagePicture>(&item)) {
                ++pictures;
                EXPECT_EQ(picture->picture.size(), QSize(1600, 1200));
                EXPECT_NEAR(picture->box.width() / picture->box.height(), 4.0 / 3, 0.01);
                EXPECT_LE(picture->box.bottom(), preview.printer.bodyBottom() + 1);
            }
            if (const auto* text = std::get_if<PageText>(&item))
                hasName |= text->text.contains(u"첫 지도"_s);
        }
        EXPECT_EQ(pictures, 1);
        EXPECT_TRUE(hasName);
    });
    QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(pages, 1U);
}

TEST_F(MapWindowTest, EveryToolLeadsSomewhere)
{
    open();
    const ToolFaults faults = unpairedTools(window.atbar.rows(), window.toolClicks());
    EXPECT_EQ(faults.withoutHandler, QStringList());
    EXPECT_EQ(faults.withoutTool, QStringList());
    for (const QStringView tool : {u"ID_성서", u"ID_설교매니저", u"ID_QT매니저", u"ID_예화사전"})
        window.atbar.tool(tool).action()->trigger();
    EXPECT_EQ(opener.opened, (std::vector{WindowId::Reader, WindowId::Sermons, WindowId::QuietTime,
                                          WindowId::Illustrations}));
    window.atbar.tool(u"ID_도구막대표시").action()->trigger();
    EXPECT_FALSE(window.atbar.barVisible(kMapBar));
    EXPECT_FALSE(window.atbar.tool(u"ID_도구막대표시").checked());
}

} // namespace
} // namespace lumen
