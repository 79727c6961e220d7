// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/reader_fixture.h"
#include "reader/reader_tools.h"
#include "support/module_files.h"

#include <QDir>
#include <QFileInfo>
#include <QTextBlock>

namespace lumen {
namespace {

bool holds(const QImage& image, const QColor& color)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == color)
                return true;
    return false;
}

using namespace Qt::StringLiterals;

/// What the start brings up, and what the end leaves for the next one.
class ReaderStartTest : public ReaderTest
{
protected:
    /// The format of the first place where a text stands in the reader's text.
    QTextCharFormat formatOf(const QString& text) const
    {
        QTextCursor cursor = reader->txCont->document()->find(text);
        EXPECT_FALSE(cursor.isNull()) << text.toStdString();
        return cursor.charFormat();
    }
    QColor colorOf(const QString& text) const { return formatOf(text).foreground().color(); }
    QString fontOf(const QString& text) const
    {
        return formatOf(text).fontFamilies().toStringList().join(u',');
    }
    QByteArray fileBytes(const QString& nativePath) const
    {
        QFile file(nativePath);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not read");
    }
    QByteArray storedBookmarks() const { return fileBytes(services.folders.data(u"bmk.bmf"_s)); }
};

TEST_F(ReaderStartTest, TheFirstChapterComesUpBehindTheSplash)
{
    start();
    EXPECT_EQ(splash.steps, (std::vector<int>{20, 25, 40, 50, 60, 70, 80, 85, 90, 95, 100}));
    EXPECT_FALSE(splash.visible);
    EXPECT_TRUE(reader->txCont->isVisible());
    EXPECT_FALSE(reader->hflex본문->isVisible());
    const QString text = reader->txCont->Text();
    EXPECT_TRUE(text.startsWith(u"\t『지어낸 첫째 제목』\n\n1\t"_s + TinyData::text(101, 0, 1, 1)))
        << text.left(80).toStdString();
    EXPECT_TRUE(text.contains(u"\n5\t\n6\t"_s)) << "Null is an empty text";
    EXPECT_EQ(place(), u"창세기 1장 1절"_s);
}

TEST_F(ReaderStartTest, WithoutAnyVersionAMessageEndsTheStart)
{
    for (const QString& module : QDir(services.folders.data({})).entryList({u"*.dts"_s}))
        QFile::remove(services.folders.data(module));
    expectWarning(u"성경 데이터 모듈 없음"_s,
                  u"설치된 성경 및 사전 데이터 모듈이 없습니다.\r\nLumenscript을 종료합니다."_s);
    frm성서 empty(services.services, services.state, opener);
    EXPECT_FALSE(empty.Form_Load(splash));
    EXPECT_FALSE(empty.isVisible());
}

TEST_F(ReaderStartTest, EverythingIsThereAgainAtTheNextStart)
{
    start();
    reader->setGeometry(20, 30, 760, 540);
    quickMove(u"요 3:16"_s);
    pickVersion(u"ID_cb대역본1", 201);
    pickVersion(u"ID_cb대역본3", 306);
    ASSERT_TRUE(reader->atbar.tool(u"ID_소주제표시").checked());
    for (const QStringView tool : {u"ID_글자크기5", u"ID_줄간격2배", u"ID_테이블형식",
                                   u"ID_성서이동도구모음", u"ID_소주제표시"})
        click(tool);
    QTest::keyClick(reader->hflex본문, Qt::Key_7, Qt::AltModifier);
    QApplication::processEvents();
    Splitter& split = *reader->findChild<Splitter*>(u"RefBarSplit"_s);
    drag(*split.handle(1), {2, 50}, {-60, 0});
    const double ratio = split.ratio();
    ASSERT_LT(ratio, 0.55);
    ASSERT_GT(ratio, 0.34);

    startAsLeft();
    EXPECT_EQ(reader->geometry(), QRect(20, 30, 760, 540));
    EXPECT_EQ(place(), u"요한복음 3장 1절"_s);
    EXPECT_TRUE(reader->hflex본문->isVisible());
    EXPECT_EQ(reader->model.versionName(1), u"KJV"_s);
    EXPECT_EQ(reader->model.versionName(2), u"None"_s);
    EXPECT_EQ(reader->model.versionName(3), u"TR Stephanus"_s);
    EXPECT_TRUE(reader->atbar.tool(u"ID_글자크기5").checked());
    EXPECT_FALSE(reader->atbar.tool(u"ID_글자크기3").checked());
    EXPECT_TRUE(reader->atbar.tool(u"ID_줄간격2배").checked());
    EXPECT_FALSE(reader->atbar.barVisible(reader_bar::kMove1));
    EXPECT_FALSE(reader->atbar.tool(u"ID_소주제표시").checked());
    EXPECT_EQ(reader->panel->state(), PanelState::Expanded);
    EXPECT_EQ(reader->panel->shownCaption(), u"개인주석"_s);
    EXPECT_NEAR(reader->findChild<Splitter*>(u"RefBarSplit"_s)->ratio(), ratio, 0.01);
    EXPECT_EQ(reader->focusWidget(), reader->hflex본문) << "to read on by keys";
    click(u"ID_텍스트형식");
    EXPECT_EQ(reader->txCont->document()->firstBlock().blockFormat().lineHeight(), 200);
}

