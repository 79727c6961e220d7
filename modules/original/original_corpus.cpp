// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/original_corpus.h"

#include "original/glosses/gloss_alignment.h"
#include "original/greek_words.h"
#include "original/hebrew_words.h"
#include "original/readers/kjv_reader.h"
#include "original/readers/oshb_reader.h"
#include "original/wlc_versification.h"
#include "sources/interruption.h"

#include <algorithm>
#include <future>
#include <iterator>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

Result<std::vector<OshbVerse>> readOshb(const QStringList& files)
{
    std::vector<OshbVerse> verses;
    for (const QString& file : files) {
        if (interrupted())
            return Failure{FailureKind::Cancelled, {}};
        auto book = readOshbFile(file);
        if (!book)
            return book.failure();
        std::ranges::move(book.value(), std::back_inserter(verses));
    }
    return verses;
}

OriginalText underKeys(OriginalText text)
{
    return regrouped(std::move(text), koreanPlace);
}

class CorpusReader
{
public:
    explicit CorpusReader(const OriginalSources& sources) : m_sources(sources) {}

    Result<OriginalContent> run();

private:
    std::optional<Failure> readHebrew();
    std::optional<Failure> readStrong();
    void describeGreek(const GreekWords& words);

    const OriginalSources& m_sources;
    std::vector<KjvVerse> m_kjv;
    OriginalText m_hebrew;
    OriginalContent m_content;
};

Result<OriginalContent> CorpusReader::run()
{
    // The two big sources take as long as each other.
    auto reading = std::async(std::launch::async, [this] { return readKjv(m_sources.kjv); });
    const auto hebrewFailure = readHebrew();
    auto kjv = reading.get();
    if (hebrewFailure)
        return *hebrewFailure;
    if (!kjv)
        return kjv.failure();
    m_kjv = std::move(kjv.value());
    const auto strongFailure = readStrong();
    if (strongFailure)
        return *strongFailure;
    const GlossCount glosses = placeEnglishGlosses(m_hebrew, m_kjv);
    m_content.hebrewRemarks << u"영어 대응어의 조각 %1개 가운데 %2개를 낱말에 붙였습니다."_s
                                   .arg(glosses.segments)
                                   .arg(glosses.placed);
    GreekWords greek = greekWords(m_kjv);
    describeGreek(greek);
    m_content.verses = underKeys(std::move(m_hebrew));
    std::ranges::move(underKeys(std::move(greek.verses)), std::back_inserter(m_content.verses));
    return std::move(m_content);
}

std::optional<Failure> CorpusReader::readHebrew()
{
    const auto versification = WlcVersification::read(m_sources.verseMap);
    if (!versification)
        return versification.failure();
    const auto verses = readOshb(m_sources.hebrewFiles);
    if (!verses)
        return verses.failure();
    HebrewWords words = hebrewWords(verses.value());
    if (!words.unknown.isEmpty())
        m_content.hebrewRemarks << u"글꼴 코드가 없어 뺀 글자: %1"_s.arg(words.unknown);
    m_content.hebrewRemarks << u"분해 코드에 빈 자리가 남은 낱말: %1"_s.arg(words.incomplete);
    m_hebrew =
        regrouped(std::move(words.verses), [&versification](const VersePlace& verse, int word) {
            return versification.value().english(verse, word);
        });
    return std::nullopt;
}

void CorpusReader::describeGreek(const GreekWords& words)
{
    m_content.greekRemarks << u"원본에 빠진 낱말: %1"_s.arg(words.missing);
    if (!words.withoutCode.isEmpty())
        m_content.greekRemarks << u"분해 코드를 읽을 수 없는 낱말: %1"_s.arg(
            words.withoutCode.join(u", "_s));
}

std::optional<Failure> CorpusReader::readStrong()
{
    auto hebrew = readHebrewStrong(m_sources.hebrewStrong, m_sources.hebrewIndex);
    if (!hebrew)
        return hebrew.failure();
    auto greek = readGreekStrong(m_sources.greekStrong);
    if (!greek)
        return greek.failure();
    m_content.hebrewStrong = std::move(hebrew.value());
    m_content.greekStrong = std::move(greek.value());
    return std::nullopt;
}

} // namespace

QStringList OriginalSources::textFiles() const
{
    return hebrewFiles + QStringList{verseMap, kjv};
}

const Result<OriginalContent>& OriginalCorpus::content()
{
    std::call_once(m_once, [this] {
        m_content = CorpusReader(m_sources).run();
        if (!*m_content)
            return;
        OriginalContent& content = m_content->value();
        auto korean = koreanGlosses(content.verses, m_sources.glosses, m_sources.koreanFiles);
        if (!korean)
            m_content = korean.failure();
        else
            content.korean = std::move(korean.value());
    });
    return *m_content;
}

} // namespace lumen
