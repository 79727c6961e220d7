// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/settings.h"
#include "data/window_geometry.h"
#include "platform/registry/registry_store.h"

#include <gtest/gtest.h>

#include <QFile>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kTabs = 11;

class SettingsTest : public testing::Test
{
protected:
    void set(const QString& name, const QString& text, const QString& key = u"Bible"_s)
    {
        registry.OpenKey(u"HKEY_CURRENT_USER\\Software\\ORVANE\\Lumenscript 2.0\\"_s + key);
        registry.SetValue(name, text, ValueKind::String);
    }

    QString get(const QString& name, const QString& key = u"Bible"_s)
    {
        registry.OpenKey(u"HKEY_CURRENT_USER\\SOFTWARE\\ORVANE\\Lumenscript 2.0\\"_s + key);
        return registry.GetValue(name, ValueKind::String);
    }

    ReaderSettings read() { return readReaderSettings(registry, kTabs); }

    RegistryStore registry{QString()};
};

TEST_F(SettingsTest, ValuesOutsideTheirLimitsFallBack)
{
    const auto fontSize = [](const ReaderSettings& s) { return double(s.FontSize); };
    const auto ratio = [](const ReaderSettings& s) { return s.RefBarRatio; };
    const auto book = [](const ReaderSettings& s) { return double(s.BookNum); };
    const auto chapter = [](const ReaderSettings& s) { return double(s.ChapNum); };
    const auto tab = [](const ReaderSettings& s) { return double(s.TabNum); };
    const auto spacing = [](const ReaderSettings& s) { return double(s.LineSpacing); };
    const auto view = [](const ReaderSettings& s) {
        return s.ViewMode == ViewMode::Text ? 1. : 0.;
    };
    const auto bar = [](const ReaderSettings& s) {
        return s.RefBarMode == PanelState::Expanded ? 1. : 0.;
    };
    const auto titles = [](const ReaderSettings& s) { return s.ShowMiniTitle ? 1. : 0.; };
    const auto crLf = [](const ReaderSettings& s) { return s.copy.crLf ? 1. : 0.; };
    const auto tail = [](const ReaderSettings& s) { return s.copy.addIndex ? 1. : 0.; };
    const auto back = [](const ReaderSettings& s) { return double(s.colors.BackColor); };
    struct Row
    {
        QString name;
        QString stored;
        double (*value)(const ReaderSettings&);
        double expected;
    };
    const Row rows[] = {
        {u"FontSize"_s, u"5"_s, fontSize, 5},
        {u"FontSize"_s, u"9"_s, fontSize, 3},
        {u"FontSize"_s, u"0"_s, fontSize, 3},
        {u"FontSize"_s, u"abc"_s, fontSize, 3},
        {u"RefBarRatio"_s, u"0.2"_s, ratio, 0.336},
        {u"RefBarRatio"_s, u"0.9"_s, ratio, 0.59},
        {u"RefBarRatio"_s, u".4"_s, ratio, 0.4},
        {u"BookNum"_s, u"65"_s, book, 65},
        {u"BookNum"_s, u"66"_s, book, 0},
        {u"BookNum"_s, u"-1"_s, book, 0},
        {u"BookNum"_s, u"99999999999999"_s, book, 0},
        {u"ChapNum"_s, u"49"_s, chapter, 49},
        {u"ChapNum"_s, u"50"_s, chapter, 0},
        {u"TabNum"_s, u"0"_s, tab, 0},
        {u"TabNum"_s, u"10"_s, tab, 10},
        {u"TabNum"_s, u"11"_s, tab, 1},
        {u"LineSpacing"_s, u"150"_s, spacing, 150},
        {u"LineSpacing"_s, u"99"_s, spacing, 100},
        {u"LineSpacing"_s, u"1000000"_s, spacing, 100}, // would never be laid out
        {u"ViewMode"_s, u"0"_s, view, 0},
        {u"ViewMode"_s, u"1"_s, view, 1},
        {u"RefBarMode"_s, u"1"_s, bar, 1},
        {u"RefBarMode"_s, u"2"_s, bar, 0},
        {u"ShowMiniTitle"_s, u"0"_s, titles, 0},
        {u"CpCrLf"_s, u"1"_s, crLf, 1},
        {u"CpCrLf"_s, u"-1"_s, crLf, 0},
        {u"CpAddIndex"_s, u"0"_s, tail, 0},
        {u"CpAddIndex"_s, u"-1"_s, tail, 1},
        {u"BackColor"_s, u"255"_s, back, 255},
        {u"BackColor"_s, u"-2147483643"_s, back, 0xFFFFFF},
        {u"BackColor"_s, u"99999999999"_s, back, 0xFFFFFF},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE((row.name + u'=' + row.stored).toStdString());
        const QString before = get(row.name);
        set(row.name, row.stored);
        EXPECT_DOUBLE_EQ(row.value(read()), row.expected);
        set(row.name, before);
    }
}

