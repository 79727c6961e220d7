// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/sword/sword_reader.h"

#include "canon/canon_table.h"
#include "sources/book_names.h"
#include "sources/sword/markup_scanner.h"
#include "sources/sword/osis_collector.h"
#include "sources/sword/sword_index.h"
#include "sources/text_cleaning.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <markupfiltmgr.h>
#include <memory>
#include <mutex>
#include <set>
#include <swmgr.h>
#include <swmodule.h>
#include <versekey.h>
#include <versificationmgr.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

QString confValue(const QString& confFile, QStringView key)
{
    QFile file(confFile);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString& line : lines)
        if (line.startsWith(key) && QStringView(line).mid(key.size()).trimmed().startsWith(u'='))
            return line.mid(line.indexOf(u'=') + 1).trimmed();
    return {};
}

QString moduleValue(const sword::SWModule& module, const char* key)
{
    return QString::fromUtf8(module.getConfigEntry(key)).trimmed();
}

template <typename Choice>
struct ConfWord
{
    QStringView word;
    Choice choice;
};

// What a key of the conf file may say. A word that is none of these is a damaged file: the library
// would read on with a guess.
template <typename Choice, std::size_t kCount>
std::optional<Choice> chosen(const sword::SWModule& module, const char* key,
                             const ConfWord<Choice> (&words)[kCount])
{
    const QString value = moduleValue(module, key);
    for (const ConfWord<Choice>& one : words)
        if (value.compare(one.word, Qt::CaseInsensitive) == 0)
            return one.choice;
    return std::nullopt;
}

enum class Markup { None, Osis, Other };
enum class Encoding { Latin1, Utf8, Other };

struct SwordConf
{
    SwordLayout layout;
    Markup markup = Markup::None;
    Encoding encoding = Encoding::Latin1;
};

struct Driver
{
    bool packed = false;
    bool wideSizes = false;
};

using Compression = SwordLayout::Compression;
constexpr ConfWord<Driver> kDrivers[] = {{u"RawText", {false, false}},
                                         {u"RawText4", {false, true}},
                                         {u"zText", {true, false}},
                                         {u"zText4", {true, true}}};
constexpr ConfWord<Compression> kCompressions[] = {{u"", Compression::Lzss},
                                                   {u"LZSS", Compression::Lzss},
                                                   {u"ZIP", Compression::Zip},
                                                   {u"BZIP2", Compression::Bzip2},
                                                   {u"XZ", Compression::Xz}};
constexpr ConfWord<char> kBlocks[] = {
    {u"", 'c'}, {u"BOOK", 'b'}, {u"CHAPTER", 'c'}, {u"VERSE", 'v'}};
constexpr ConfWord<Markup> kMarkups[] = {{u"", Markup::None},     {u"Plaintext", Markup::None},
                                         {u"OSIS", Markup::Osis}, {u"ThML", Markup::Other},
                                         {u"GBF", Markup::Other}, {u"TEI", Markup::Other}};
constexpr ConfWord<Encoding> kEncodings[] = {{u"", Encoding::Latin1},
                                             {u"Latin-1", Encoding::Latin1},
                                             {u"UTF-8", Encoding::Utf8},
                                             {u"UTF-16", Encoding::Other},
                                             {u"SCSU", Encoding::Other}};

bool isKnownNumbering(const QString& name)
{
    const auto* known = sword::VersificationMgr::getSystemVersificationMgr();
    return name.isEmpty() || known->getVersificationSystem(name.toUtf8().constData());
}

