// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/copy_tail.h"

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

QString verseText(const QString& range)
{
    const qsizetype dash = range.indexOf(u'-');
    if (dash >= 0 && QStringView(range).first(dash) == QStringView(range).sliced(dash + 1))
        return range.first(dash);
    return QString(range).replace(u'-', u'~');
}

QString referenceText(const CopyOptions& options, const CopySource& source)
{
    const QString verses = verseText(source.verseRange);
    if (options.formalSep) {
        const QString& book = options.fullName ? source.bookName : source.abbreviation;
        return u"%1 %2장 %3절"_s.arg(book, source.chapter, verses);
    }
    const QString book = options.fullName ? source.bookName + u' ' : source.abbreviation;
    return u"%1%2:%3"_s.arg(book, source.chapter, verses);
}

} // namespace

QString GetCopyTailIndex(const CopyOptions& options, const CopySource& source)
{
    if (!options.addIndex)
        return QString();
    QString tail = referenceText(options, source);
    if (options.addVersion)
        tail.prepend(source.versions.join(u'/') + u' ');
    if (options.parenthesis)
        tail = u'(' + tail + u')';
    // On a line of its own the tail needs no blank before it.
    return options.crLf ? tail : u' ' + tail;
}

QString copyEnding(const CopyOptions& options, const CopySource& source)
{
    const QString tail = GetCopyTailIndex(options, source);
    return options.crLf && !tail.isEmpty() ? u"\r\n"_s + tail : tail;
}

} // namespace lumen
