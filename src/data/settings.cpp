// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/settings.h"

#include "canon/canon_table.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr double kLargestColor = 0xFFFFFF;
constexpr double kLargestSize = 150'000; // twips: 10,000 pixels of 96 an inch

constexpr SettingRule kAny{};
constexpr SettingRule kBook{.smallest = 0, .largest = kBookCount - 1};
constexpr SettingRule kColor{.smallest = 0, .largest = kLargestColor};
constexpr SettingRule kPaneSize{.smallest = 0, .largest = kLargestSize, .absentAsZero = true};

template <auto Member>
SettingPlace copyOption(ReaderSettings& settings, std::size_t)
{
    return &(settings.copy.*Member);
}

template <auto Member>
SettingPlace colorOf(ReaderSettings& settings, std::size_t)
{
    return &(settings.colors.*Member);
}

using Reader = ReaderSettings;
constexpr std::array kReaderRows{
    SettingRow<Reader>{u"FontSize", settingAt<&Reader::FontSize>, {.smallest = 1, .largest = 5}},
    SettingRow<Reader>{u"ViewMode", settingAt<&Reader::ViewMode>},
    SettingRow<Reader>{u"RefBarRatio",
                       settingAt<&Reader::RefBarRatio>,
                       {.smallest = 0.336, .largest = 0.59, .beyond = Beyond::Limit}},
    SettingRow<Reader>{u"RefBarMode", settingAt<&Reader::RefBarMode>},
    SettingRow<Reader>{u"ShowMiniTitle", settingAt<&Reader::ShowMiniTitle>, {.onlyOneIsOn = true}},
    SettingRow<Reader>{u"BookNum", settingAt<&Reader::BookNum>, kBook},
    SettingRow<Reader>{u"ChapNum", settingAt<&Reader::ChapNum>},
    SettingRow<Reader>{u"DefVerNum", settingAt<&Reader::DefVerNum>},
    SettingRow<Reader>{
        u"Interlinear%1",
        [](Reader& reader, std::size_t slot) -> SettingPlace { return &reader.Interlinear[slot]; },
        kAny, Writer::Window, std::tuple_size_v<decltype(Reader::Interlinear)>},
    SettingRow<Reader>{u"TabNum", settingAt<&Reader::TabNum>},
    // A chapter of 400 is twenty screens already.
    SettingRow<Reader>{
        u"LineSpacing", settingAt<&Reader::LineSpacing>, {.smallest = 100, .largest = 400}},
    SettingRow<Reader>{u"TableColumns", settingAt<&Reader::TableColumns>},
    SettingRow<Reader>{u"BookToolbar", settingAt<&Reader::BookToolbar>},
    SettingRow<Reader>{u"Path", settingAt<&Reader::Path>},
    SettingRow<Reader>{u"HomePage", settingAt<&Reader::HomePage>, kAny, Writer::Nobody},

    SettingRow<Reader>{u"MainFont", settingAt<&Reader::MainFont>, kAny, Writer::Preferences},
    SettingRow<Reader>{u"DefVerColor", colorOf<&ReaderColors::DefVerColor>, kColor,
                       Writer::Preferences},
    SettingRow<Reader>{u"Ver%1Color",
                       [](Reader& reader, std::size_t slot) -> SettingPlace {
                           return &reader.colors.verColors[slot];
                       },
                       kColor, Writer::Preferences,
                       std::tuple_size_v<decltype(ReaderColors::verColors)>},
    SettingRow<Reader>{u"AltColor", colorOf<&ReaderColors::AltColor>, kColor, Writer::Preferences},
    SettingRow<Reader>{u"BackColor", colorOf<&ReaderColors::BackColor>, kColor,
                       Writer::Preferences},
    SettingRow<Reader>{u"CpAddIndex", copyOption<&CopyOptions::addIndex>, kAny,
                       Writer::Preferences},
    SettingRow<Reader>{u"CpAddVersion", copyOption<&CopyOptions::addVersion>, kAny,
                       Writer::Preferences},
    SettingRow<Reader>{u"CpFullName", copyOption<&CopyOptions::fullName>, kAny,
                       Writer::Preferences},
    SettingRow<Reader>{u"CpFormalSep", copyOption<&CopyOptions::formalSep>, kAny,
                       Writer::Preferences},
    SettingRow<Reader>{u"CpParenthesis", copyOption<&CopyOptions::parenthesis>, kAny,
                       Writer::Preferences},
    SettingRow<Reader>{
        u"CpCrLf", copyOption<&CopyOptions::crLf>, {.onlyOneIsOn = true}, Writer::Preferences},
};