Result<SwordConf> readConf(const sword::SWModule& module, const QString& confFile)
{
    const auto driver = chosen(module, "ModDrv", kDrivers);
    const auto compression = chosen(module, "CompressType", kCompressions);
    const auto block = chosen(module, "BlockType", kBlocks);
    const auto markup = chosen(module, "SourceType", kMarkups);
    const auto encoding = chosen(module, "Encoding", kEncodings);
    const char* wrong = !driver                                                   ? "ModDrv"
                        : !compression                                            ? "CompressType"
                        : !block                                                  ? "BlockType"
                        : !markup                                                 ? "SourceType"
                        : !encoding                                               ? "Encoding"
                        : !isKnownNumbering(moduleValue(module, "Versification")) ? "Versification"
                                                                                  : nullptr;
    if (wrong)
        return sourceFailure(
            confFile, 0,
            u"알 수 없는 값입니다: %1=%2"_s.arg(QLatin1String(wrong), moduleValue(module, wrong)));
    SwordConf conf{{}, *markup, *encoding};
    conf.layout.folder = QDir::cleanPath(moduleValue(module, "AbsoluteDataPath"));
    conf.layout.compression = driver->packed ? *compression : Compression::None;
    conf.layout.wideSizes = driver->wideSizes;
    conf.layout.blockLetter = *block;
    conf.layout.enciphered = !moduleValue(module, "CipherKey").isEmpty();
    return conf;
}

// Takes what a pattern finds out of an entry; its first group is what the marks enclose.
QStringList takenOut(QString& entry, const QRegularExpression& pattern)
{
    QStringList found;
    for (const QRegularExpressionMatch& match : pattern.globalMatch(entry))
        found << match.captured(1);
    entry.remove(pattern);
    return found;
}

// The library's plain text keeps notes in brackets amid the words, and headings and titles as words
// of the verse. GBF tells its signs apart by large and small letters.
class OtherMarkup
{
public:
    explicit OtherMarkup(const QByteArray& entry) : m_words(QString::fromUtf8(entry))
    {
        constexpr auto kAcrossLines = QRegularExpression::DotMatchesEverythingOption;
        static const QRegularExpression note(
            uR"((?i:<note\b(?:[^>]*/>|[^>]*>.*?</note\s*>))|<RF[^>]*>.*?<Rf>|<RX[^>]*>.*?<Rx>|<TB>.*?<Tb>)"_s,
            kAcrossLines);
        static const QRegularExpression heading(
            uR"((?|(?i:<div\b[^>]*\bclass\s*=\s*["'](?:sechead|title)["'][^>]*>(.*?)</div\s*>))"
            uR"(|(?i:<h[1-6]\b[^>]*>(.*?)</h[1-6]\s*>)|<T[ST]\d?>(.*?)<T[st]\d?>))"_s,
            kAcrossLines);
        static const QRegularExpression psalmTitle(u"<TH>(.*?)<Th>"_s, kAcrossLines);
        m_words.remove(note);
        headings = takenOut(m_words, heading);
        titles = takenOut(m_words, psalmTitle);
    }

    QString words() const { return m_words; }

    QStringList headings;
    QStringList titles; ///< of a Psalm

private:
    QString m_words;
};

// Walks over a module from its first entry to its last and makes verses of them.
class SwordWalk
{
public:
    SwordWalk(sword::SWModule& module, const SwordConf& conf, QString confFile)
        : m_module(module), m_conf(conf), m_confFile(std::move(confFile))
    {
    }

    VersionResult run();

private:
    std::optional<Failure> readIndex(sword::VerseKey& key);
    std::optional<Failure> checkConf() const;
    void visit(sword::VerseKey& key);
    void visitBook(const char* id);
    void visitIntroduction(const QString& entry);
    bool isLinkedToTheOneBefore(const sword::VerseKey& key, const QByteArray& entry) const;
    void visitVerse(const sword::VerseKey& key, const QByteArray& entry);
    void takeOtherMarkup(const QByteArray& entry, VerseText& verse);
    std::optional<QString> plain(const QByteArray& entry) const;
    void checkEntry(const sword::VerseKey& key, const QByteArray& entry);
    void noteHoles();
    void dropBooksAndChaptersWithoutText(VersionText& version) const;

