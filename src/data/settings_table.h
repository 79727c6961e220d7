// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/version_font.h"
#include "text/basic_text.h"

#include <QString>
#include <QStringView>

#include <array>

namespace lumen {

class RegistryStore;

/// The subkeys of the settings, one a window.
namespace settings_key {
inline constexpr QStringView kBible = u"Bible";
inline constexpr QStringView kExtract = u"Extract";
inline constexpr QStringView kBibleMap = u"BibleMap";
inline constexpr QStringView kBibleSearch = u"BibleSearch";
inline constexpr QStringView kSManager = u"SManager";
inline constexpr QStringView kSMSearch = u"SMSearch";
inline constexpr QStringView kQTManager = u"QTManager";
inline constexpr QStringView kQTSearch = u"QTSearch";
inline constexpr QStringView kPreview = u"Preview";
inline constexpr QStringView kExViewer = u"ExViewer";
inline constexpr QStringView kEMail = u"EMail";
inline constexpr QStringView kSendMail = u"SendMail";
} // namespace settings_key

/// The whole path of a subkey, hive and root spelled out.
QString settingsPath(QStringView subkey);

enum class ViewMode { Table, Text };
enum class PanelState { Collapsed, Expanded };

/// The colours that the user may set.
struct ReaderColors
{
    RgbLong DefVerColor;
    std::array<RgbLong, 3> verColors; ///< Ver1Color to Ver3Color
    RgbLong AltColor;
    RgbLong BackColor;

    friend bool operator==(const ReaderColors&, const ReaderColors&) = default;
};

/// The colours of a fresh program and of the reset button.
inline constexpr ReaderColors kDefaultColors{RGB(0, 0, 0),
                                             {RGB(136, 33, 28), RGB(0, 89, 53), RGB(47, 60, 106)},
                                             RGB(245, 245, 245),
                                             RGB(255, 255, 255)};

/// What a copied verse carries; the initialisers are the defaults.
struct CopyOptions
{
    bool addIndex = true;
    bool addVersion = true;
    bool fullName = false;
    bool formalSep = false;
    bool parenthesis = true;
    bool crLf = false;

    friend bool operator==(const CopyOptions&, const CopyOptions&) = default;
};

/// The `Bible` key but for geometry and user fonts. Indexes count from 0. The version indexes are
/// as stored: restoredVersionIndex() checks them against a filled combo.
struct ReaderSettings
{
    int FontSize = 3; ///< step 1 to 5
    lumen::ViewMode ViewMode = lumen::ViewMode::Text;
    double RefBarRatio = 0.59; ///< share of the text pane in the window's width
    PanelState RefBarMode = PanelState::Collapsed;
    bool ShowMiniTitle = true;
    QString MainFont;
    ReaderColors colors = kDefaultColors;
    int BookNum = 0;
    int ChapNum = 0; ///< index of the chapter, 0 is chapter 1
    int DefVerNum = 0;
    std::array<int, 3> Interlinear{};
    int TabNum = 1;
    int LineSpacing = 100; ///< percent
    bool BookToolbar = true;
    CopyOptions copy;
};

/// Reads the reader's settings with their defaults and limits; `tabCount` is the number of tabs of
/// the panel.
ReaderSettings readReaderSettings(RegistryStore& registry, int tabCount);
/// Writes what the reader saves at its end: all of the above but font, colours and copy options,
/// which only the preferences write, and the program's directory.
void saveReaderSettings(RegistryStore& registry, const ReaderSettings& settings,
                        const QString& appPath);
/// Writes what the preferences dialog saves: MainFont, colours and copy options.
void savePreferences(RegistryStore& registry, const QString& mainFont, const ReaderColors& colors,
                     const CopyOptions& options);

/// The copy options as they stand at the time of a copy.
CopyOptions readCopyOptions(RegistryStore& registry);

/// Reads fonts and sizes of the user slots with their defaults.
std::array<UserFont, kUserVersionCount> GetUserFontSize(RegistryStore& registry);
void saveUserFonts(RegistryStore& registry, const std::array<UserFont, kUserVersionCount>& fonts);

/// What the extraction dialog keeps; list indexes from 0, verses as indexes too.
struct ExtractSettings
{
    int Version = 0;
    int BookNum = 0;
    int ChapNum = 0;
    int SVerse = 0;
    int EVerse = -1; ///< -1: the last verse of the chapter
    bool AtchVerNum = false;
    bool VerLf = false;
    bool ToClip = true;
    bool Tail = false;
    QString Folder; ///< native, of the last file; "" before the first
};

ExtractSettings readExtractSettings(RegistryStore& registry);
void saveExtractSettings(RegistryStore& registry, const ExtractSettings& settings);

/// A value of the current key as a number: `fallback` when it is absent.
int readNumber(const RegistryStore& registry, const QString& name, int fallback);
/// A value of the current key as a switch, on for any number but 0: `fallback` when it is absent.
bool readSwitch(const RegistryStore& registry, const QString& name, bool fallback);
void writeNumber(RegistryStore& registry, const QString& name, int value);
void writeSwitch(RegistryStore& registry, const QString& name, bool value);

} // namespace lumen
