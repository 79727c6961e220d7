// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files/app_fonts.h"
#include "platform/files/virtual_drives.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFont>
#include <QFontDatabase>
#include <QGlyphRun>
#include <QRawFont>
#include <QTemporaryDir>
#include <QTextLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class AppFontsTest : public testing::Test
{
protected:
    // The families that draw a text set in a family, "?" for an empty box among them.
    static QStringList drawnBy(const QString& family, const QString& text)
    {
        QFont font;
        font.setFamily(family);
        QTextLayout layout(text, font);
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        QStringList families;
        const QList<QGlyphRun> runs = layout.glyphRuns();
        for (const QGlyphRun& run : runs) {
            families << run.rawFont().familyName().toLower(); // substitutes are named so
            if (run.glyphIndexes().contains(0))
                families << u"?"_s;
        }
        families.removeDuplicates();
        return families;
    }

    static bool isInstalled(const QString& family)
    {
        return QFontDatabase::families().contains(family);
    }

    QTemporaryDir folder;
    VirtualDrives drives{{folder.filePath(u"p"_s), {}}};
    AppFonts fonts{drives, {folder.filePath(u"fonts"_s)}};
};

TEST_F(AppFontsTest, KoreanNamesDrawHangulAndLatinFromTwoFonts)
{
    if (!isInstalled(u"NanumGothic"_s))
        GTEST_SKIP() << "the Korean fonts are not installed";
    for (const QString& family : {u"굴림"_s, u"굴림체"_s, u"돋움"_s, u"돋움체"_s, u"바탕체"_s}) {
        SCOPED_TRACE(family.toStdString());
        const QStringList hangul = drawnBy(family, u"태초에힣"_s);
        ASSERT_EQ(hangul.size(), 1) << hangul.join(u' ').toStdString();
        EXPECT_TRUE(hangul[0].startsWith(u"nanum")) << hangul[0].toStdString();
        // A Korean font would draw a won sign for the backslash.
        for (const QString& text : {u"C:\\data"_s, u"λόγος"_s, u"éß"_s}) {
            const QStringList latin = drawnBy(family, text);
            EXPECT_FALSE(latin.contains(hangul[0])) << text.toStdString();
            EXPECT_FALSE(latin.contains(u"?"_s)) << text.toStdString();
        }
    }
    EXPECT_NE(drawnBy(u"굴림"_s, u"가"_s), drawnBy(u"바탕체"_s, u"가"_s)) << "no serifs";
}

TEST_F(AppFontsTest, ModuleFontsDrawTheirLanguage)
{
    struct Row
    {
        QString family;
        QString text;
    };
    const Row rows[] = {{u"OrvaneFra"_s, u"Où êtes-vous, œuvre"_s},
                        {u"OrvaneGrm"_s, u"Größe Äpfel"_s},
                        {u"OrvaneIta"_s, u"più"_s},
                        {u"OrvaneSpa"_s, u"niño ¿qué?"_s},
                        {u"OrvaneSwe"_s, u"Åsa Öl"_s}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.family.toStdString());
        const QStringList families = drawnBy(row.family, row.text);
        ASSERT_EQ(families.size(), 1) << families.join(u' ').toStdString();
        EXPECT_TRUE(families[0].contains(u"serif")) << families[0].toStdString();
    }
    if (isInstalled(u"Noto Serif CJK SC"_s)) {
        EXPECT_EQ(drawnBy(u"MS Song"_s, u"起初神创造天地"_s), QStringList{u"noto serif cjk sc"_s});
    }
}

TEST_F(AppFontsTest, FontFilesAreAddedFromTheirPathOrTheFontFolders)
{
    const QString source = u"/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"_s;
    if (!QFile::exists(source))
        GTEST_SKIP() << "no font file to add";
    ASSERT_TRUE(QDir().mkpath(folder.filePath(u"fonts"_s)));
    ASSERT_TRUE(QFile::copy(source, folder.filePath(u"fonts/OrvaneHeb.ttf"_s)));
    EXPECT_EQ(fonts.AddFontResource(u"C:\\Windows\\Fonts\\OrvaneHeb.TTF"_s), 1);
    EXPECT_EQ(fonts.AddFontResource(source), 1);
    EXPECT_EQ(fonts.AddFontResource(u"C:\\Windows\\Fonts\\Mssong.TTF"_s), 0);

    QFile rubbish(folder.filePath(u"fonts/rubbish.ttf"_s));
    ASSERT_TRUE(rubbish.open(QIODevice::WriteOnly));
    rubbish.write("no font");
    rubbish.close();
    EXPECT_EQ(fonts.AddFontResource(u"rubbish.ttf"_s), 0);
}

} // namespace
} // namespace lumen
