// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/version_lists.h"

#include "data/messages.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr QStringView kAbsentSuffix = u"(없음)";

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

QString menuCaption(const VersionRow& row, bool present, const InstalledFlags& installed)
{
    return present ? versionName(row.code, installed) : row.name.toString();
}

bool isOffered(const VersionRow& row, const InstalledFlags& installed)
{
    return row.offered == Offered::Always || installed.hasVersion(row.code);
}

} // namespace

QString versionName(int code, const InstalledFlags& installed)
{
    if (isUserVersion(code))
        return installed.userTables[static_cast<std::size_t>(code - kFirstUserVersion)];
    return versionRow(code).name.toString();
}

QList<VersionItem> SetClassicCombo(const InstalledFlags& installed, int number)
{
    const QString prefix = comboPrefix(number);
    QList<VersionItem> items;
    if (number >= 1)
        items << VersionItem{prefix + u"없음"_s, 0, true, 0};
    for (const VersionRow& row : versionRows()) {
        if (!isOffered(row, installed))
            continue;
        const bool present = installed.hasVersion(row.code);
        items << VersionItem{prefix + comboName(row.code, present, installed), row.code, present,
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
    for (const VersionRow& row : versionRows()) {
        const bool present = installed.hasVersion(row.code);
        const bool offered = isOffered(row, installed);
        tools << VersionTool{
            .id = toolId(number, QString::number(row.code)),
            .caption = menuCaption(row, present, installed),
            .code = row.code,
            .enabled = present,
            .visible = row.group == VersionGroup::User ? present : offered,
            .itemNumber = offered ? itemNumber++ : -1,
        };
    }
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

MessageText absentVersionMessage(int code, AbsentVersion how)
{
    if (versionRow(code).source == Source::Elsewhere)
        return messages::kVersionNotInstalled;
    return how == AbsentVersion::BaseFile ? messages::kInsertCdBase : messages::kInsertCd;
}

} // namespace lumen