constexpr std::array kUserFontRows{
    SettingRow<FontSettings>{u"UserFont%1",
                             [](FontSettings& fonts, std::size_t slot) -> SettingPlace {
                                 return &fonts.userFonts[slot].font;
                             },
                             kAny, Writer::Preferences, kUserVersionCount},
    // A size that is no number would make the text vanish, a huge one would never be laid out.
    SettingRow<FontSettings>{u"UserSize%1",
                             [](FontSettings& fonts, std::size_t slot) -> SettingPlace {
                                 return &fonts.userFonts[slot].size;
                             },
                             {.smallest = 1, .largest = 200, .isNumber = true},
                             Writer::Preferences,
                             kUserVersionCount},
};

constexpr std::array kSearchRows{
    SettingRow<SearchSettings>{u"ResultWidth", settingAt<&SearchSettings::ResultWidth>, kPaneSize},
    SettingRow<SearchSettings>{u"VerseHeight", settingAt<&SearchSettings::VerseHeight>, kPaneSize},
    SettingRow<SearchSettings>{u"ParsingHeight", settingAt<&SearchSettings::ParsingHeight>,
                               kPaneSize},
    SettingRow<SearchSettings>{u"StrongWidth", settingAt<&SearchSettings::StrongWidth>, kPaneSize},
    SettingRow<SearchSettings>{u"MarkHits", settingAt<&SearchSettings::MarkHits>},
};

constexpr std::array kExtractRows{
    SettingRow<ExtractSettings>{u"Version", settingAt<&ExtractSettings::Version>},
    SettingRow<ExtractSettings>{u"BookNum", settingAt<&ExtractSettings::BookNum>, kBook},
    SettingRow<ExtractSettings>{u"ChapNum", settingAt<&ExtractSettings::ChapNum>},
    SettingRow<ExtractSettings>{u"SVerse", settingAt<&ExtractSettings::SVerse>},
    SettingRow<ExtractSettings>{u"EVerse", settingAt<&ExtractSettings::EVerse>},
    SettingRow<ExtractSettings>{u"AtchVerNum", settingAt<&ExtractSettings::AtchVerNum>},
    SettingRow<ExtractSettings>{u"VerLf", settingAt<&ExtractSettings::VerLf>},
    SettingRow<ExtractSettings>{u"ToClip", settingAt<&ExtractSettings::ToClip>},
    SettingRow<ExtractSettings>{u"Tail", settingAt<&ExtractSettings::Tail>},
    SettingRow<ExtractSettings>{u"Folder", settingAt<&ExtractSettings::Folder>},
};

constexpr SettingRule kPaper{.smallest = 0, .largest = 1000, .absentAsZero = true}; // centimetres
constexpr std::array kPreviewRows{
    SettingRow<PreviewSettings>{u"PaperSize", settingAt<&PreviewSettings::PaperSize>},
    SettingRow<PreviewSettings>{u"UserPaperWidth", settingAt<&PreviewSettings::UserPaperWidth>,
                                kPaper},
    SettingRow<PreviewSettings>{u"UserPaperHeight", settingAt<&PreviewSettings::UserPaperHeight>,
                                kPaper},
};

constexpr SettingRule kPort{.smallest = 0, .largest = 65535};
constexpr SettingRule kEncryption{.smallest = 0, .largest = 2};
constexpr std::array kMailRows{
    SettingRow<MailSettings>{u"SMTP", settingAt<&MailSettings::SMTP>},
    SettingRow<MailSettings>{u"myAddress", settingAt<&MailSettings::myAddress>},
    SettingRow<MailSettings>{u"Port", settingAt<&MailSettings::Port>, kPort},
    SettingRow<MailSettings>{u"Encryption", settingAt<&MailSettings::Encryption>, kEncryption},
    SettingRow<MailSettings>{u"UserName", settingAt<&MailSettings::UserName>},
};

bool isWithin(double value, const SettingRule& rule)
{
    return value >= rule.smallest && value <= rule.largest;
}

/// Takes what its rule allows of a stored text.
class Taker
{
public:
    Taker(const QString& text, const SettingRule& rule) : m_text(text), m_rule(rule) {}