    sword::SWModule& m_module;
    SwordConf m_conf;
    QString m_confFile;
    std::array<SwordTestament, 2> m_index;
    OsisCollector m_collector;
    VersionText m_version;
    std::optional<Failure> m_failure;
    QByteArray m_bookId;
    std::optional<int> m_book;
    QByteArray m_entryBefore;
    QStringList m_unknownBooks;
    std::set<std::pair<int, int>> m_chaptersWithText;
};

VersionResult SwordWalk::run()
{
    const std::unique_ptr<sword::SWKey> made(m_module.createKey());
    auto* key = dynamic_cast<sword::VerseKey*>(made.get());
    if (!key)
        return sourceFailure(m_confFile, 0, u"성경 본문 모듈이 아닙니다."_s);
    key->setIntros(true);
    if (auto failure = readIndex(*key))
        return *failure;
    if (auto failure = checkConf())
        return *failure;
    key->setPersist(true);
    m_module.setSkipConsecutiveLinks(false);
    m_module.setKey(*key);
    for (key->setPosition(sword::TOP); !key->popError() && !m_failure; key->increment())
        visit(*key);
    m_module.setKey("");
    if (m_failure)
        return *m_failure;
    if (!m_unknownBooks.isEmpty())
        m_version.remarks << leftOutBooks(m_unknownBooks);
    noteHoles();
    dropBooksAndChaptersWithoutText(m_version);
    return std::move(m_version);
}

// What the numbering has room for tells how long the index of each testament must be.
std::optional<Failure> SwordWalk::readIndex(sword::VerseKey& key)
{
    std::array<std::vector<bool>, 2> isCanonVerse;
    for (key.setPosition(sword::TOP); !key.popError(); key.increment()) {
        const int testament = key.getTestament();
        if (testament < 1 || testament > 2)
            continue;
        auto& places = isCanonVerse[static_cast<std::size_t>(testament - 1)];
        places.resize(static_cast<std::size_t>(key.getTestamentIndex()) + 1, false);
        places.back() = key.getBook() > 0 && key.getChapter() > 0 && key.getVerse() > 0 &&
                        BookNames::fromOsis(QString::fromLatin1(key.getOSISBookName()));
    }
    int lost = 0;
    for (const std::size_t testament : {0U, 1U}) {
        auto index = SwordTestament::read(m_conf.layout, testament == 0 ? u"ot"_s : u"nt"_s,
                                          isCanonVerse[testament].size());
        if (!index)
            return index.failure();
        lost += index.value().lostPieces(isCanonVerse[testament]);
        m_index[testament] = std::move(index.value());
    }
    if (lost > 0)
        m_version.losses << u"색인이 가리키지 않는 본문이 %1곳 있습니다."_s.arg(lost);
    return std::nullopt;
}

// A conf file that has lost a line looks like that of a text without mark-up or in Latin letters of
// one byte. The text itself tells when it is none.
std::optional<Failure> SwordWalk::checkConf() const
{
    constexpr int kMostByChance = 10;
    int withTags = 0;
    int inUtf8 = 0;
    bool isUtf8 = true;
    for (const SwordTestament& testament : m_index) {
        for (long place = 0; place < testament.places(); ++place) {
            const QByteArray text = testament.text(place);
            withTags += text.contains("</") || text.contains("/>") ? 1 : 0;
            if (std::ranges::all_of(text, [](char c) { return c >= 0; }))
                continue;
            QStringDecoder decoder(QStringDecoder::Utf8);
            const QString decoded = decoder(text);
            isUtf8 = isUtf8 && !decoder.hasError();
            ++inUtf8;
        }
    }
    if (m_conf.markup == Markup::None && withTags > kMostByChance)
        return sourceFailure(m_confFile, 0, u"SourceType이 없거나 본문과 다릅니다."_s);
    if (m_conf.encoding == Encoding::Latin1 && isUtf8 && inUtf8 > kMostByChance)
        return sourceFailure(m_confFile, 0, u"Encoding이 없거나 본문과 다릅니다."_s);
    return std::nullopt;
}

