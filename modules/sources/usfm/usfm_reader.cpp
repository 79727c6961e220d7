// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/usfm/usfm_reader.h"

#include "canon/canon_table.h"
#include "sources/book_names.h"
#include "sources/fault_texts.h"
#include "sources/text_cleaning.h"
#include "sources/usfm/usfm_tokens.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringDecoder>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

// Where the text behind the markers goes.
enum class Target { Nothing, Verse, Heading, Speaker, Title };

// Reads one book and puts its verses behind those of the version.
class UsfmBook
{
public:
    UsfmBook(QString fileName, VersionText& version)
        : m_fileName(std::move(fileName)), m_version(version)
    {
    }

    std::optional<Failure> read(const std::vector<UsfmToken>& tokens);

private:
    bool take(const UsfmToken& token);
    bool takeBook(const UsfmToken& token);
    bool takeChapter(const UsfmToken& token);
    struct Numbers
    {
        int first = 0;
        int last = 0;         ///< of a bridge
        qsizetype length = 0; ///< of the text that they take
    };

    bool takeVerse(const UsfmToken& token);
    static std::optional<Numbers> readNumbers(const QString& text);
    void tellOddVerse(const UsfmToken& token);
    bool takeNote(const UsfmToken& token);
    bool endsNote(UsfmKind kind) const;
    void takeCharacters(const UsfmToken& token, UsfmKind kind);
    void startLine(Target target, const QString& text);
    void append(const QString& text);
    void endLine();
    void settlePending();
    void settleTitle();
    void finishVerse();
    bool fail(int line, const QString& reason);

    QString m_fileName;
    VersionText& m_version;
    std::optional<Failure> m_failure;
    bool m_begun = false;
    std::optional<int> m_book;
    int m_chapter = 0;
    std::optional<VerseText> m_verse;
    int m_lastOfBridge = 0;
    QString m_words;
    Target m_target = Target::Nothing;
    QString m_line;           ///< of the open heading or title
    QString m_pendingHeading; ///< for the verse to come
    QString m_pendingSpeaker;
    QString m_pendingTitle;
    QString m_note; ///< the marker of the open note
    int m_noteLine = 0;
    int m_openStyles = 0;
};

bool UsfmBook::fail(int line, const QString& reason)
{
    m_failure = sourceFailure(m_fileName, line, reason);
    return false;
}

std::optional<Failure> UsfmBook::read(const std::vector<UsfmToken>& tokens)
{
    for (const UsfmToken& token : tokens)
        if (!take(token))
            return m_failure;
    if (!m_note.isEmpty())
        fail(m_noteLine, u"닫히지 않은 표지입니다: \\%1"_s.arg(m_note));
    if (!m_begun && !m_failure)
        fail(1, u"\\id가 없습니다."_s);
    endLine();
    settleTitle();
    finishVerse();
    return m_failure;
}

// False ends the reading: after a failure, or where the book is none of the canon.
bool UsfmBook::take(const UsfmToken& token)
{
    const UsfmKind kind = usfmKind(token.marker);
    if (!m_note.isEmpty() || kind == UsfmKind::Note)
        return takeNote(token);
    switch (kind) {
    case UsfmKind::Book:
        return takeBook(token);
    case UsfmKind::Chapter:
        return takeChapter(token);
    case UsfmKind::Verse:
        return takeVerse(token);
    case UsfmKind::Paragraph:
        startLine(Target::Verse, u' ' + token.text);
        return true;
    case UsfmKind::Heading:
        startLine(Target::Heading, token.text);
        return true;
    case UsfmKind::Speaker:
        startLine(Target::Speaker, token.text);
        return true;
    case UsfmKind::Title:
        startLine(Target::Title, token.text);
        return true;
    case UsfmKind::PassedLine:
        startLine(Target::Nothing, {});
        return true;
    default:
        takeCharacters(token, kind);
        return true;
    }
}

bool UsfmBook::takeBook(const UsfmToken& token)
{
    if (m_begun)
        return fail(token.line, u"한 파일에 \\id가 두 번 나옵니다."_s);
    m_begun = true;
    const QString id = token.text.trimmed().left(3).toUpper();
    m_book = BookNames::fromUsfm(id);
    if (m_book)
        return true;
    if (BookNames::isOutsideCanon(id))
        m_version.remarks << leftOutBooks({id});
    else if (!BookNames::isNoBook(id))
        return fail(token.line, u"알 수 없는 책입니다: \\id %1"_s.arg(id));
    return false;
}

