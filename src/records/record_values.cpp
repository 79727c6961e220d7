// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/record_values.h"

using namespace Qt::StringLiterals;

namespace lumen {

QString dayString(const QDate& day)
{
    return day.toString(Qt::ISODate);
}

DraftPart partOf(const RecordBoxes& boxes, RecordPart part)
{
    switch (part) {
    case RecordPart::Category:
        return {part, boxes.category()};
    case RecordPart::PreachedDay:
        return {part, dayString(boxes.preachedDay())};
    case RecordPart::WrittenDay:
        return {part, dayString(boxes.writtenDay())};
    default:
        const int text = static_cast<int>(part);
        return {part, boxes.plainText(text), boxes.rtf(text)};
    }
}

void applyPart(RecordValues& values, const DraftPart& part)
{
    switch (part.part) {
    case RecordPart::Category:
        values.category = part.text;
        return;
    case RecordPart::PreachedDay:
        values.preached = QDate::fromString(part.text, Qt::ISODate);
        return;
    case RecordPart::WrittenDay:
        values.written = QDate::fromString(part.text, Qt::ISODate);
        return;
    default:
        values.rtf[static_cast<std::size_t>(part.part)] = part.rtf;
    }
}

QString MergeAllContent(const RecordProfile& profile, const RecordBoxes& boxes)
{
    QString text = u"{\\rtf1\\fs22"_s;
    if (profile.hasPreachedDay())
        text += u"[설교일] "_s + dayString(boxes.preachedDay()) + u"      "_s;
    text += u"[작성일] "_s + dayString(boxes.writtenDay()) + u" \\par \\par "_s;
    for (int i = 0; i < kRecordTexts; ++i) {
        const QString heading = profile.texts[static_cast<std::size_t>(i)].heading.toString();
        text += i == kTitleText ? u'[' + heading + u"] \\par "_s
                                : u" \\par["_s + heading + u"]\\par "_s;
        text += boxes.plainText(i);
    }
    return text + u'}';
}

} // namespace lumen
