// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/version_catalogue.h"

#include "data/messages.h"
#include "text/rtf_tables.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr QStringView kAbsentSuffix = u"(없음)";
// All codes above are the user's own versions and don't come with the disc.
constexpr int kLastDiscCode = 900;

static_assert([] {
    for (std::size_t i = 0; i < kVersionCatalogue.size(); ++i)
        for (std::size_t k = 0; k < i; ++k)
            if (kVersionCatalogue[i].code == kVersionCatalogue[k].code)
                return false;
    return kVersionCatalogue.size() == 49;
}());

int userSlot(int code)
{
    return code - kFirstUserVersion + 1;
}

QString comboPrefix(int number)
{
    return number < 1 ? QString() : u"대역본"_s + QString::number(number) + u" - "_s;
}

QString toolId(int number, const QString& suffix)
{
    return u"ID_대역본"_s + QString::number(number) + u'-' + suffix;
}

// What a combo calls a version, without the prefix.
QString comboName(int code, bool present, const InstalledFlags& installed)
{
    if (present)
        return versionName(code, installed);
    if (isUserVersion(code))
        return u"사용자 역본"_s + QString::number(userSlot(code)) + kAbsentSuffix.toString();
    return versionName(code, installed) + kAbsentSuffix.toString();
}

QString menuCaption(int code, bool present, const InstalledFlags& installed)
{
    if (present || !isUserVersion(code))
        return versionName(code, installed);
    const int slot = userSlot(code);
    return u"사용자역본"_s + QString::number(slot) +
           (slot <= kKoreanUserFonts ? u" 한글용"_s : u" 영문용"_s);
}

// The codes that a combo offers, in their order.
QList<int> offeredCodes(const InstalledFlags& installed)
{
    QList<int> codes;
    for (const VersionRow& row : kVersionCatalogue)
        if (row.offeredWhenAbsent || installed.hasVersion(row.code))
            codes << row.code;
    for (int slot = 0; slot < kUserVersionCount; ++slot)
        codes << kFirstUserVersion + slot;
    return codes;
}

} // namespace

QString versionName(int code, const InstalledFlags& installed)
{
    if (isUserVersion(code))
        return installed.userTables[static_cast<std::size_t>(code - kFirstUserVersion)];
    for (const VersionRow& row : kVersionCatalogue)
        if (row.code == code)
            return row.name.toString();
    return {};
}

QList<VersionItem> SetClassicCombo(const InstalledFlags& installed, int number)
{
    const QString prefix = comboPrefix(number);
    QList<VersionItem> items;
    if (number >= 1)
        items << VersionItem{prefix + u"없음"_s, 0, true, 0};
    for (const int code : offeredCodes(installed)) {
        const bool present = installed.hasVersion(code);
        items << VersionItem{prefix + comboName(code, present, installed), code, present,
                             static_cast<int>(items.size())};
    }
    return items;
}

QList<VersionTool> SetupMenu(const InstalledFlags& installed, int number)
{
    QList<VersionTool> tools;
    if (number >= 1)
        tools << VersionTool{toolId(number, u"없음"_s), u"없음"_s, 0, true, true, 0};
    int itemNumber = number >= 1 ? 1 : 0;
    const auto add = [&](int code, bool offered, bool visible) {
        const bool present = installed.hasVersion(code);
        tools << VersionTool{toolId(number, QString::number(code)),
                             menuCaption(code, present, installed),
                             code,
                             present,
                             visible,
                             offered ? itemNumber++ : -1};
    };
    for (const VersionRow& row : kVersionCatalogue) {
        const bool offered = row.offeredWhenAbsent || installed.hasVersion(row.code);
        add(row.code, offered, offered);
    }
    for (int slot = 0; slot < kUserVersionCount; ++slot)
        add(kFirstUserVersion + slot, true, installed.hasVersion(kFirstUserVersion + slot));
    return tools;
}

int indexOfVersion(const QList<VersionItem>& items, int code)
{
    const auto found = std::find_if(items.cbegin(), items.cend(),
                                    [code](const VersionItem& item) { return item.code == code; });
    return found == items.cend() ? -1 : found->index;
}

int restoredVersionIndex(const QList<VersionItem>& items, int saved)
{
    if (saved < 0 || saved >= items.size() || !items[saved].present)
        return 0;
    return saved;
}

int nextVersionIndex(const QList<VersionItem>& items, int index)
{
    return index + 1 < items.size() ? index + 1 : 0;
}

bool comesWithDisc(int code)
{
    return code != 203 && (code < 206 || code > 208) && code != 305 && code <= kLastDiscCode;
}

MessageText absentVersionMessage(int code, AbsentVersion how)
{
    if (!comesWithDisc(code))
        return messages::kVersionNotInstalled;
    return how == AbsentVersion::BaseFile ? messages::kInsertCdBase : messages::kInsertCd;
}

} // namespace lumen