void SwordWalk::visitBook(const char* id)
{
    if (m_bookId == id)
        return;
    m_bookId = id;
    m_book = BookNames::fromOsis(QString::fromLatin1(id));
    m_entryBefore.clear();
    m_collector.reset();
}

void SwordWalk::visit(sword::VerseKey& key)
{
    if (key.getTestament() < 1 || key.getBook() < 1)
        return;
    visitBook(key.getOSISBookName());
    const QByteArray entry = m_module.getRawEntry();
    if (!m_book) {
        const QString id = QString::fromLatin1(m_bookId);
        if (!entry.isEmpty() && key.getVerse() > 0 && !m_unknownBooks.contains(id))
            m_unknownBooks << id;
        return;
    }
    checkEntry(key, entry);
    if (key.getChapter() < 1)
        return;
    if (key.getVerse() < 1)
        visitIntroduction(QString::fromUtf8(entry));
    else
        visitVerse(key, entry);
}

// The library gives nothing, or signs that are no text, where it can't read what the index has.
void SwordWalk::checkEntry(const sword::VerseKey& key, const QByteArray& entry)
{
    const auto testament = static_cast<std::size_t>(key.getTestament() - 1);
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(entry);
    const bool isText = m_conf.encoding != Encoding::Utf8 || !decoder.hasError();
    if (isText && entry.isEmpty() != m_index[testament].hasText(key.getTestamentIndex()))
        return;
    m_failure = sourceFailure(m_confFile, 0,
                              u"%1 %2:%3의 본문이 손상되었습니다."_s.arg(bookName(*m_book))
                                  .arg(key.getChapter())
                                  .arg(key.getVerse()));
}

void SwordWalk::visitIntroduction(const QString& entry)
{
    m_collector.reset();
    if (m_conf.markup != Markup::Osis)
        return;
    scanMarkup(entry, m_collector);
    // With words of its own it is an introduction, and its titles are that text's.
    if (m_collector.hasWords())
        m_collector.reset();
    else
        m_collector.dropWords();
}

// Equal text alone is not enough: some verses do repeat the one before.
bool SwordWalk::isLinkedToTheOneBefore(const sword::VerseKey& key, const QByteArray& entry) const
{
    if (entry.isEmpty() || entry != m_entryBefore)
        return false;
    sword::VerseKey before(key);
    before.decrement();
    return m_module.isLinked(&before, &key);
}

void SwordWalk::visitVerse(const sword::VerseKey& key, const QByteArray& entry)
{
    VerseText verse{*m_book, key.getChapter(), key.getVerse(), {}, {}, {}};
    const bool linked = isLinkedToTheOneBefore(key, entry);
    m_entryBefore = entry;
    if (m_conf.markup == Markup::Osis) {
        if (!linked)
            scanMarkup(QString::fromUtf8(entry), m_collector);
        m_collector.takeVerse(verse);
    } else if (!linked && m_conf.markup == Markup::Other) {
        takeOtherMarkup(entry, verse);
    } else if (!linked) {
        verse.text = plain(entry);
    }
    if (verse.text)
        m_chaptersWithText.insert({verse.book, verse.chapter});
    m_version.verses.push_back(std::move(verse));
}

void SwordWalk::takeOtherMarkup(const QByteArray& entry, VerseText& verse)
{
    const OtherMarkup markup(entry);
    for (const QString& heading : markup.headings)
        addHeading(verse.miniTitle, plain(heading.toUtf8()).value_or(QString()));
    verse.part = plain(markup.titles.join(u' ').toUtf8());
    verse.text = plain(markup.words().toUtf8());
}

std::optional<QString> SwordWalk::plain(const QByteArray& entry) const
{
    return textOrNothing(QString::fromUtf8(m_module.stripText(entry.constData())));
}

