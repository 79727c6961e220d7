// SPDX-License-Identifier: GPL-2.0-or-later
#include "recipes/version_task.h"

#include "canon/canon_table.h"
#include "canon/verse_index.h"
#include "recipes/loss_check.h"
#include "reference/module_stamp.h"
#include "sources/user_places.h"
#include "sources/user_table.h"
#include "text/field_scramble.h"

#include <QFileInfo>
#include <QHash>
#include <QLocale>
#include <QVariant>

#include <algorithm>
#include <mutex>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

// Reading takes about this share of the time that a module needs.
constexpr double kReadShare = 0.4;
constexpr int kKeyLength = 20;
constexpr int kChapterKeyLength = 10;
constexpr int kCodeLength = 2;

TableSchema versionTable(const QString& name)
{
    return {name,
            {{.name = u"index"_s, .size = kKeyLength, .required = true},
             {u"Chap"_s, FieldType::Text, kChapterKeyLength},
             {u"Verse"_s, FieldType::Short},
             {u"Cont"_s, FieldType::Memo},
             {u"part"_s, FieldType::Memo},
             {u"miniTitle"_s, FieldType::Memo},
             {u"Testa"_s, FieldType::Text, kCodeLength},
             {u"Category"_s, FieldType::Text, kCodeLength}},
            {{u"index"_s, {u"index"_s}, true}, {u"Chap"_s, {u"Chap"_s}}}};
}

// A null QString would be bound as Null, and "" is no Null.
QVariant text(const QString& value)
{
    return value.isNull() ? QVariant(u""_s) : QVariant(value);
}

// Windows set the piece before a verse directly in front of its words.
QVariant partOf(const VerseText& verse)
{
    if (!verse.part)
        return {};
    return verse.part->endsWith(u' ') ? *verse.part : *verse.part + u' ';
}

QVariant orNull(const QString& value)
{
    return value.isEmpty() ? QVariant() : QVariant(value);
}

QVariantList versionRow(const VerseText& verse)
{
    return {BibleCode::verseKey(verse.book, verse.chapter, verse.verse),
            BibleCode::GetChapKey(verse.book, verse.chapter),
            verse.verse,
            verse.text ? QVariant(DES::ScrambleField(*verse.text)) : QVariant(),
            partOf(verse),
            text(verse.miniTitle),
            testament(verse.book),
            orNull(bookGroup(verse.book))};
}

QString grouped(int number)
{
    return QLocale(QLocale::Korean).toString(number);
}

ModuleReport reportOf(const VersionText& version, Numbering numbering)
{
    const CanonCheck check = checkAgainstCanon(version, numbering);
    const auto& verses = version.verses;
    const auto parts = std::ranges::count_if(verses, [](const VerseText& v) { return !!v.part; });
    const auto headings =
        std::ranges::count_if(verses, [](const VerseText& v) { return !v.miniTitle.isEmpty(); });
    ModuleReport report;
    report.facts << grouped(check.rows) + u"절"_s;
    if (check.withoutWords > 0)
        report.facts << u"본문 없음 %1"_s.arg(grouped(check.withoutWords));
    if (check.absentBooks > 0)
        report.facts << u"없는 책 %1권"_s.arg(check.absentBooks);
    if (check.missing > 0)
        report.facts << u"정경에 있으나 없는 절 %1"_s.arg(grouped(check.missing));
    if (check.beyond > 0)
        report.facts << u"정경 밖의 절 %1"_s.arg(grouped(check.beyond));
    if (parts > 0)
        report.facts << u"표제 %1"_s.arg(grouped(static_cast<int>(parts)));
    if (headings > 0)
        report.facts << u"소제목 %1"_s.arg(grouped(static_cast<int>(headings)));
    report.details = check.deviations + version.remarks;
    return report;
}