TEST_F(ReaderStartTest, StoredValuesOutsideTheirLimitsFallBack)
{
    store(u"FontSize"_s, u"9"_s);
    store(u"ChapNum"_s, u"49"_s);
    store(u"BookNum"_s, u"42"_s);
    store(u"DefVerNum"_s, u"9999"_s);
    store(u"Interlinear1"_s, u"12"_s); // NIV, which is absent
    start();
    EXPECT_TRUE(reader->atbar.tool(u"ID_글자크기3").checked());
    EXPECT_EQ(place(), u"요한복음 1장 1절"_s);
    EXPECT_EQ(reader->model.versionName(0), u"개역한글"_s);
    EXPECT_EQ(reader->model.versionName(1), u"None"_s);
}

TEST_F(ReaderStartTest, StoredColoursAndFontsAreOnShow)
{
    writeVersion(
        services.folders.data(u"901.dts"_s), u"나의 역본"_s,
        {{0, 1, 1, u"지어낸 나의 글"_s, {}, {}}, {0, 1, 2, u"지어낸 나의 둘째 글"_s, {}, {}}});
    store(u"BackColor"_s, QString::number(RGB(250, 240, 230)));
    store(u"DefVerColor"_s, QString::number(RGB(1, 2, 3)));
    store(u"Ver1Color"_s, QString::number(RGB(90, 0, 0)));
    store(u"Ver2Color"_s, QString::number(RGB(0, 90, 0)));
    store(u"AltColor"_s, QString::number(RGB(200, 210, 220)));
    store(u"FontSize"_s, u"5"_s); // strokes of a pixel and more
    store(u"MainFont"_s, u"바탕체"_s);
    store(u"UserFont1"_s, u"돋움"_s);
    start();
    pickVersion(u"ID_cb대역본1", 201);
    pickVersion(u"ID_cb대역본2", 901);
    const QString base = TinyData::text(101, 0, 1, 1);
    const double points = formatOf(base).fontPointSize();
    EXPECT_EQ(colorOf(base), QColor(1, 2, 3));
    EXPECT_EQ(colorOf(TinyData::text(201, 0, 1, 1)), QColor(90, 0, 0));
    EXPECT_EQ(colorOf(u"지어낸 나의 글"_s), QColor(0, 90, 0));
    EXPECT_EQ(fontOf(base), u"바탕체"_s);
    EXPECT_EQ(fontOf(u"지어낸 나의 글"_s), u"돋움"_s);
    for (const QWidget* view :
         {static_cast<QWidget*>(reader->txCont), static_cast<QWidget*>(reader->hflex본문)})
        EXPECT_EQ(view->palette().color(QPalette::Base), QColor(250, 240, 230));
    click(u"ID_테이블형식");
    const QAbstractItemModel& cells = *reader->hflex본문->model();
    const auto font = [&cells] { return cells.index(1, 2).data(Qt::FontRole).value<QFont>(); };
    EXPECT_EQ(font().families(), QStringList{u"바탕체"_s});
    EXPECT_EQ(font().pointSizeF(), points);
    const QImage shown = reader->hflex본문->viewport()->grab().toImage();
    const QColor words[] = {QColor(1, 2, 3), QColor(90, 0, 0), QColor(0, 90, 0)};
    for (int col = 0; col < 3; ++col) {
        // The first verse is selected, which has a colour of its own.
        const QRect second = reader->hflex본문->visualRect(cells.index(2, col + 2));
        EXPECT_TRUE(holds(shown.copy(second), words[col])) << col;
    }
    EXPECT_TRUE(holds(shown, QColor(200, 210, 220))) << "every other row";

    store(u"DefVerColor"_s, QString::number(RGB(9, 8, 7)));
    store(u"MainFont"_s, u"굴림체"_s);
    store(u"UserFont1"_s, u"궁서"_s);
    store(u"CpCrLf"_s, u"1"_s);
    reader->model.applySettings(); // the preferences have been applied
    EXPECT_EQ(font().families(), QStringList{u"굴림체"_s});
    click(u"ID_텍스트형식");
    EXPECT_EQ(colorOf(base), QColor(9, 8, 7));
    EXPECT_EQ(fontOf(base), u"굴림체"_s);
    EXPECT_EQ(fontOf(u"지어낸 나의 글"_s), u"궁서"_s);
    EXPECT_TRUE(copied().endsWith(u"\r\n(개역한글/KJV/나의 역본 창1:1)"_s))
        << copied().toStdString();
}

