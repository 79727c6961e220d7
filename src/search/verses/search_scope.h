// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringView>

#include <array>

namespace lumen {

/// Which of the two searches over verse text asks: their queries differ in a few blanks.
enum class SearchKind { Easy, Power };

/// One entry of the scope lists, in list order, with its tool and the tag that the search reads.
/// The two tails are what stands behind the bracketed criterion, to the blank.
struct ScopeRow
{
    QStringView text;
    QStringView tag;
    QStringView toolId;
    QStringView easyTail;
    QStringView powerTail;
};

inline constexpr QStringView kScopeTagAll = u"All";
inline constexpr QStringView kScopeTagWithin = u"curRecSet";

/// The tags "식" and "삽" aren't the group codes of the modules, which are "시" and "사". The
/// first two rows have no tails: the whole range needs no brackets and a search within results no
/// query. The last row's tag is the list of books that the user ticked.
inline constexpr std::array kScopes{
    ScopeRow{u"전체", kScopeTagAll, u"ID_전체", {}, {}},
    ScopeRow{u"검색된 것 내에서", kScopeTagWithin, u"ID_검색된것내", {}, {}},
    ScopeRow{u"구약", u"OldTesta", u"ID_구약", u" and Testa = '구'  order by index",
             u" and Testa = '구'  order by index"},
    ScopeRow{u"신약", u"NewTesta", u"ID_신약", u" and Testa = '신' order by index",
             u" and Testa = '신'  order by index"},
    ScopeRow{u"모세오경", u"모", u"ID_모세오경", u" and Category = '모' order by index",
             u" and Category = '모' order by index"},
    ScopeRow{u"역사서", u"역", u"ID_역사서", u" and Category = '역' order by index",
             u" and Category ='역' order by index"},
    ScopeRow{u"시가서", u"식", u"ID_시가서", u" and Category = '시' order by index",
             u" and Category = '시' order by index"},
    ScopeRow{u"대선지서", u"대", u"ID_대선지서", u" and Category = '대' order by index",
             u" and Category ='대' order by index"},
    ScopeRow{u"소선지서", u"소", u"ID_소선지서", u" and Category = '소' order by index",
             u" and Category = '소' order by index"},
    ScopeRow{u"사복음서", u"삽", u"ID_사복음서", u" and Category = '사' order by index",
             u" and Category  = '사' order by index"},
    ScopeRow{u"바울서신", u"바", u"ID_바울서신", u" and Category = '바' order by index",
             u" and Category ='바' order by index"},
    ScopeRow{u"공동서신", u"공", u"ID_공동서신", u" and Category = '공' order by index",
             u" and Category ='공' order by index"},
    ScopeRow{u"예언서", u"계", u"ID_예언서", u" and Category = '계' order by index",
             u" and Category ='계' order by index"},
    ScopeRow{u"책별 선택...", {}, u"ID_책별선택", {}, {}},
};

inline constexpr int kScopeAll = 0;
inline constexpr int kScopeBooks = static_cast<int>(kScopes.size()) - 1;

/// One entry of the scope list of the original-language tab, in list order.
struct ParsingScopeRow
{
    QStringView text;
    QStringView tag;
};

inline constexpr std::array kParsingScopes{
    ParsingScopeRow{u"역본별 전체", kScopeTagAll},
    ParsingScopeRow{u"검색된 것 내에서", kScopeTagWithin},
    ParsingScopeRow{u"모세오경", u"모"},
    ParsingScopeRow{u"역사서", u"역"},
    ParsingScopeRow{u"시가서", u"식"},
    ParsingScopeRow{u"대선지서", u"대"},
    ParsingScopeRow{u"소선지서", u"소"},
    ParsingScopeRow{u"사복음서", u"삽"},
    ParsingScopeRow{u"바울서신", u"바"},
    ParsingScopeRow{u"공동서신", u"공"},
    ParsingScopeRow{u"예언서", u"계"},
    ParsingScopeRow{u"책별 선택...", {}},
};

inline constexpr int kParsingScopeBooks = static_cast<int>(kParsingScopes.size()) - 1;

/// "(index like '??창:*' or index like '??막:*')" for the tag "창,막".
QString bookListTerm(const QString& tag);

/// The query of a search in the table of one version. `tag` is a tag of the scope list but that of
/// the search within results, or a comma list of book abbreviations.
QString scopedQuery(SearchKind kind, const QString& table, const QString& criterion,
                    const QString& tag);

} // namespace lumen