// A source with headings of its own keeps them.
std::optional<Failure> addHeadings(const QString& file, VersionText& version)
{
    const bool hasOwn = std::ranges::any_of(
        version.verses, [](const VerseText& verse) { return !verse.miniTitle.isEmpty(); });
    if (hasOwn || !QFileInfo::exists(file))
        return std::nullopt;
    const auto lines = readUserTable(file, {{u"절"_s, u"소제목"_s}, 2});
    if (!lines)
        return lines.failure();
    TableFaults faults(file);
    QHash<QString, QString> headings;
    for (const TableLine& line : lines.value()) {
        if (const auto key = UserPlaces::verseKey(line.cells[0]))
            headings.insert(*key, line.cells[1]);
        else
            faults.add(line.number, u"성경에 없는 절임: %1"_s.arg(line.cells[0]));
    }
    if (!faults.isEmpty())
        return faults.failure();
    for (VerseText& verse : version.verses)
        verse.miniTitle =
            headings.value(BibleCode::verseKey(verse.book, verse.chapter, verse.verse));
    return std::nullopt;
}

QString refusal(const QStringList& losses, const QString& former)
{
    QString text = losses.join(u' ');
    if (QFileInfo::exists(former))
        text += u" 전의 모듈은 그대로 두었습니다."_s;
    return text + u" 그래도 만들려면 --accept-loss를 주십시오."_s;
}

} // namespace

/// The text of a task and of its copies, once it was read.
struct VersionTask::HeldText
{
    std::mutex mutex;
    std::shared_ptr<const VersionResult> text;
};

void VersionTask::setCode(int code)
{
    m_code = code;
    file = QString::number(code);
}

bool VersionTask::sourcesAreThere() const
{
    return sourceIsThere(source);
}

QString VersionTask::stamp() const
{
    return stampOf(
        u"%1\n%2\n%3\n%4\n%5\n"_s.arg(kBuilderVersion).arg(m_code).arg(name, ownMapping, origin) +
        sourceStamp(source) +
        (QFileInfo::exists(headings) ? sourceStamp({SourceFormat::Usfm, {headings}, {}})
                                     : QString()));
}

void VersionTask::shareText()
{
    m_shared = std::make_shared<HeldText>();
}

std::shared_ptr<const VersionResult> VersionTask::text() const
{
    if (!m_shared)
        return std::make_shared<const VersionResult>(readText());
    const std::scoped_lock lock(m_shared->mutex);
    if (!m_shared->text)
        m_shared->text = std::make_shared<const VersionResult>(readText());
    return m_shared->text;
}

VersionResult VersionTask::readText() const
{
    VersionResult read = reader ? reader() : readSource(source);
    if (!read)
        return read;
    VersionText& version = read.value();
    for (const Mend mend : mends)
        mend(version);
    if (!ownMapping.isEmpty()) {
        const auto renumbered = renumberVerses(version, ownMapping, englishMapping, psalmNumbers);
        if (!renumbered)
            return renumbered.failure();
    }
    arrangeVerses(version);
    if (auto failure = addHeadings(headings, version))
        return *failure;
    return read;
}

Result<Done> VersionTask::build(const BuildContext& context, ModuleStore& store,
                                ModuleReport& report) const
{
    const auto read = text();
    if (!read->ok())
        return read->failure();
    const VersionText& version = read->value();
    report = reportOf(version, numbering);
    const QStringList losses = lossesOf(version, *this, context.former);
    report.details << losses;
    if (!losses.isEmpty() && !context.mode.acceptLosses)
        return Failure{FailureKind::Damaged, refusal(losses, context.former)};
    return writeVersion(store, name, version);
}

Result<Done> writeVersion(ModuleStore& store, const QString& table, const VersionText& version)
{
    store.expect(version.verses.size(), kReadShare);
    store.createTable(versionTable(table));
    for (const VerseText& verse : version.verses)
        if (!store.addRow(table, versionRow(verse)))
            return Failure{FailureKind::Cancelled, {}};
    return Done{};
}

} // namespace lumen