// A chapter that the numbering has and that is empty amid a book with words.
void SwordWalk::noteHoles()
{
    std::set<std::pair<int, int>> empty;
    std::set<int> books;
    for (const auto& [book, chapter] : m_chaptersWithText)
        books.insert(book);
    for (const VerseText& verse : m_version.verses)
        if (books.contains(verse.book) && verse.chapter <= chapterCount(verse.book) &&
            !m_chaptersWithText.contains({verse.book, verse.chapter}))
            empty.insert({verse.book, verse.chapter});
    for (const auto& [book, chapter] : empty)
        m_version.losses << u"%1 %2장에 본문이 없습니다."_s.arg(bookName(book)).arg(chapter);
}

// The numbering has places for verses that a module of one testament or one book never fills.
void SwordWalk::dropBooksAndChaptersWithoutText(VersionText& version) const
{
    std::erase_if(version.verses, [this](const VerseText& verse) {
        return !m_chaptersWithText.contains({verse.book, verse.chapter});
    });
}

VersionResult readOpened(sword::SWMgr& manager, const SwordModule& source)
{
    const QString confFile = swordConfFile(source);
    sword::SWModule* module = manager.getModule(source.name.toUtf8().constData());
    if (!module)
        return sourceFailure(confFile, 0, u"SWORD 모듈을 열 수 없습니다."_s);
    const char* cipher = module->getConfigEntry("CipherKey");
    if (cipher && *cipher == '\0')
        return sourceFailure(confFile, 0, u"잠긴 모듈입니다. 열쇠가 없습니다."_s);
    if (qstrcmp(module->getType(), "Biblical Texts") != 0)
        return sourceFailure(confFile, 0, u"성경 본문 모듈이 아닙니다."_s);
    const auto conf = readConf(*module, confFile);
    if (!conf)
        return conf.failure();
    VersionResult version = SwordWalk(*module, conf.value(), confFile).run();
    if (version && version.value().verses.empty())
        return sourceFailure(confFile, 0, u"읽을 수 있는 절이 없습니다."_s);
    return version;
}

} // namespace

SwordModule swordModuleOf(const QString& confFile)
{
    QFile file(confFile);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QDir folder = QFileInfo(confFile).absoluteDir();
    folder.cdUp();
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString& line : lines) {
        const QString head = line.trimmed();
        if (head.startsWith(u'[') && head.endsWith(u']'))
            return {folder.absolutePath(), head.sliced(1, head.size() - 2)};
    }
    return {folder.absolutePath(), {}};
}

QString swordConfFile(const SwordModule& module)
{
    const QDir folder(module.root + u"/mods.d"_s);
    const QStringList names = folder.entryList({u"*.conf"_s}, QDir::Files);
    for (const QString& name : names)
        if (swordModuleOf(folder.filePath(name)).name == module.name)
            return folder.filePath(name);
    return {};
}

QStringList swordFiles(const SwordModule& module)
{
    const QString conf = swordConfFile(module);
    if (conf.isEmpty())
        return {};
    QStringList files{conf};
    const QString data = QDir::cleanPath(module.root + u'/' + confValue(conf, u"DataPath"));
    QDirIterator walk(QFileInfo(data).isDir() ? data : QFileInfo(data).absolutePath(), QDir::Files);
    while (walk.hasNext())
        files << walk.next();
    files.sort();
    return files;
}

VersionResult readSwordModule(const SwordModule& module)
{
    static std::mutex oneAtATime;
    const std::lock_guard lock(oneAtATime);
    if (swordConfFile(module).isEmpty())
        return missingSource(module.root + u"/mods.d: "_s + module.name);
    sword::SWMgr manager(QFile::encodeName(module.root).constData(), true,
                         new sword::MarkupFilterMgr(sword::FMT_PLAIN, sword::ENC_UTF8), false,
                         false);
    return readOpened(manager, module);
}

} // namespace lumen