TEST_F(ReaderStartTest, ALanguageBarGetsABlankLineAboveTheText)
{
    services.processes.processes = {u"bash"_s, u"CTFMON.EXE"_s};
    start();
    const QStringList lines = reader->txCont->Text().split(u'\n');
    EXPECT_TRUE(lines[0].trimmed().isEmpty());
    EXPECT_TRUE(lines[1].startsWith(u"\t『"_s)) << lines[1].toStdString();
}

TEST_F(ReaderStartTest, TheEndCompactsTheNotesAndLeavesTwoGenerationsOfBackups)
{
    {
        const auto notes = services.jet.OpenDatabase(u"C:\\lumenscript\\Data\\myc.mdb"_s);
        const auto records = notes->OpenRecordset(u"select * from myc"_s);
        records->AddNew();
        records->Fields(u"note").setValue(QString(400'000, u'x'));
        records->Update();
        records->Close();
        notes->Execute(u"delete * from myc"_s);
    }
    services.jet.commitAll();
    const QFileInfo file(services.folders.data(u"myc.mdb"_s));
    const qint64 before = file.size();
    ASSERT_GT(before, 400'000);
    start();
    QTest::keyClick(reader->txCont, Qt::Key_7, Qt::AltModifier); // opens the notes
    close();
    EXPECT_LT(QFileInfo(file.filePath()).size(), before - 300'000);

    const QString backup = services.folders.root() + u"/OrvaneBackup/"_s;
    EXPECT_TRUE(QFile::exists(backup + u"myc.mdb"_s));
    EXPECT_FALSE(QFile::exists(backup + u"mycbak.mdb"_s));
    start();
    quickMove(u"창 2:2"_s);
    addBookmark();
    close();
    EXPECT_TRUE(QFile::exists(backup + u"mycbak.mdb"_s));
    EXPECT_EQ(fileBytes(backup + u"bmk.bmf"_s), QByteArray("\xc3\xa2"
                                                           "2:2\r\n"));
}

TEST_F(ReaderStartTest, BookmarksAreStoredAtEachChangeElseAtTheEnd)
{
    start();
    addBookmark();
    EXPECT_EQ(storedBookmarks(), QByteArray("\xc3\xa2"
                                            "1:1\r\n"));
    const QString path = services.folders.data(u"bmk.bmf"_s);
    ASSERT_TRUE(QFile::remove(path) && QDir().mkdir(path)); // a folder in its place
    expectWarning(u"책갈피 저장 실패"_s,
                  u"책갈피를 저장할 수 없습니다. 저장할 디스크를 확인하시기 바랍니다."_s);
    for (const QString& verse : {u"창 1:2"_s, u"창 1:3"_s}) {
        quickMove(verse);
        addBookmark(); // told once
    }
    ASSERT_TRUE(QDir().rmdir(path));
    start();
    EXPECT_EQ(reader->bookmarks->references(), (QStringList{u"창1:3"_s, u"창1:2"_s, u"창1:1"_s}));
    EXPECT_EQ(reader->bookmarks->lst책갈피->List(0), u"창1:3"_s);
}

} // namespace
} // namespace lumen
