// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/version_font.h"
#include "platform/registry/registry_store.h"
#include "text/basic_text.h"

#include <QString>
#include <QStringView>

#include <array>
#include <limits>
#include <span>
#include <variant>

namespace lumen {

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
    QString MainFont = QStringLiteral("굴림");
    ReaderColors colors = kDefaultColors;
    int BookNum = 0;
    int ChapNum = 0; ///< index of the chapter, 0 is chapter 1
    int DefVerNum = 0;
    std::array<int, 3> Interlinear{};
    int TabNum = 1;
    int LineSpacing = 100; ///< percent
    QString TableColumns;  ///< as FlexGrid::StretchShares() gives it, "" while nothing was dragged
    bool BookToolbar = true;
    QString Path;     ///< the program's directory; written only
    QString HomePage; ///< the user's own address for the tool; "" for the built-in one, read only
    CopyOptions copy;
};

/// What the search window keeps besides its place. Sizes are twips; 0 means that none is kept.
struct SearchSettings
{
    int ResultWidth = 0;   ///< the list of verses found
    int VerseHeight = 0;   ///< the verse in Korean
    int ParsingHeight = 0; ///< the grid of words
    int StrongWidth = 0;   ///< the dictionary text
    bool MarkHits = true;  ///< found words stand out in the results
};

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

/// What the preview keeps besides its place.
struct PreviewSettings
{
    int PaperSize = -1;        ///< place in the list of papers; -1: the printer's own
    double UserPaperWidth = 0; ///< centimetres; 0: none
    double UserPaperHeight = 0;
};

/// How mail leaves; the password is never among the settings.
struct MailSettings
{
    QString SMTP; ///< "host", "host:port" or a URL
    QString myAddress;
    int Port = 0;       ///< 0: as the server's name or the encryption says
    int Encryption = 0; ///< 0: as the server offers, 1 STARTTLS, 2 TLS
    QString UserName;   ///< "" for a server that asks for none
};

// One row a value

/// Where a value lives among those that a window works with.
using SettingPlace = std::variant<int*, bool*, double*, QString*, RgbLong*, ViewMode*, PanelState*>;

/// What becomes of a number outside the limits.
enum class Beyond { Default, Limit };

/// Who writes a value: the window at its end, the preferences, nobody.
enum class Writer { Window, Preferences, Nobody };

struct SettingRule
{
    double smallest = std::numeric_limits<int>::min();
    double largest = std::numeric_limits<int>::max();
    Beyond beyond = Beyond::Default;
    bool onlyOneIsOn = false;  ///< of a switch: any other number is off
    bool absentAsZero = false; ///< 0 leaves what is stored
    bool isNumber = false;     ///< of a text: a number within the limits
};

/// One value of the settings. Its default is what a fresh Group holds.
template <typename Group>
struct SettingRow
{
    QStringView name; ///< "%1" stands for 1 to `count`
    SettingPlace (*place)(Group&, std::size_t index);
    SettingRule rule = {};
    Writer writer = Writer::Window;
    std::size_t count = 1;
};

/// The place of a plain member: settingAt<&Group::member>.
template <auto Member, typename Group>
SettingPlace settingAt(Group& values, std::size_t)
{
    return &(values.*Member);
}

/// All values that stand together under one key.
template <typename Group>
struct SettingTable
{
    QStringView key;
    std::span<const SettingRow<Group>> rows;
};

/// The tables. A setting costs a member of its group and a row.
SettingTable<ReaderSettings> readerTable();
SettingTable<FontSettings> userFontTable();
SettingTable<SearchSettings> searchTable();
SettingTable<ExtractSettings> extractTable();
SettingTable<PreviewSettings> previewTable();
SettingTable<MailSettings> mailTable();

/// The name under which the value of an index, from 0, is stored.
QString settingName(QStringView name, std::size_t index);
/// The text of a value as it is stored.
QString settingText(const SettingPlace& place);
/// Takes a stored text; one that is empty or not allowed leaves what is there.
void takeSetting(const QString& text, const SettingRule& rule, const SettingPlace& place);
/// Writes under the current key.
void writeSetting(RegistryStore& registry, const QString& name, const SettingRule& rule,
                  const SettingPlace& place);

/// Reads a table over the defaults in `values`; leaves its key the current one.
template <typename Group>
Group readSettings(RegistryStore& registry, const SettingTable<Group>& table, Group values = {})
{
    registry.OpenKey(settingsPath(table.key));
    for (const SettingRow<Group>& row : table.rows)
        for (std::size_t i = 0; i < row.count; ++i)
            takeSetting(registry.GetValue(settingName(row.name, i), ValueKind::String), row.rule,
                        row.place(values, i));
    return values;
}

/// Writes the rows of one writer; leaves the table's key the current one.
template <typename Group>
void saveSettings(RegistryStore& registry, const SettingTable<Group>& table, Group values,
                  Writer writer = Writer::Window)
{
    registry.OpenKey(settingsPath(table.key));
    for (const SettingRow<Group>& row : table.rows)
        for (std::size_t i = 0; i < row.count && row.writer == writer; ++i)
            writeSetting(registry, settingName(row.name, i), row.rule, row.place(values, i));
}

/// The reader's settings; `tabCount` is the number of tabs of the panel.
ReaderSettings readReaderSettings(RegistryStore& registry, int tabCount);
ExtractSettings readExtractSettings(RegistryStore& registry);
/// The copy options as they stand at the time of a copy.
CopyOptions readCopyOptions(RegistryStore& registry);
/// Fonts and sizes of the user slots.
std::array<UserFont, kUserVersionCount> GetUserFontSize(RegistryStore& registry);

} // namespace lumen
