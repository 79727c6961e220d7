// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/data_store.h"
#include "data/user_files.h"
#include "data/version_font.h"
#include "jet/engine.h"
#include "platform/files/app_fonts.h"
#include "platform/files/virtual_drives.h"
#include "text/field_scramble.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFont>
#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>

#include <set>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

/// The distinct characters of a version: its texts, the pieces before them and its headings.
std::set<char32_t> charactersOf(JetEngine& jet, const QString& file)
{
    const auto database =
        jet.OpenDatabase(file, false, true, QString::fromUtf16(connect_text::kCheckData));
    QString table;
    const TableDefs tables = database->TableDefs();
    for (int i = 0; i < tables.Count() && table.isEmpty(); ++i)
        if (!tables(i).Name.startsWith(u"MSys"_s))
            table = tables(i).Name;
    const auto rows = database->OpenRecordset(u"select * from [%1]"_s.arg(table));
    std::set<char32_t> characters;
    for (; !rows->Eof(); rows->MoveNext()) {
        const QString shown = DES::UnscrambleField(Text(rows->Fields(u"Cont"))) +
                              Text(rows->Fields(u"part")) + Text(rows->Fields(u"miniTitle"));
        for (const char32_t character : shown.toUcs4())
            characters.insert(character);
    }
    return characters;
}

/// True when no font of the chain behind the version's font has a glyph.
bool isMissing(char32_t character, const QFont& font)
{
    const QString text = QString::fromUcs4(&character, 1);
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    for (const QGlyphRun& run : layout.glyphRuns())
        if (run.glyphIndexes().contains(0))
            return true;
    return false;
}

TEST(ModuleGlyphs, EveryCharacterOfTheBuiltModulesCanBeDrawn)
{
    const QString modules = qEnvironmentVariable("LUMENSCRIPT_MODULES");
    if (modules.isEmpty())
        GTEST_SKIP() << "LUMENSCRIPT_MODULES names no folder of modules";
    VirtualDrives drives({modules, {}});
    JetEngine jet(drives, filePolicy, importOptions());
    QStringList fontFolders = programFontFolders(modules);
    fontFolders << QDir(modules).filePath(u"../fonts"_s);
    AppFonts fonts(drives, fontFolders);
    for (const QStringView file : {u"OrvaneHeb.TTF", u"OrvaneHebC.TTF", u"OrvaneGrk.TTF"})
        fonts.AddFontResource(u"\\Fonts\\"_s + file.toString());

    const FontSettings settings = defaultFontSettings();
    int checked = 0;
    for (int code = 101; code <= 915; ++code) {
        const QString file = QDir(modules).filePath(u"%1.dts"_s.arg(code));
        if (!QFile::exists(file))
            continue;
        SCOPED_TRACE(code);
        ++checked;
        QStringList missing;
        const QFont font(GetVersionFont(code, settings).font, 10);
        for (const char32_t character : charactersOf(jet, file))
            if (character > U' ' && isMissing(character, font))
                missing << u"U+%1"_s.arg(static_cast<uint>(character), 4, 16, QLatin1Char('0'));
        EXPECT_EQ(missing.join(u' ').toStdString(), "");
    }
    EXPECT_GE(checked, 4) << "the modules from Debian packages at least";
}

} // namespace
} // namespace lumen