TEST_F(SettingsTest, AChapterIndexIsCheckedAgainstItsOwnBook)
{
    set(u"BookNum"_s, u"30"_s); // one chapter
    set(u"ChapNum"_s, u"1"_s);
    EXPECT_EQ(read().ChapNum, 0);
    set(u"BookNum"_s, u"18"_s);
    set(u"ChapNum"_s, u"149"_s);
    EXPECT_EQ(read().ChapNum, 149);
}

TEST_F(SettingsTest, WhatTheReaderSavesItReadsBack)
{
    ReaderSettings chosen;
    chosen.MainFont = u"바탕체"_s;
    chosen.colors = {RGB(1, 2, 3), {RGB(4, 5, 6), 7, 8}, 9, RGB(255, 254, 253)};
    chosen.copy = {false, false, true, true, false, true};
    saveSettings(registry, readerTable(), chosen, Writer::Preferences);
    ReaderSettings settings = read();
    settings.FontSize = 5;
    settings.ViewMode = ViewMode::Table;
    settings.RefBarRatio = 0.4567;
    settings.RefBarMode = PanelState::Expanded;
    settings.ShowMiniTitle = false;
    settings.BookNum = 42;
    settings.ChapNum = 20;
    settings.DefVerNum = 8;
    settings.Interlinear = {1, 0, 40};
    settings.TabNum = 3;
    settings.LineSpacing = 200;
    settings.BookToolbar = false;
    settings.MainFont = u"of the preferences"_s;
    settings.HomePage = u"of the user"_s;
    settings.Path = u"C:\\lumenscript"_s;
    saveSettings(registry, readerTable(), settings);

    const ReaderSettings again = read();
    EXPECT_EQ(again.FontSize, 5);
    EXPECT_EQ(again.ViewMode, ViewMode::Table);
    EXPECT_DOUBLE_EQ(again.RefBarRatio, 0.4567);
    EXPECT_EQ(again.RefBarMode, PanelState::Expanded);
    EXPECT_FALSE(again.ShowMiniTitle);
    EXPECT_EQ(again.MainFont, u"바탕체"_s);
    EXPECT_EQ(again.colors,
              (ReaderColors{RGB(1, 2, 3), {RGB(4, 5, 6), 7, 8}, 9, RGB(255, 254, 253)}));
    EXPECT_EQ(again.BookNum, 42);
    EXPECT_EQ(again.ChapNum, 20);
    EXPECT_EQ(again.DefVerNum, 8);
    EXPECT_EQ(again.Interlinear, (std::array<int, 3>{1, 0, 40}));
    EXPECT_EQ(again.TabNum, 3);
    EXPECT_EQ(again.LineSpacing, 200);
    EXPECT_FALSE(again.BookToolbar);
    EXPECT_EQ(again.copy, (CopyOptions{false, false, true, true, false, true}));
    EXPECT_EQ(readCopyOptions(registry), again.copy);
    // The text forms that users' settings hold.
    EXPECT_EQ(get(u"RefBarRatio"_s), u".4567"_s);
    EXPECT_EQ(get(u"ViewMode"_s), u"0"_s);
    EXPECT_EQ(get(u"DefVerColor"_s), u"197121"_s);
    EXPECT_EQ(get(u"cpaddversion"_s), u"0"_s);
    EXPECT_EQ(get(u"Path"_s), u"C:\\lumenscript"_s);
    EXPECT_EQ(get(u"HomePage"_s), QString());
}

TEST_F(SettingsTest, ASizeThatIsNotKnownLeavesTheStoredOne)
{
    saveSettings(registry, searchTable(), {.ResultWidth = 3000, .MarkHits = false});
    saveSettings(registry, searchTable(), {.VerseHeight = 900, .MarkHits = false});
    set(u"ParsingHeight"_s, u"150001"_s, u"BibleSearch"_s);
    const SearchSettings again = readSettings(registry, searchTable());
    EXPECT_EQ(again.ResultWidth, 3000);
    EXPECT_EQ(again.VerseHeight, 900);
    EXPECT_EQ(again.ParsingHeight, 0);
    EXPECT_FALSE(again.MarkHits);
}

