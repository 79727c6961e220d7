// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/sword_reader.h"

#include "sources/book_names.h"
#include "sources/markup_scanner.h"
#include "sources/osis_collector.h"
#include "sources/text_cleaning.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <markupfiltmgr.h>
#include <memory>
#include <mutex>
#include <set>
#include <swmgr.h>
#include <swmodule.h>
#include <versekey.h>

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

// Walks over a module from its first entry to its last and makes verses of them.
class SwordWalk
{
public:
    explicit SwordWalk(sword::SWModule& module)
        : m_module(module), m_isOsis(qstricmp(module.getConfigEntry("SourceType"), "OSIS") == 0)
    {
    }

    VersionText run();

private:
    void visit(sword::VerseKey& key);
    void visitBook(const char* id);
    void visitIntroduction(const QString& entry);
    bool isLinkedToTheOneBefore(const sword::VerseKey& key, const QByteArray& entry) const;
    void visitVerse(const sword::VerseKey& key, const QByteArray& entry);
    void dropBooksAndChaptersWithoutText(VersionText& version) const;

    sword::SWModule& m_module;
    bool m_isOsis;
    OsisCollector m_collector;
    VersionText m_version;
    QByteArray m_bookId;
    std::optional<int> m_book;
    QByteArray m_entryBefore;
    QStringList m_unknownBooks;
    std::set<std::pair<int, int>> m_chaptersWithText;
};

VersionText SwordWalk::run()
{
    const std::unique_ptr<sword::SWKey> made(m_module.createKey());
    auto* key = dynamic_cast<sword::VerseKey*>(made.get());
    if (!key)
        return {};
    key->setIntros(true);
    key->setPersist(true);
    m_module.setSkipConsecutiveLinks(false);
    m_module.setKey(*key);
    for (key->setPosition(sword::TOP); !key->popError(); key->increment())
        visit(*key);
    m_module.setKey("");
    if (!m_unknownBooks.isEmpty())
        m_version.remarks << u"정경에 없는 책을 뺐습니다: %1"_s.arg(m_unknownBooks.join(u", "_s));
    dropBooksAndChaptersWithoutText(m_version);
    return std::move(m_version);
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
    if (key.getChapter() < 1)
        return;
    if (key.getVerse() < 1)
        visitIntroduction(QString::fromUtf8(entry));
    else
        visitVerse(key, entry);
}

void SwordWalk::visitIntroduction(const QString& entry)
{
    m_collector.reset();
    if (!m_isOsis)
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
    if (m_isOsis) {
        if (!linked)
            scanMarkup(QString::fromUtf8(entry), m_collector);
        m_collector.takeVerse(verse);
    } else if (!linked) {
        verse.text = textOrNothing(QString::fromUtf8(m_module.stripText()));
    }
    if (verse.text)
        m_chaptersWithText.insert({verse.book, verse.chapter});
    m_version.verses.push_back(std::move(verse));
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
    sword::SWModule* module = manager.getModule(source.name.toUtf8().constData());
    if (!module)
        return sourceFailure(swordConfFile(source), 0, u"SWORD 모듈을 열 수 없습니다."_s);
    const char* cipher = module->getConfigEntry("CipherKey");
    if (cipher && *cipher == '\0')
        return sourceFailure(swordConfFile(source), 0, u"잠긴 모듈입니다. 열쇠가 없습니다."_s);
    if (qstrcmp(module->getType(), "Biblical Texts") != 0)
        return sourceFailure(swordConfFile(source), 0, u"성경 본문 모듈이 아닙니다."_s);
    VersionText version = SwordWalk(*module).run();
    if (version.verses.empty())
        return sourceFailure(swordConfFile(source), 0, u"읽을 수 있는 절이 없습니다."_s);
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
