// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/original/mini_sources.h"

namespace lumen {

using namespace Qt::StringLiterals;

QString oshbBook(const QString& verses)
{
    return uR"(<?xml version="1.0" encoding="utf-8"?><osis><osisText><div type="book"><chapter>%1
</chapter></div></osisText></osis>)"_s.arg(verses);
}

QString oshbVerse(const QString& id, const QString& elements)
{
    return u"<verse osisID=\"%1\">%2</verse>"_s.arg(id, elements);
}

QString oshbWord(const QString& lemma, const QString& morph, const QString& text)
{
    return u"<w lemma=\"%1\" morph=\"%2\" id=\"x\">%3</w>\n"_s.arg(lemma, morph, text);
}

QString kjvBible(const QString& chapters)
{
    return u"<?xml version=\"1.0\" encoding=\"utf-8\"?><osis><osisText>%1</osisText></osis>"_s.arg(
        chapters);
}

QString kjvVerse(const QString& id, const QString& elements)
{
    return u"<verse osisID=\"%1\" sID=\"%1\"/>%2<verse eID=\"%1\"/>"_s.arg(id, elements);
}

OriginalSources writeMiniSources(const SourceFiles& files)
{
    const QString genesis =
        oshbBook(oshbVerse(u"Gen.1.1"_s, oshbWord(u"b/9"_s, u"HR/Ncfsa"_s, u"בְּ/אב"_s) +
                                             oshbWord(u"8"_s, u"HVqp3ms"_s, u"גַּד"_s) +
                                             u"<seg type=\"x-maqqef\">־</seg>"_s +
                                             oshbWord(u"9"_s, u"HNcfsa"_s, u"אָב"_s) +
                                             u"<seg type=\"x-sof-pasuq\">׃</seg>"
                                             "<seg type=\"x-pe\">פ</seg>"_s) +
                 oshbVerse(u"Gen.1.2"_s, oshbWord(u"8"_s, u"HNcmsa"_s, u"גד"_s) +
                                             u"<note type=\"variant\"><catchWord>גד</catchWord>"
                                             "<rdg type=\"x-qere\">"_s +
                                             oshbWord(u"7"_s, u"HNcmsa"_s, u"דַּג"_s) +
                                             u"</rdg></note><seg type=\"x-sof-pasuq\">׃</seg>"_s));
    const QString english = kjvBible(
        u"<chapter>"_s +
        kjvVerse(u"Gen.1.1"_s,
                 u"<w lemma=\"strong:H09\">In one</w> "
                 "<w lemma=\"strong:H08\">runs</w> <w lemma=\"strong:H09\">two</w>"_s) +
        kjvVerse(u"Gen.1.2"_s, u"<w lemma=\"strong:H07\">three</w>"_s) +
        kjvVerse(u"John.1.1"_s,
                 u"<w src=\"2\" lemma=\"strong:G2532 lemma.TR:και\" morph=\"robinson:CONJ\">And</w>"
                 "<w src=\"1\" lemma=\"strong:G3056 lemma.TR:λογος\" morph=\"robinson:N-NSM\">"
                 "word</w>"_s) +
        u"</chapter>"_s);
    OriginalSources sources;
    sources.hebrewFiles = {files.write(u"morphhb/Gen.xml"_s, genesis)};
    sources.verseMap = files.write(u"morphhb/VerseMap.xml"_s, u"<verseMap/>"_s);
    sources.kjv = files.write(u"kjv.xml"_s, english);
    sources.hebrewStrong = files.write(
        u"hebrew.xml"_s,
        u"<lexicon><entry id=\"H7\"><w pos=\"n-m\" pron=\"dag\" xlit=\"dag\">דַּג</w></entry>"
        "<entry id=\"H8\"><w pos=\"v\" pron=\"gad\" xlit=\"gâd\" xml:lang=\"arc\">גָּד</w>"
        "<source>from <w src=\"H9\">9</w>;</source><usage>run.</usage></entry>"
        "<entry id=\"H9\"><w pos=\"n-m n-f\" pron=\"ab\" xlit=\"ʼâb\">אָב</w>"
        "<meaning>a <def>one</def><note>left out</note></meaning></entry></lexicon>"_s);
    sources.hebrewIndex = files.write(
        u"index.xml"_s, u"<index><xref strong=\"9\" twot=\"4a\"/><xref strong=\"9\" twot=\"5\"/>"
                        "<xref strong=\"9\" twot=\"4a\"/></index>"_s);
    sources.glosses.greek =
        files.write(u"glosses/greek.tsv"_s, u"2532\t그리고\n3056\t말씀, 말\n"_s);
    sources.greekStrong = files.write(
        u"greek.xml"_s,
        u"<d><entry strongs=\"03056\"><strongs>3056</strongs>"
        "<greek unicode=\"λόγος\" translit=\"lógos\"/><pronunciation strongs=\"log\"/>"
        "<strongs_derivation>from <strongsref language=\"GREEK\" strongs=\"03004\"/>;"
        "</strongs_derivation><strongs_def> a saying</strongs_def><kjv_def>:--word.</kjv_def>"
        "</entry><entry strongs=\"02717\"><strongs>2717</strongs> Not used</entry></d>"_s);
    return sources;
}

} // namespace lumen
