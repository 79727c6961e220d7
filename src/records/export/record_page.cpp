// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/export/record_page.h"

#include "text/codepage949.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr QStringView kHead = u"<HTML>\r\n<HEAD>\r\n"
                              u"<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; "
                              u"charset=euc-kr\">\r\n"
                              u"<META NAME=\"Generator\" CONTENT=\"Microsoft Word 97\">\r\n"
                              u"<TITLE>제목내용</TITLE>\r\n</HEAD>\r\n<BODY>\r\n\r\n";
constexpr QStringView kBetween =
    u"</TABLE>\r\n\r\n"
    u"<FONT FACE=\"굴림체\" LANG=\"KO\" SIZE=2><P ALIGN=\"JUSTIFY\"></P></FONT>\r\n";
constexpr QStringView kEnd =
    u"</TABLE>\r\n\r\n"
    u"<FONT FACE=\"바탕체\" LANG=\"KO\" SIZE=2><P ALIGN=\"JUSTIFY\"></P></FONT></BODY>\r\n"
    u"</HTML>\r\n";

QString koreanRun(const QString& text, const QString& color)
{
    return u"<FONT FACE=\"굴림체\" LANG=\"KO\" SIZE=2 COLOR=\"%1\">%2</FONT>"_s.arg(color, text);
}

/// Letters apart from each other by blanks, each in a run of its own.
QString spreadLabel(const QString& letters, const QString& blanks, const QString& color)
{
    QString label;
    for (const QChar letter : letters) {
        if (!label.isEmpty())
            label += u"<FONT FACE=\"Arial\" SIZE=2 COLOR=\"%1\">%2</FONT>"_s.arg(color, blanks);
        label += koreanRun(letter, color);
    }
    return label;
}

/// A row of a label and the place of a text.
QString row(const QString& labelCell, const QString& label, const QString& valueCell,
            const QString& place)
{
    return u"<TR>"_s + labelCell + u"\r\n<B><P ALIGN=\"CENTER\">"_s + label + u"</B></TD>\r\n"_s +
           valueCell + u"\r\n<FONT FACE=\"굴림체\" LANG=\"KO\" SIZE=2><P ALIGN=\"JUSTIFY\">"_s +
           place + u"</FONT></TD>\r\n</TR>\r\n"_s;
}

QString textTable()
{
    QString table = u"<TABLE CELLSPACING=0 BORDER=0 CELLPADDING=6 WIDTH=580>\r\n"_s;
    for (const QString& letters : {u"제목"_s, u"말씀"_s, u"설교"_s, u"기도"_s})
        table +=
            row(u"<TD WIDTH=\"9%\" VALIGN=\"TOP\">"_s, spreadLabel(letters, u" "_s, u"#0000ff"_s),
                u"<TD WIDTH=\"91%\" VALIGN=\"TOP\">"_s, letters + u"내용"_s);
    return table;
}

QString detailTable()
{
    const QString color = u"#800000"_s;
    const std::pair<QString, QString> rows[] = {
        {spreadLabel(u"분류"_s, u"  "_s, color), u"분류내용"_s},
        {koreanRun(u"설교요약"_s, color), u"요약내용"_s},
        {spreadLabel(u"작성일"_s, u" "_s, color), u"작성일내용"_s},
        {spreadLabel(u"설교일"_s, u" "_s, color), u"설교일내용"_s},
    };
    QString table = u"<TABLE BORDER CELLSPACING=1 CELLPADDING=6 WIDTH=580>\r\n"_s;
    for (const auto& [label, place] : rows)
        table += row(u"<TD WIDTH=\"14%\" VALIGN=\"MIDDLE\" HEIGHT=20>"_s, label,
                     u"<TD WIDTH=\"86%\" VALIGN=\"MIDDLE\" HEIGHT=20>"_s, place);
    return table;
}

QString withBreaks(QString text)
{
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\n', u"<BR>"_s);
}

} // namespace

QString recordPage(const RecordBoxes& boxes)
{
    QString page =
        kHead.toString() + textTable() + kBetween.toString() + detailTable() + kEnd.toString();
    page.replace(u"제목내용"_s, withBreaks(boxes.plainText(0)));
    page.replace(u"말씀내용"_s, withBreaks(boxes.plainText(1)));
    page.replace(u"설교내용"_s, withBreaks(boxes.plainText(2)));
    page.replace(u"기도내용"_s, withBreaks(boxes.plainText(3)));
    page.replace(u"분류내용"_s, boxes.category());
    page.replace(u"요약내용"_s, withBreaks(boxes.plainText(4)));
    page.replace(u"작성일내용"_s, dayString(boxes.writtenDay()));
    page.replace(u"설교일내용"_s, dayString(boxes.preachedDay()));
    return page;
}

QByteArray pageBytes(const QString& page)
{
    QByteArray bytes;
    for (const char32_t letter : page.toUcs4()) {
        const bool isInPage = letter <= 0xFFFF && (letter < 0x80 || code949(char16_t(letter)));
        if (isInPage)
            bytes += toCodePage949(QString(QChar(char16_t(letter))));
        else
            bytes += "&#" + QByteArray::number(uint(letter)) + ';';
    }
    return bytes;
}

} // namespace lumen