bool UsfmBook::takeChapter(const UsfmToken& token)
{
    if (!m_begun)
        return fail(token.line, u"\\id보다 앞에 \\c가 있습니다."_s);
    endLine();
    settleTitle(); // one behind the last verse is no title of the next chapter
    finishVerse();
    static const QRegularExpression number(uR"(^\s*(\d+)\s*$)"_s);
    const auto match = number.match(token.text);
    m_chapter = match.captured(1).toInt();
    if (m_chapter < 1)
        return fail(token.line, u"\\c 뒤에 장 번호가 없습니다: %1"_s.arg(token.text.trimmed()));
    m_openStyles = 0;
    return true;
}

// "3", "3a", "3-5", also "3,4" and "3." as some write; nothing without a number.
std::optional<UsfmBook::Numbers> UsfmBook::readNumbers(const QString& text)
{
    static const QRegularExpression form(
        uR"(^\s*(\d{1,3})(?!\d)(?:[a-z](?!\p{L}))?(?:(?:\s*[-\x{2013}\x{2014}]\s*|,)(\d{1,3})(?!\d)(?:[a-z](?!\p{L}))?)?[.:)]?)"_s);
    const auto match = form.match(text);
    Numbers numbers;
    numbers.first = match.captured(1).toInt();
    numbers.last = match.captured(2).isEmpty() ? numbers.first : match.captured(2).toInt();
    numbers.length = match.capturedLength();
    return numbers.first > 0 ? std::optional(numbers) : std::nullopt;
}

bool UsfmBook::takeVerse(const UsfmToken& token)
{
    if (m_chapter < 1)
        return fail(token.line, u"\\c보다 앞에 \\v가 있습니다."_s);
    auto numbers = readNumbers(token.text);
    if (!numbers || numbers->last < numbers->first) {
        tellOddVerse(token);
        if (!numbers && m_verse) {
            startLine(Target::Verse, u' ' + token.text);
            return true;
        }
        numbers = Numbers{numbers ? numbers->first : 1, 0, numbers ? numbers->length : 0};
    }
    endLine();
    finishVerse();
    m_verse = VerseText{*m_book, m_chapter, numbers->first, {}, {}, {}};
    m_lastOfBridge = numbers->last;
    settlePending();
    m_target = Target::Verse;
    m_openStyles = 0;
    append(token.text.mid(numbers->length));
    return true;
}

// One slip of a typist is no reason to be without the Bible: the words stay with the verse before.
void UsfmBook::tellOddVerse(const UsfmToken& token)
{
    m_version.remarks << u"%1:%2: 절 번호가 이상합니다: \\v %3"_s.arg(m_fileName)
                             .arg(token.line)
                             .arg(token.text.trimmed().left(20));
}

bool UsfmBook::endsNote(UsfmKind kind) const
{
    return kind == UsfmKind::Chapter || kind == UsfmKind::Verse || kind == UsfmKind::Book;
}

bool UsfmBook::takeNote(const UsfmToken& token)
{
    if (m_note.isEmpty()) {
        if (token.closing) {
            append(token.text);
            return true;
        }
        m_note = token.marker;
        m_noteLine = token.line;
        return true;
    }
    if (endsNote(usfmKind(token.marker)))
        return fail(m_noteLine, u"닫히지 않은 표지입니다: \\%1"_s.arg(m_note));
    if (token.closing && token.marker == m_note) {
        m_note.clear();
        append(token.text);
    }
    return true;
}

void UsfmBook::takeCharacters(const UsfmToken& token, UsfmKind kind)
{
    // A milestone, "\qt-s |sid="q1"\*", is all attributes; a lone "\*" ends it.
    if (token.marker.endsWith(u"-s"_s) || token.marker.endsWith(u"-e"_s))
        return;
    m_openStyles += token.closing ? -1 : 1;
    m_openStyles = std::max(m_openStyles, 0);
    QString text = token.text;
    if (m_openStyles > 0)
        text = text.left(text.indexOf(u'|') < 0 ? text.size() : text.indexOf(u'|'));
    append(kind == UsfmKind::DivineName && !token.closing ? divineCapitals(text) : text);
}

