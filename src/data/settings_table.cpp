// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/settings_table.h"

#include "canon/canon_table.h"
#include "platform/registry/registry_store.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kMinFontSize = 1;
constexpr int kMaxFontSize = 5;
constexpr double kMinRefBarRatio = 0.336;
constexpr double kMaxRefBarRatio = 0.59;
constexpr int kMinLineSpacing = 100;
constexpr int kMaxLineSpacing = 400;   // a chapter of that is twenty screens already
constexpr double kMaxUserPoints = 200; // above, no line of a verse fits into a window
constexpr int kDefaultTab = 1;
constexpr RgbLong kLargestColor = 0xFFFFFF;

QString readText(const RegistryStore& registry, const QString& name)
{
    return registry.GetValue(name, ValueKind::String);
}

void openBible(RegistryStore& registry)
{
    registry.OpenKey(settingsPath(settings_key::kBible));
}

double limitedRatio(const QString& text)
{
    if (text.isEmpty())
        return kMaxRefBarRatio;
    return qBound(kMinRefBarRatio, Val(text), kMaxRefBarRatio);
}

int withinOr(int value, int first, int last, int fallback)
{
    return value < first || value > last ? fallback : value;
}

RgbLong readColor(const RegistryStore& registry, const QString& name, RgbLong fallback)
{
    const QString text = readText(registry, name);
    const double value = Val(text);
    if (text.isEmpty() || value < 0 || value > kLargestColor)
        return fallback;
    return static_cast<RgbLong>(value);
}

ReaderColors readColors(const RegistryStore& registry)
{
    ReaderColors colors = kDefaultColors;
    colors.DefVerColor = readColor(registry, u"DefVerColor"_s, kDefaultColors.DefVerColor);
    for (std::size_t i = 0; i < colors.verColors.size(); ++i)
        colors.verColors[i] =
            readColor(registry, u"Ver%1Color"_s.arg(i + 1), kDefaultColors.verColors[i]);
    colors.AltColor = readColor(registry, u"AltColor"_s, kDefaultColors.AltColor);
    colors.BackColor = readColor(registry, u"BackColor"_s, kDefaultColors.BackColor);
    return colors;
}

void writeColor(RegistryStore& registry, const QString& name, RgbLong color)
{
    registry.SetValue(name, QString::number(color), ValueKind::Long);
}

CopyOptions copyOptionsHere(const RegistryStore& registry)
{
    const CopyOptions standard;
    CopyOptions options;
    options.addIndex = readSwitch(registry, u"CpAddIndex"_s, standard.addIndex);
    options.addVersion = readSwitch(registry, u"CpAddVersion"_s, standard.addVersion);
    options.fullName = readSwitch(registry, u"CpFullName"_s, standard.fullName);
    options.formalSep = readSwitch(registry, u"CpFormalSep"_s, standard.formalSep);
    options.parenthesis = readSwitch(registry, u"CpParenthesis"_s, standard.parenthesis);
    options.crLf = readNumber(registry, u"CpCrLf"_s, 0) == 1;
    return options;
}

QString interlinearName(std::size_t slot)
{
    return u"Interlinear"_s + QString::number(slot + 1);
}

} // namespace

QString settingsPath(QStringView subkey)
{
    return QString::fromUtf16(kRegistryRoot) + u'\\' + subkey.toString();
}

int readNumber(const RegistryStore& registry, const QString& name, int fallback)
{
    const QString text = readText(registry, name);
    return text.isEmpty() ? fallback : ValInt(text);
}

bool readSwitch(const RegistryStore& registry, const QString& name, bool fallback)
{
    return readNumber(registry, name, fallback ? 1 : 0) != 0;
}

void writeNumber(RegistryStore& registry, const QString& name, int value)
{
    registry.SetValue(name, QString::number(value), ValueKind::Long);
}

void writeSwitch(RegistryStore& registry, const QString& name, bool value)
{
    registry.SetValue(name, value ? u"1"_s : u"0"_s, ValueKind::Integer);
}

