// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/reader_fixture.h"
#include "support/module_files.h"

#include <QDir>
#include <QFileInfo>
#include <QTextBlock>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

class NextStartTest : public ReaderTest
{
protected:
    /// As the program does: in the place and size that the settings tell.
    void load()
    {
        close();
        services.state.installed = {};
        reader = std::make_unique<frm성서>(services.services, services.state, opener);
        ASSERT_TRUE(reader->Form_Load(splash));
        reader->show();
        QApplication::processEvents();
    }

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
};

TEST_F(NextStartTest, TheWindowComesUpAsItWasLeft)
{
    start();
    reader->setGeometry(20, 30, 760, 540);
    QTest::keyClick(reader->txCont, Qt::Key_7, Qt::AltModifier);
    const int tab = reader->panel->sst관주사전->Tab();
    ASSERT_TRUE(reader->atbar.tool(u"ID_소주제표시").checked());
    click(u"ID_소주제표시");
    QTest::mouseClick(reader->bookmarks->cmd책갈피추가, Qt::LeftButton);

    load();
    EXPECT_EQ(reader->geometry(), QRect(20, 30, 760, 540));
    EXPECT_EQ(reader->panel->state(), PanelState::Expanded);
    EXPECT_EQ(reader->panel->sst관주사전->Tab(), tab);
    EXPECT_FALSE(reader->atbar.tool(u"ID_소주제표시").checked());
    EXPECT_FALSE(reader->txCont->Text().contains(u"『"_s));
    EXPECT_EQ(reader->bookmarks->references(), QStringList{u"창1:1"_s});
    EXPECT_EQ(reader->bookmarks->lst책갈피->List(0), u"창1:1"_s);
    EXPECT_EQ(reader->focusWidget(), reader->txCont) << "to read on by keys";
}

TEST_F(NextStartTest, StoredColoursAndFontsAreOnShow)
{
    writeVersion(services.folders.data(u"901.dts"_s), u"나의 역본"_s,
                 {{0, 1, 1, u"지어낸 나의 글"_s, {}, {}}});
    store(u"BackColor"_s, QString::number(RGB(250, 240, 230)));
    store(u"DefVerColor"_s, QString::number(RGB(1, 2, 3)));
    store(u"Ver1Color"_s, QString::number(RGB(90, 0, 0)));
    store(u"Ver2Color"_s, QString::number(RGB(0, 90, 0)));
    store(u"MainFont"_s, u"바탕체"_s);
    store(u"UserFont1"_s, u"돋움"_s);
    start();
    pickVersion(u"ID_cb대역본1", 201);
    pickVersion(u"ID_cb대역본2", 901);
    const QString base = TinyData::text(101, 0, 1, 1);
    const QString english = TinyData::text(201, 0, 1, 1);
    EXPECT_EQ(colorOf(base), QColor(1, 2, 3));
    EXPECT_EQ(colorOf(english), QColor(90, 0, 0));
    EXPECT_EQ(colorOf(u"지어낸 나의 글"_s), QColor(0, 90, 0));
    EXPECT_EQ(fontOf(base), u"바탕체"_s);
    EXPECT_EQ(fontOf(u"지어낸 나의 글"_s), u"돋움"_s);
    for (const QWidget* view :
         {static_cast<QWidget*>(reader->txCont), static_cast<QWidget*>(reader->hflex본문)})
        EXPECT_EQ(view->palette().color(QPalette::Base), QColor(250, 240, 230));

    store(u"DefVerColor"_s, QString::number(RGB(9, 8, 7)));
    store(u"MainFont"_s, u"굴림체"_s);
    reader->applySettings(); // the preferences have been applied
    EXPECT_EQ(colorOf(base), QColor(9, 8, 7));
    EXPECT_EQ(fontOf(base), u"굴림체"_s);
}

TEST_F(NextStartTest, TheEndCompactsNotesThatWereOpen)
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
    QTest::keyClick(reader->txCont, Qt::Key_7, Qt::AltModifier);
    close();
    EXPECT_LT(QFileInfo(file.filePath()).size(), before - 300'000);
}

TEST_F(NextStartTest, ALanguageBarGetsABlankLineAboveTheText)
{
    services.processes.processes = {u"bash"_s, u"CTFMON.EXE"_s};
    start();
    const QStringList lines = reader->txCont->Text().split(u'\n');
    EXPECT_TRUE(lines[0].trimmed().isEmpty());
    EXPECT_TRUE(lines[1].startsWith(u"\t『"_s)) << lines[1].toStdString();
}

} // namespace
} // namespace lumen
