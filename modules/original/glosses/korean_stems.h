// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace lumen {

/// Cuts particles and endings off Korean words. Which cut is right is seen from the whole text: a
/// stem is what many different words share.
class KoreanStems
{
public:
    /// `words` are all words of the text, as often as they stand there.
    explicit KoreanStems(const QStringList& words);

    /// The stem of a word of the text; "" for one that is too short to tell anything. The stem of a
    /// verb stands in its dictionary form.
    QString stem(const QString& word) const { return m_stems.value(word); }

private:
    QHash<QString, QString> m_stems;
};

/// The words of a verse: runs of Hangul.
QStringList koreanWords(const QString& text);

} // namespace lumen