void UsfmBook::startLine(Target target, const QString& text)
{
    endLine();
    m_openStyles = 0;
    m_target = target;
    append(text);
}

void UsfmBook::append(const QString& text)
{
    if (m_target == Target::Nothing)
        return;
    if (m_target != Target::Verse) {
        m_line += text;
        return;
    }
    if (!m_verse)
        return;
    if (!text.trimmed().isEmpty())
        settlePending();
    m_words += text;
}

void UsfmBook::endLine()
{
    const QString line = tidyText(m_line.replace(u'~', u' '));
    m_line.clear();
    if (m_target == Target::Heading)
        addHeading(m_pendingHeading, line);
    else if (m_target == Target::Speaker)
        addHeading(m_pendingSpeaker, line);
    else if (m_target == Target::Title && !line.isEmpty())
        m_pendingTitle += m_pendingTitle.isEmpty() ? line : u' ' + line;
    m_target = Target::Nothing;
}

// Gives what was pending to the open verse: at its beginning, or when its words go on behind it.
void UsfmBook::settlePending()
{
    if (!m_verse)
        return;
    settleTitle();
    addHeading(m_verse->miniTitle, std::exchange(m_pendingHeading, {}));
    const QString speaker = std::exchange(m_pendingSpeaker, {});
    // Above the verse a speaker of its second half would speak the first one too.
    if (m_words.trimmed().isEmpty())
        addHeading(m_verse->miniTitle, speaker);
    else if (!speaker.isEmpty())
        m_version.remarks << u"절 가운데의 화자 표시를 뺐습니다: %1%2:%3 %4"_s
                                 .arg(bookAbbreviation(m_verse->book))
                                 .arg(m_verse->chapter)
                                 .arg(m_verse->verse)
                                 .arg(speaker);
}

// A title in the middle or at the end of a verse is read with its words.
void UsfmBook::settleTitle()
{
    const QString title = std::exchange(m_pendingTitle, {});
    if (!m_verse || title.isEmpty())
        return;
    if (m_words.trimmed().isEmpty())
        m_verse->part = title;
    else
        m_words += u' ' + title + u' ';
}

void UsfmBook::finishVerse()
{
    if (!m_verse)
        return;
    VerseText verse = std::move(*m_verse);
    m_verse.reset();
    verse.text = textOrNothing(m_words.replace(u"//"_s, u" "_s).replace(u'~', u' '));
    m_words.clear();
    const VerseText place = verse;
    m_version.verses.push_back(std::move(verse));
    for (int number = place.verse + 1; number <= m_lastOfBridge; ++number)
        m_version.verses.push_back({place.book, place.chapter, number, {}, {}, {}});
}

Result<QString> decodedFile(const QString& file)
{
    QFile device(file);
    const QString name = QFileInfo(file).fileName();
    if (!device.exists())
        return missingSource(file);
    if (!device.open(QIODevice::ReadOnly))
        return sourceFailure(name, 0, faultText(device));
    const QByteArray bytes = device.readAll();
    const auto encoding = QStringConverter::encodingForData(bytes);
    QStringDecoder decoder(encoding.value_or(QStringConverter::Utf8));
    const QString text = decoder(bytes);
    if (!decoder.hasError())
        return text;
    const qsizetype bad = text.indexOf(QChar::ReplacementCharacter);
    return sourceFailure(name, QStringView(text).left(bad).count(u'\n') + 1,
                         u"UTF-8이 아닌 글자가 있습니다."_s);
}

} // namespace

VersionResult readUsfmFiles(const QStringList& files)
{
    VersionText version;
    BookFiles books;
    for (const QString& file : files) {
        const auto text = decodedFile(file);
        if (!text)
            return text.failure();
        const std::size_t before = version.verses.size();
        UsfmBook book(QFileInfo(file).fileName(), version);
        if (auto failure = book.read(usfmTokens(text.value())))
            return *failure;
        if (auto failure = books.add(file, version, before))
            return *failure;
    }
    if (version.verses.empty())
        return sourceFailure(files.isEmpty() ? u"USFM"_s : files.first(), 0,
                             u"정경의 절이 하나도 없습니다."_s);
    return version;
}

} // namespace lumen