ReaderSettings readReaderSettings(RegistryStore& registry, int tabCount)
{
    openBible(registry);
    ReaderSettings settings;
    settings.FontSize = withinOr(readNumber(registry, u"FontSize"_s, settings.FontSize),
                                 kMinFontSize, kMaxFontSize, settings.FontSize);
    if (readNumber(registry, u"ViewMode"_s, 1) == 0)
        settings.ViewMode = ViewMode::Table;
    settings.RefBarRatio = limitedRatio(readText(registry, u"RefBarRatio"_s));
    if (readNumber(registry, u"RefBarMode"_s, 0) == 1)
        settings.RefBarMode = PanelState::Expanded;
    settings.ShowMiniTitle = readNumber(registry, u"ShowMiniTitle"_s, 1) == 1;
    settings.MainFont = readText(registry, u"MainFont"_s);
    if (settings.MainFont.isEmpty())
        settings.MainFont = u"굴림"_s;
    settings.colors = readColors(registry);
    settings.BookNum = withinOr(readNumber(registry, u"BookNum"_s, 0), 0, kBookCount - 1, 0);
    settings.ChapNum =
        withinOr(readNumber(registry, u"ChapNum"_s, 0), 0, chapterCount(settings.BookNum) - 1, 0);
    settings.DefVerNum = readNumber(registry, u"DefVerNum"_s, 0);
    for (std::size_t slot = 0; slot < settings.Interlinear.size(); ++slot)
        settings.Interlinear[slot] = readNumber(registry, interlinearName(slot), 0);
    settings.TabNum =
        withinOr(readNumber(registry, u"TabNum"_s, kDefaultTab), 0, tabCount - 1, kDefaultTab);
    settings.LineSpacing = withinOr(readNumber(registry, u"LineSpacing"_s, kMinLineSpacing),
                                    kMinLineSpacing, kMaxLineSpacing, kMinLineSpacing);
    settings.BookToolbar = readSwitch(registry, u"BookToolbar"_s, true);
    settings.copy = copyOptionsHere(registry);
    return settings;
}

void saveReaderSettings(RegistryStore& registry, const ReaderSettings& settings,
                        const QString& appPath)
{
    openBible(registry);
    writeNumber(registry, u"FontSize"_s, settings.FontSize);
    writeSwitch(registry, u"ViewMode"_s, settings.ViewMode == ViewMode::Text);
    registry.SetValue(u"RefBarRatio"_s, trimmedNumber(settings.RefBarRatio), ValueKind::Double);
    writeSwitch(registry, u"RefBarMode"_s, settings.RefBarMode == PanelState::Expanded);
    writeSwitch(registry, u"ShowMiniTitle"_s, settings.ShowMiniTitle);
    writeNumber(registry, u"BookNum"_s, settings.BookNum);
    writeNumber(registry, u"ChapNum"_s, settings.ChapNum);
    writeNumber(registry, u"DefVerNum"_s, settings.DefVerNum);
    for (std::size_t slot = 0; slot < settings.Interlinear.size(); ++slot)
        writeNumber(registry, interlinearName(slot), settings.Interlinear[slot]);
    writeNumber(registry, u"TabNum"_s, settings.TabNum);
    writeNumber(registry, u"LineSpacing"_s, settings.LineSpacing);
    writeSwitch(registry, u"BookToolbar"_s, settings.BookToolbar);
    registry.SetValue(u"Path"_s, appPath, ValueKind::String);
}

void savePreferences(RegistryStore& registry, const QString& mainFont, const ReaderColors& colors,
                     const CopyOptions& options)
{
    openBible(registry);
    registry.SetValue(u"MainFont"_s, mainFont, ValueKind::String);
    writeColor(registry, u"DefVerColor"_s, colors.DefVerColor);
    for (std::size_t i = 0; i < colors.verColors.size(); ++i)
        writeColor(registry, u"Ver%1Color"_s.arg(i + 1), colors.verColors[i]);
    writeColor(registry, u"AltColor"_s, colors.AltColor);
    writeColor(registry, u"BackColor"_s, colors.BackColor);
    writeSwitch(registry, u"CpAddIndex"_s, options.addIndex);
    writeSwitch(registry, u"CpAddVersion"_s, options.addVersion);
    writeSwitch(registry, u"CpFullName"_s, options.fullName);
    writeSwitch(registry, u"CpFormalSep"_s, options.formalSep);
    writeSwitch(registry, u"CpParenthesis"_s, options.parenthesis);
    writeSwitch(registry, u"CpCrLf"_s, options.crLf);
}

