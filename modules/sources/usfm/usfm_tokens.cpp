// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/usfm/usfm_tokens.h"

#include <algorithm>
#include <array>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

struct KindRow
{
    QStringView marker; ///< without the level: "q" stands for q1 to q9 too
    UsfmKind kind = UsfmKind::Character;
};

constexpr std::array kKinds{
    KindRow{u"id", UsfmKind::Book},
    KindRow{u"c", UsfmKind::Chapter},
    KindRow{u"v", UsfmKind::Verse},
    KindRow{u"d", UsfmKind::Title},
    KindRow{u"s", UsfmKind::Heading},
    KindRow{u"ms", UsfmKind::Heading},
    KindRow{u"qa", UsfmKind::Heading},
    KindRow{u"sp", UsfmKind::Speaker},
    KindRow{u"nd", UsfmKind::DivineName},
    // Paragraphs, poetry, lists and tables of the text.
    KindRow{u"p", UsfmKind::Paragraph},
    KindRow{u"m", UsfmKind::Paragraph},
    KindRow{u"po", UsfmKind::Paragraph},
    KindRow{u"pr", UsfmKind::Paragraph},
    KindRow{u"cls", UsfmKind::Paragraph},
    KindRow{u"pmo", UsfmKind::Paragraph},
    KindRow{u"pm", UsfmKind::Paragraph},
    KindRow{u"pmc", UsfmKind::Paragraph},
    KindRow{u"pmr", UsfmKind::Paragraph},
    KindRow{u"pi", UsfmKind::Paragraph},
    KindRow{u"mi", UsfmKind::Paragraph},
    KindRow{u"nb", UsfmKind::Paragraph},
    KindRow{u"pc", UsfmKind::Paragraph},
    KindRow{u"ph", UsfmKind::Paragraph},
    KindRow{u"q", UsfmKind::Paragraph},
    KindRow{u"qr", UsfmKind::Paragraph},
    KindRow{u"qc", UsfmKind::Paragraph},
    KindRow{u"qm", UsfmKind::Paragraph},
    KindRow{u"qd", UsfmKind::Paragraph},
    KindRow{u"b", UsfmKind::Paragraph},
    KindRow{u"lh", UsfmKind::Paragraph},
    KindRow{u"li", UsfmKind::Paragraph},
    KindRow{u"lf", UsfmKind::Paragraph},
    KindRow{u"lim", UsfmKind::Paragraph},
    KindRow{u"tr", UsfmKind::Paragraph},
    KindRow{u"th", UsfmKind::Paragraph},
    KindRow{u"thr", UsfmKind::Paragraph},
    KindRow{u"tc", UsfmKind::Paragraph},
    KindRow{u"tcr", UsfmKind::Paragraph},
    KindRow{u"pb", UsfmKind::Paragraph},
    // Heads of the file, introductions, references below headings, chapter labels.
    KindRow{u"usfm", UsfmKind::PassedLine},
    KindRow{u"ide", UsfmKind::PassedLine},
    KindRow{u"sts", UsfmKind::PassedLine},
    KindRow{u"rem", UsfmKind::PassedLine},
    KindRow{u"h", UsfmKind::PassedLine},
    KindRow{u"toc", UsfmKind::PassedLine},
    KindRow{u"toca", UsfmKind::PassedLine},
    KindRow{u"mt", UsfmKind::PassedLine},
    KindRow{u"mte", UsfmKind::PassedLine},
    KindRow{u"cl", UsfmKind::PassedLine},
    KindRow{u"cp", UsfmKind::PassedLine},
    KindRow{u"cd", UsfmKind::PassedLine},
    KindRow{u"r", UsfmKind::PassedLine},
    KindRow{u"sr", UsfmKind::PassedLine},
    KindRow{u"mr", UsfmKind::PassedLine},
    KindRow{u"sd", UsfmKind::PassedLine},
    KindRow{u"imt", UsfmKind::PassedLine},
    KindRow{u"imte", UsfmKind::PassedLine},
    KindRow{u"is", UsfmKind::PassedLine},
    KindRow{u"ip", UsfmKind::PassedLine},
    KindRow{u"ipi", UsfmKind::PassedLine},
    KindRow{u"im", UsfmKind::PassedLine},
    KindRow{u"imi", UsfmKind::PassedLine},
    KindRow{u"ipq", UsfmKind::PassedLine},
    KindRow{u"imq", UsfmKind::PassedLine},
    KindRow{u"ipr", UsfmKind::PassedLine},
    KindRow{u"iq", UsfmKind::PassedLine},
    KindRow{u"ib", UsfmKind::PassedLine},
    KindRow{u"ili", UsfmKind::PassedLine},
    KindRow{u"iot", UsfmKind::PassedLine},
    KindRow{u"io", UsfmKind::PassedLine},
    KindRow{u"iex", UsfmKind::PassedLine},
    KindRow{u"ie", UsfmKind::PassedLine},
    KindRow{u"restore", UsfmKind::PassedLine},
    // Left out with all that stands in them.
    KindRow{u"f", UsfmKind::Note},
    KindRow{u"fe", UsfmKind::Note},
    KindRow{u"ef", UsfmKind::Note},
    KindRow{u"x", UsfmKind::Note},
    KindRow{u"ex", UsfmKind::Note},
    KindRow{u"fig", UsfmKind::Note},
    KindRow{u"rq", UsfmKind::Note},
    KindRow{u"va", UsfmKind::Note},
    KindRow{u"vp", UsfmKind::Note},
    KindRow{u"ca", UsfmKind::Note},
    KindRow{u"pro", UsfmKind::Note},
};

bool isMarkerLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') ||
           c == u'-';
}

// The marker at `at`, which moves behind it and the blank that ends it.
UsfmToken readMarker(QStringView file, qsizetype& at)
{
    const auto skip = [&file, &at](QChar c) {
        const bool found = at < file.size() && file[at] == c;
        at += found ? 1 : 0;
        return found;
    };
    UsfmToken token;
    skip(u'\\');
    skip(u'+'); // a marker nested in another
    for (; at < file.size() && isMarkerLetter(file[at]); ++at)
        token.marker += file[at];
    token.closing = skip(u'*');
    if (!token.closing)
        skip(u' ');
    return token;
}

} // namespace

UsfmKind usfmKind(QStringView marker)
{
    const auto known = [](QStringView name) {
        return std::find_if(kKinds.begin(), kKinds.end(),
                            [name](const KindRow& row) { return row.marker == name; });
    };
    auto row = known(marker);
    while (row == kKinds.end() && !marker.isEmpty() && marker.back().isDigit()) {
        marker.chop(1);
        row = known(marker);
    }
    return row == kKinds.end() ? UsfmKind::Character : row->kind;
}

std::vector<UsfmToken> usfmTokens(QStringView file)
{
    std::vector<UsfmToken> tokens;
    int line = 1;
    qsizetype at = 0;
    while (at < file.size()) {
        if (file[at] == u'\\') {
            tokens.push_back(readMarker(file, at));
            tokens.back().line = line;
            continue;
        }
        const bool lineEnd = file[at] == u'\n' || file[at] == u'\r';
        line += file[at] == u'\n' ? 1 : 0;
        if (!tokens.empty())
            tokens.back().text += lineEnd ? QChar(u' ') : file[at];
        ++at;
    }
    return tokens;
}

} // namespace lumen