    void operator()(int* place) const { number(place, ValInt(m_text)); }
    void operator()(double* place) const { number(place, Val(m_text)); }
    void operator()(RgbLong* place) const { number(place, Val(m_text)); }
    void operator()(bool* place) const
    {
        *place = m_rule.onlyOneIsOn ? ValInt(m_text) == 1 : ValInt(m_text) != 0;
    }
    void operator()(QString* place) const
    {
        if (!m_rule.isNumber || isWithin(Val(m_text), m_rule))
            *place = m_text;
    }
    void operator()(ViewMode* place) const
    {
        *place = ValInt(m_text) == 0 ? ViewMode::Table : ViewMode::Text;
    }
    void operator()(PanelState* place) const
    {
        *place = ValInt(m_text) == 1 ? PanelState::Expanded : PanelState::Collapsed;
    }

private:
    template <typename Number>
    void number(Number* place, double value) const
    {
        if (isWithin(value, m_rule))
            *place = static_cast<Number>(value);
        else if (m_rule.beyond == Beyond::Limit)
            *place = static_cast<Number>(std::clamp(value, m_rule.smallest, m_rule.largest));
    }

    const QString& m_text;
    const SettingRule& m_rule;
};

struct Writing
{
    QString text;
    ValueKind kind = ValueKind::String;
};

Writing switchWriting(bool on)
{
    return {on ? u"1"_s : u"0"_s, ValueKind::Integer};
}

struct WritingOf
{
    Writing operator()(const int* place) const
    {
        return {QString::number(*place), ValueKind::Long};
    }
    Writing operator()(const RgbLong* place) const
    {
        return {QString::number(*place), ValueKind::Long};
    }
    Writing operator()(const double* place) const
    {
        return {trimmedNumber(*place), ValueKind::Double};
    }
    Writing operator()(const bool* place) const { return switchWriting(*place); }
    Writing operator()(const QString* place) const { return {*place, ValueKind::String}; }
    Writing operator()(const ViewMode* place) const
    {
        return switchWriting(*place == ViewMode::Text);
    }
    Writing operator()(const PanelState* place) const
    {
        return switchWriting(*place == PanelState::Expanded);
    }
};

int chapterWithin(int chapter, int book)
{
    return chapter < 0 || chapter >= chapterCount(book) ? 0 : chapter;
}

} // namespace

QString settingsPath(QStringView subkey)
{
    return QString::fromUtf16(kRegistryRoot) + u'\\' + subkey.toString();
}

SettingTable<ReaderSettings> readerTable()
{
    return {settings_key::kBible, kReaderRows};
}

SettingTable<FontSettings> userFontTable()
{
    return {settings_key::kBible, kUserFontRows};
}

SettingTable<SearchSettings> searchTable()
{
    return {settings_key::kBibleSearch, kSearchRows};
}

SettingTable<ExtractSettings> extractTable()
{
    return {settings_key::kExtract, kExtractRows};
}

SettingTable<PreviewSettings> previewTable()
{
    return {settings_key::kPreview, kPreviewRows};
}

SettingTable<MailSettings> mailTable()
{
    return {settings_key::kEMail, kMailRows};
}

QString settingName(QStringView name, std::size_t index)
{
    return name.toString().replace(u"%1"_s, QString::number(index + 1));
}

QString settingText(const SettingPlace& place)
{
    return std::visit(WritingOf(), place).text;
}

void takeSetting(const QString& text, const SettingRule& rule, const SettingPlace& place)
{
    if (!text.isEmpty())
        std::visit(Taker(text, rule), place);
}

void writeSetting(RegistryStore& registry, const QString& name, const SettingRule& rule,
                  const SettingPlace& place)
{
    const Writing writing = std::visit(WritingOf(), place);
    if (!rule.absentAsZero || Val(writing.text) > 0)
        registry.SetValue(name, writing.text, writing.kind);
}

ReaderSettings readReaderSettings(RegistryStore& registry, int tabCount)
{
    ReaderSettings settings = readSettings(registry, readerTable());
    settings.ChapNum = chapterWithin(settings.ChapNum, settings.BookNum);
    if (settings.TabNum < 0 || settings.TabNum >= tabCount)
        settings.TabNum = ReaderSettings().TabNum;
    return settings;
}

ExtractSettings readExtractSettings(RegistryStore& registry)
{
    ExtractSettings settings = readSettings(registry, extractTable());
    settings.ChapNum = chapterWithin(settings.ChapNum, settings.BookNum);
    return settings;
}

CopyOptions readCopyOptions(RegistryStore& registry)
{
    return readSettings(registry, readerTable()).copy;
}

std::array<UserFont, kUserVersionCount> GetUserFontSize(RegistryStore& registry)
{
    return readSettings(registry, userFontTable(), defaultFontSettings()).userFonts;
}

} // namespace lumen