CopyOptions readCopyOptions(RegistryStore& registry)
{
    openBible(registry);
    return copyOptionsHere(registry);
}

std::array<UserFont, kUserVersionCount> GetUserFontSize(RegistryStore& registry)
{
    openBible(registry);
    auto fonts = defaultFontSettings().userFonts;
    for (int slot = 1; slot <= kUserVersionCount; ++slot) {
        UserFont& font = fonts[static_cast<std::size_t>(slot - 1)];
        const QString family = readText(registry, u"UserFont"_s + QString::number(slot));
        if (!family.isEmpty())
            font.font = family;
        // A size that is no number would make the text vanish, a huge one would never be laid out.
        const QString size = readText(registry, u"UserSize"_s + QString::number(slot));
        if (Val(size) >= 1 && Val(size) <= kMaxUserPoints)
            font.size = size;
    }
    return fonts;
}

void saveUserFonts(RegistryStore& registry, const std::array<UserFont, kUserVersionCount>& fonts)
{
    openBible(registry);
    for (int slot = 1; slot <= kUserVersionCount; ++slot) {
        const UserFont& font = fonts[static_cast<std::size_t>(slot - 1)];
        registry.SetValue(u"UserFont"_s + QString::number(slot), font.font, ValueKind::String);
        registry.SetValue(u"UserSize"_s + QString::number(slot), font.size, ValueKind::String);
    }
}

ExtractSettings readExtractSettings(RegistryStore& registry)
{
    registry.OpenKey(settingsPath(settings_key::kExtract));
    const ExtractSettings standard;
    ExtractSettings settings;
    settings.Version = readNumber(registry, u"Version"_s, standard.Version);
    settings.BookNum = withinOr(readNumber(registry, u"BookNum"_s, 0), 0, kBookCount - 1, 0);
    settings.ChapNum =
        withinOr(readNumber(registry, u"ChapNum"_s, 0), 0, chapterCount(settings.BookNum) - 1, 0);
    settings.SVerse = readNumber(registry, u"SVerse"_s, standard.SVerse);
    settings.EVerse = readNumber(registry, u"EVerse"_s, standard.EVerse);
    settings.AtchVerNum = readSwitch(registry, u"AtchVerNum"_s, standard.AtchVerNum);
    settings.VerLf = readSwitch(registry, u"VerLf"_s, standard.VerLf);
    settings.ToClip = readSwitch(registry, u"ToClip"_s, standard.ToClip);
    settings.Tail = readSwitch(registry, u"Tail"_s, standard.Tail);
    settings.Folder = readText(registry, u"Folder"_s);
    return settings;
}

void saveExtractSettings(RegistryStore& registry, const ExtractSettings& settings)
{
    registry.OpenKey(settingsPath(settings_key::kExtract));
    writeNumber(registry, u"Version"_s, settings.Version);
    writeNumber(registry, u"BookNum"_s, settings.BookNum);
    writeNumber(registry, u"ChapNum"_s, settings.ChapNum);
    writeNumber(registry, u"SVerse"_s, settings.SVerse);
    writeNumber(registry, u"EVerse"_s, settings.EVerse);
    writeSwitch(registry, u"AtchVerNum"_s, settings.AtchVerNum);
    writeSwitch(registry, u"VerLf"_s, settings.VerLf);
    writeSwitch(registry, u"ToClip"_s, settings.ToClip);
    writeSwitch(registry, u"Tail"_s, settings.Tail);
    registry.SetValue(u"Folder"_s, settings.Folder, ValueKind::String);
}

} // namespace lumen
