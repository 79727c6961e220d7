// SPDX-License-Identifier: GPL-2.0-or-later
#include "../reader/reader_fixture.h"
#include "palette/palette_window.h"
#include "support/active_window.h"

#include <QInputMethodEvent>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

class PaletteTest : public ReaderTest
{
protected:
    // Opens the palette by its key; `user` types into it and ends it.
    void palette(const std::function<void(frmPalette&)>& user)
    {
        services.modal.expect([&](QDialog& dialog) {
            auto& shown = static_cast<frmPalette&>(dialog);
            for (int book = 0; book < 70; ++book)
                QApplication::processEvents(); // reads the version
            user(shown);
        });
        showActive(*reader); // a dialog before may have had the focus
        QTest::keyClick(reader.get(), Qt::Key_K, Qt::ControlModifier);
    }
    static QStringList lines(const frmPalette& palette)
    {
        QStringList texts;
        for (int row = 0; row < palette.lstFound->topLevelItemCount(); ++row)
            texts << palette.lstFound->topLevelItem(row)->text(0);
        return texts;
    }
    QString place() const
    {
        return BibleCode::IndexToRef(BibleCode::verseKey(
            reader->model.book(), reader->model.chapter(), reader->model.GetCurVerse()));
    }
};

TEST_F(PaletteTest, AToolIsFoundByItsNameAndRunWhenThePaletteIsGone)
{
    start();
    palette([&](frmPalette& palette) {
        EXPECT_EQ(QApplication::focusWidget(), palette.txTyped);
        EXPECT_GT(lines(palette).size(), 40) << "all that can be used";
        palette.txTyped->setText(u"ㅂㅁㅊㅊ"_s);
        ASSERT_EQ(lines(palette).value(0), u"본문 추출"_s);
        EXPECT_EQ(palette.lstFound->topLevelItem(0)->text(1), u"Ctrl+E"_s);
        palette.txTyped->setText(u"크게"_s);
        EXPECT_TRUE(lines(palette).contains(u"글자 크기 - 아주 크게"_s));
        palette.txTyped->setText(u"설교매"_s);
        QTest::keyClick(palette.txTyped, Qt::Key_Return);
        EXPECT_TRUE(opener.opened.empty());
    });
    EXPECT_EQ(opener.opened, std::vector{WindowId::Sermons});
}

TEST_F(PaletteTest, PlacesLeadTheListAndOneThatIsNotThereIsTold)
{
    start();
    palette([](frmPalette& palette) {
        palette.txTyped->setText(u"요 3:16-18, 20; 시 3편"_s);
        EXPECT_EQ(lines(palette).mid(0, 3),
                  (QStringList{u"요한복음 3:16-18"_s, u"요한복음 3:20"_s, u"시편 3편"_s}));
        QTest::keyClick(palette.txTyped, Qt::Key_Down);
        QTest::keyClick(palette.txTyped, Qt::Key_Down);
        QTest::keyClick(palette.txTyped, Qt::Key_Return);
    });
    EXPECT_EQ(place(), u"시3:1"_s);
    services.messages.expect(u"절 입력 오류"_s,
                             u"입력하신 절이 실제 절 수보다 큽니다. 마지막 절을 선택합니다."_s, 48);
    palette([](frmPalette& palette) {
        palette.txTyped->setText(u"Psalm 3:99"_s);
        QTest::keyClick(palette.txTyped, Qt::Key_Return);
    });
    EXPECT_EQ(place(), u"시3:8"_s);
    palette([](frmPalette& palette) {
        palette.txTyped->setText(u"창 51:1"_s);
        EXPECT_EQ(lines(palette), QStringList{u"검색 창에서 '창 51:1' 찾기"_s});
        palette.reject();
    });
    EXPECT_EQ(place(), u"시3:8"_s);
}

TEST_F(PaletteTest, VersesAppearUnderTheWordsAlsoThoseThatAreBeingComposed)
{
    start();
    palette([](frmPalette& palette) {
        palette.txTyped->setText(u"함께 읽은"_s);
        ASSERT_EQ(lines(palette).size(), 2);
        EXPECT_EQ(lines(palette)[0], u"요3:16  온 마을이 함께 읽은 책"_s);
        EXPECT_TRUE(palette.lblState->text().startsWith(u"개역한글 1절."_s));
        palette.txTyped->clear();
        QInputMethodEvent composing(u"마을이"_s, {});
        QApplication::sendEvent(palette.txTyped, &composing);
        QApplication::processEvents();
        EXPECT_TRUE(lines(palette).contains(u"요3:16  온 마을이 함께 읽은 책"_s));
        QTest::mouseClick(
            palette.lstFound->viewport(), Qt::LeftButton, {},
            palette.lstFound->visualItemRect(palette.lstFound->topLevelItem(0)).center());
    });
    EXPECT_EQ(place(), u"요3:16"_s);
}

TEST_F(PaletteTest, AnotherKeySearchesInTheSearchWindow)
{
    start();
    palette([](frmPalette& palette) {
        palette.txTyped->setText(u"시편"_s); // each verse names its book
        EXPECT_TRUE(palette.lblState->text().contains(u"가운데 처음 50절"_s));
        palette.txTyped->setText(u" 등불 "_s);
        QTest::keyClick(palette.txTyped, Qt::Key_Return, Qt::ControlModifier);
    });
    EXPECT_EQ(opener.searches, QStringList{u"101 등불"_s});
    // Esc leaves everything as it is, and without words there is nothing to search.
    palette([](frmPalette& palette) {
        QTest::keyClick(palette.txTyped, Qt::Key_Return, Qt::ControlModifier);
        EXPECT_TRUE(palette.isVisible());
        QTest::keyClick(palette.txTyped, Qt::Key_Escape);
        EXPECT_FALSE(palette.isVisible());
    });
    EXPECT_EQ(opener.searches.size(), 1);
}

TEST_F(PaletteTest, AnotherBaseVersionIsSearchedAtOnce)
{
    start();
    palette([](frmPalette& palette) {
        palette.txTyped->setText(u"lamp"_s);
        EXPECT_EQ(lines(palette).size(), 1);
        palette.reject();
    });
    combo(u"ID_cb기본버전").setListIndex(combo(u"ID_cb기본버전").findItemData(201));
    palette([](frmPalette& palette) {
        palette.txTyped->setText(u"book that"_s);
        EXPECT_EQ(lines(palette).value(0), u"요3:16  The book that all the town has read"_s);
        palette.reject();
    });
}

} // namespace
} // namespace lumen
