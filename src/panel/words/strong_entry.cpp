// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/words/strong_entry.h"

#include "forms/module_query.h"
#include "platform/controls/text/text_control.h"
#include "text/field_scramble.h"
#include "text/rtf/rtf_composer.h"
#include "text/rtf/rtf_tables.h"

#include <cmath>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

/// The numbers above it are none of the dictionaries'; they are not even looked for.
constexpr double kLastNumber = 8853;
constexpr QStringView kNotFound = u"해당 스트롱 코드 항목이 없습니다.";

QString escaped(Recordset& entry, QStringView column)
{
    return RtfEscape(DES::UnscrambleField(Text(entry.Fields(column))));
}

/// A meaning over several lines.
QString paragraphs(Recordset& entry, QStringView column)
{
    return escaped(entry, column).replace(u"\r\n"_s, u" \\par "_s);
}

} // namespace

QString composeStrongEntry(Recordset& entry, Testament testament)
{
    const bool old = testament == Testament::Old;
    const QString label = u"\\plain\\f2\\fs18\\cf1\\b "_s;
    const QString plain = u"\\plain\\cf0\\f2\\fs18 "_s;
    QString rtf = kWordPanelRtfHead.toString();
    rtf += u"\\li300\\fi-300"_s + label + u"어근: "_s +
           (old ? u"\\plain\\f8\\fs38\\cf3 "_s : u"\\plain\\f9\\fs24\\cf3 "_s) +
           escaped(entry, u"Word") +
           u" \\plain\\f3\\fs20 \\plain\\f3\\fs20\\cf1\\plain\\f3\\fs18 "
           u"\\par "_s;
    rtf += label + u"발음: "_s + plain + u'[' + escaped(entry, u"PronEng") + u" : "_s +
           escaped(entry, u"PronKor") + u"] \\par\\par "_s;
    // No blank behind the part of speech: the next control word ends the paragraph marks.
    rtf += label + u"품사: "_s + plain + u' ' + escaped(entry, u"ParsKor") + u" \\par\\par"_s;
    rtf += label + u"어원: "_s + plain + u' ' + escaped(entry, u"Source") + u" \\par\\par "_s;
    rtf += label + (old ? u"TWOT: "_s : u"TDNT: "_s) + plain + u' ' +
           escaped(entry, old ? u"TWOT" : u"TDNT") + u" \\par\\par "_s;
    rtf += label + u"KJV: "_s + plain + escaped(entry, u"AV") + u" \\par\\par\\pard "_s;
    rtf += u"\\f2\\fs18\\cf1\\b의미: "_s + plain + u' ' + paragraphs(entry, u"ContKor") +
           u" \\par\\par "_s;
    rtf += u' ' + paragraphs(entry, u"ContEng") + u"\\par "_s;
    return rtf + u" \\par }"_s;
}

StrongEntry::StrongEntry(Services& services, const AppState& state, TextControl& text)
    : m_services(services), m_state(state), m_text(text), m_dictionary(services.jet)
{
}

void StrongEntry::Proc스트롱사전표시(double number, Testament testament)
{
    const bool found = number <= kLastNumber && find(number, testament);
    std::optional<QString> shown;
    if (found) {
        Recordset& entry = *m_dictionary.Recordset();
        shown = Text(entry.Fields(u"num"));
        m_text.LoadRtf(toRtfBytes(composeStrongEntry(entry, testament)));
    } else {
        m_text.setText(kNotFound.toString());
    }
    if (onShown)
        onShown(shown);
}

bool StrongEntry::find(double number, Testament testament)
{
    const QStringView module = testament == Testament::Old ? QStringView(u"\\Data\\StrongDicH.dts")
                                                           : u"\\Data\\StrongDicG.dts";
    const Recordset& entries = askModule(m_dictionary, m_services, m_state, module,
                                         u"select * from StrongDic where Num = "_s +
                                             QString::number(std::trunc(number), 'f', 0));
    return entries.RecordCount() > 0;
}

} // namespace lumen
