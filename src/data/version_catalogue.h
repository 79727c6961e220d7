// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "platform/message_text.h"

#include <QList>
#include <QString>
#include <QStringView>

#include <array>

namespace lumen {

/// One version that the program knows. The name is the caption in every list and the name of the
/// table in the version's module.
struct VersionRow
{
    int code = 0;
    QStringView name;
    /// False: without its module the row isn't in the lists at all.
    bool offeredWhenAbsent = true;
};

/// All versions in the order of every list; the user slots follow them.
inline constexpr std::array kVersionCatalogue{
    VersionRow{101, u"개역한글"},
    VersionRow{102, u"개역한자"},
    VersionRow{103, u"개역한글침례표기"},
    VersionRow{104, u"공동번역"},
    VersionRow{105, u"표준새번역"},
    VersionRow{106, u"개역개정판", false},
    VersionRow{107, u"현대어성경", false},
    VersionRow{108, u"현대인의 성경"},
    VersionRow{109, u"킹제임스 흠정역", false},
    VersionRow{401, u"중국어 간체"},
    VersionRow{201, u"KJV"},
    VersionRow{202, u"KJV Strong"},
    VersionRow{203, u"NKJV"},
    VersionRow{204, u"NIV"},
    VersionRow{205, u"ASV"},
    VersionRow{206, u"NASB"},
    VersionRow{207, u"RSV"},
    VersionRow{208, u"NRSV"},
    VersionRow{209, u"YLT"},
    VersionRow{210, u"Darby"},
    VersionRow{211, u"BBE"},
    VersionRow{212, u"Webster"},
    VersionRow{213, u"WEB"},
    VersionRow{215, u"ISV 신약"},
    VersionRow{214, u"Latin Vulgate"},
    VersionRow{216, u"Douay"},
    VersionRow{217, u"Weimouth 신약"},
    VersionRow{218, u"프랑스어 LSG"},
    VersionRow{219, u"독일어 SCH"},
    VersionRow{220, u"독일어 LUT"},
    VersionRow{221, u"독일어 ELB"},
    VersionRow{222, u"이태리어 LND"},
    VersionRow{223, u"스페인어 SRV"},
    VersionRow{224, u"러시아어 RST"},
    VersionRow{225, u"스웨덴어 SWE"},
    VersionRow{226, u"인도네시아어 ITB"},
    VersionRow{227, u"인도네시아어 BIS"},
    VersionRow{228, u"LXX 영문 구약"},
    VersionRow{301, u"BHS"},
    VersionRow{302, u"BHS 자음"},
    VersionRow{303, u"BHS 자음M"},
    VersionRow{304, u"LXX"},
    VersionRow{305, u"Nestle Aland 27"},
    VersionRow{306, u"TR Stephanus"},
    VersionRow{307, u"TR Scrivener"},
    VersionRow{308, u"TR Strong"},
    VersionRow{309, u"Westcott Hort"},
    VersionRow{310, u"Byzantine"},
    VersionRow{311, u"Tischendorf"},
};

/// What an empty parallel slot is called. Whether it is empty its code tells: a version of the
/// user's may have this name.
inline constexpr QStringView kNoVersion = u"None";

/// The name of a version: its row's, for a user slot the table of its module. "" for a code that
/// isn't known or a slot that is absent.
QString versionName(int code, const InstalledFlags& installed);

/// One item of a version combo.
struct VersionItem
{
    QString label;
    /// The ItemData; 0 for the " - 없음" item.
    int code = 0;
    bool present = false;
    /// The place in the combo, from 0.
    int index = 0;
};

/// The items of a version combo in their order. `number` 0 is the base version's combo and any
/// other without a prefix; 1 to 3 are the parallel slots, whose items begin "대역본1 - " and whose
/// first item is "대역본1 - 없음".
QList<VersionItem> SetClassicCombo(const InstalledFlags& installed, int number);

/// One tool of a version menu.
struct VersionTool
{
    QString id; ///< "ID_대역본0-101"
    QString caption;
    int code = 0;
    bool enabled = false;
    bool visible = true;
    /// The TagVariant: the place of the same version in the combo of the same number, -1 for a
    /// version that isn't in it.
    int itemNumber = -1;
};

/// The tools of a version menu, `number` as in SetClassicCombo. The menus of the parallel slots
/// begin with "ID_대역본1-없음". A slot of the user's without a module is there but not visible.
QList<VersionTool> SetupMenu(const InstalledFlags& installed, int number);

/// The place of a code among the items, -1 when it has none.
int indexOfVersion(const QList<VersionItem>& items, int code);
/// The index that a saved one stands for: 0 when it lies outside or names an absent row.
int restoredVersionIndex(const QList<VersionItem>& items, int saved);
/// Where the choice goes while the window loads and the row is absent: the next one, from the last
/// to the first.
int nextVersionIndex(const QList<VersionItem>& items, int index);

/// How an absent version was come upon.
enum class AbsentVersion { ComboRow, BaseFile, ParallelFile };

/// False for the versions that don't come with the disc: 203, 206 to 208, 305 and all above 900.
bool comesWithDisc(int code);
/// The message that the choice of an absent version gets.
MessageText absentVersionMessage(int code, AbsentVersion how);

} // namespace lumen