/// The rows of one key as docs/settings.md tells them: name, default.
template <typename Group>
void expectToldInTheDocs(const QString& docs, const SettingTable<Group>& table, Group standard)
{
    const qsizetype head = docs.indexOf(u"## Key `%1`"_s.arg(table.key));
    ASSERT_GE(head, 0) << table.key.toString().toStdString();
    const QString section = docs.mid(head, docs.indexOf(u"\n## "_s, head + 1) - head);
    for (const SettingRow<Group>& row : table.rows) {
        const QString name = u'`' + settingName(row.name, 0) + u'`';
        SCOPED_TRACE(name.toStdString());
        QStringList columns;
        for (const QString& line : section.split(u'\n'))
            if (line.startsWith(u"| `"_s) && line.section(u'|', 1, 1).contains(name))
                columns = line.split(u'|');
        ASSERT_GE(columns.size(), 4);
        const QString told = columns.at(3).trimmed();
        const QString value = settingText(row.place(standard, 0));
        const bool isKept = !value.isEmpty() && !row.rule.absentAsZero && value != u"-1"_s;
        EXPECT_TRUE(!isKept || told.startsWith(value) || told == u'0' + value)
            << told.toStdString();
    }
}

TEST_F(SettingsTest, TheDocumentationTellsEachValueWithItsDefault)
{
    QFile file(QStringLiteral(LUMEN_SETTINGS_DOC));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString docs = QString::fromUtf8(file.readAll());
    expectToldInTheDocs(docs, readerTable(), {});
    expectToldInTheDocs(docs, userFontTable(), defaultFontSettings());
    expectToldInTheDocs(docs, searchTable(), {});
    expectToldInTheDocs(docs, extractTable(), {});
    expectToldInTheDocs(docs, previewTable(), {});
    expectToldInTheDocs(docs, mailTable(), {});
}

TEST_F(SettingsTest, WindowsComeUpWhereTheyFitTheScreen)
{
    struct Row
    {
        const char* what;
        TwipsRect stored;
        TwipsRect expected;
    };
    // The main screen, and a smaller one at its right whose heads don't meet.
    const QList<TwipsRect> screens{{0, 0, 20000, 15000}, {20000, 2000, 15000, 12000}};
    constexpr TwipsSize kDesign{10000, 7000};
    const Row rows[] = {
        {"all inside", {100, 200, 9000, 7000}, {100, 200, 9000, 7000}},
        {"at the edges", {-60, 15000, 7000, 6100}, {-60, 15000, 7000, 6100}},
        {"left of the screen", {-61, 200, 9000, 7000}, {5500, 200, 9000, 7000}},
        {"on a monitor that is gone", {36000, 200, 9000, 7000}, {5500, 200, 9000, 7000}},
        {"on the second monitor", {25000, 3000, 9000, 7000}, {25000, 3000, 9000, 7000}},
        {"at its left edge", {19960, 2500, 9000, 7000}, {19960, 2500, 9000, 7000}},
        {"larger than it", {19980, 2000, 15001, 12001}, {19980, 2000, 12000, 8000}},
        {"above it", {25000, 200, 9000, 7000}, {5500, 200, 9000, 7000}},
        {"above and below", {100, 15001, 9000, 7000}, {100, 4000, 9000, 7000}},
        {"too small", {100, 200, 6999, 6099}, {100, 200, 12000, 8000}},
        {"larger than the screen", {100, 200, 20001, 15001}, {100, 200, 12000, 8000}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        saveGeometry(registry, geometry::kBible, row.stored);
        EXPECT_EQ(readGeometry(registry, geometry::kBible, screens, kDesign), row.expected);
    }
    EXPECT_EQ(get(u"Width"_s), u"20001"_s);

    // Nothing stored: centred in the fallback size, or the design size where there is none.
    EXPECT_EQ(readGeometry(registry, geometry::kBibleSearch, screens, kDesign),
              (TwipsRect{5700, 3600, 8600, 7800}));
    EXPECT_EQ(readGeometry(registry, geometry::kSManager, screens, kDesign),
              (TwipsRect{5000, 4000, 10000, 7000}));
    // Large pixels make a screen of few twips.
    EXPECT_EQ(readGeometry(registry, geometry::kQTSearch, {{0, 0, 8000, 5800}}, kDesign),
              (TwipsRect{0, 0, 8000, 5800}));
}

} // namespace
} // namespace lumen
