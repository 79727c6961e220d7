// SPDX-License-Identifier: GPL-2.0-or-later
#include "reference/tunes.h"

#include "sources/user_table.h"

#include <QHash>
#include <QRegularExpression>
#include <QtEndian>

#include <array>
#include <cmath>
#include <optional>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kSlowest = 20; // quarters a minute
constexpr int kFastest = 300;
constexpr int kShortestTick = 20; // a division of a triplet's sixteenth
constexpr int kLongestNote = 64;  // quarters
constexpr int kSemitones = 12;    // of an octave
constexpr int kMicrosecondsPerMinute = 60'000'000;
constexpr char kMaker[] = "lumen-modules"; // text event that tells our files
constexpr char kOrgan = 19;                // church organ, counted from 0
constexpr char kLoudness = 88;

// A note as it is written.
struct WrittenNote
{
    TuneNote note;
    bool goesOn = false;
};

std::optional<WrittenNote> noteOf(const QString& text)
{
    static const QRegularExpression form(
        uR"(^(\+?)(?:([A-G])([#b]?)([1-8])|R):(\d+(?:\.\d+)?)$)"_s);
    static const QHash<QChar, int> steps{{u'C', 0}, {u'D', 2}, {u'E', 4}, {u'F', 5},
                                         {u'G', 7}, {u'A', 9}, {u'B', 11}};
    const auto match = form.match(text);
    const double quarters = match.captured(5).toDouble();
    const int ticks = static_cast<int>(std::lround(quarters * kTicksPerQuarter));
    if (!match.hasMatch() || quarters > kLongestNote || ticks < kShortestTick)
        return std::nullopt;
    WrittenNote written{{0, ticks}, !match.captured(1).isEmpty()};
    if (match.captured(2).isEmpty())
        return written.goesOn ? std::nullopt : std::optional(written);
    const QString sign = match.captured(3);
    written.note.pitch = kSemitones * (match.captured(4).toInt() + 1) +
                         steps.value(match.captured(2).front()) +
                         (sign == u"#" ? 1 : (sign == u"b" ? -1 : 0));
    return written;
}

// Puts the lines of one table together, tune by tune.
class TuneReader
{
public:
    explicit TuneReader(const QString& file) : m_faults(file) {}

    void add(const TableLine& line);
    void endTune();
    Result<std::map<int, Tune>> take();

private:
    void begin(int number, const TableLine& line);
    void addNote(const QString& text, int line);
    void endBar(int line);
    void checkBars();

    struct Bar
    {
        int line = 0;
        int ticks = 0;
    };

    TableFaults m_faults;
    std::map<int, Tune> m_tunes;
    int m_number = 0;   ///< of the tune that is read, 0 for none
    QStringList m_head; ///< its metre and speed as written
    std::vector<Bar> m_bars;
    int m_ticks = 0;           ///< of the bar that isn't ended
    bool m_hasBadNote = false; ///< its bars can't add up
};

void TuneReader::add(const TableLine& line)
{
    const int number = line.cells[0].toInt();
    if (number != m_number || number == 0) {
        endTune();
        begin(number, line);
    } else if (line.cells.mid(1, 2) != m_head) {
        m_faults.add(line.number, u"박자와 빠르기가 같은 곡의 앞줄과 다름"_s);
    }
    if (m_number == 0)
        return;
    for (const QString& text : line.cells[3].split(u' ', Qt::SkipEmptyParts)) {
        if (text == u"|")
            endBar(line.number);
        else
            addNote(text, line.number);
    }
}

void TuneReader::begin(int number, const TableLine& line)
{
    static const QRegularExpression metre(u"^([1-9]\\d?)/([1248]|16)$"_s);
    const auto match = metre.match(line.cells[1]);
    const int speed = line.cells[2].toInt();
    if (number < 1)
        m_faults.add(line.number, u"장이 수가 아님: %1"_s.arg(line.cells[0]));
    else if (m_tunes.contains(number))
        m_faults.add(line.number, u"%1장의 가락이 앞에도 있음"_s.arg(number));
    else if (!match.hasMatch())
        m_faults.add(line.number, u"박자가 아님: %1"_s.arg(line.cells[1]));
    else if (speed < kSlowest || speed > kFastest)
        m_faults.add(line.number,
                     u"빠르기가 %1부터 %2까지의 수가 아님: %3"_s.arg(
                         QString::number(kSlowest), QString::number(kFastest), line.cells[2]));
    else {
        m_number = number;
        m_head = line.cells.mid(1, 2);
        m_tunes[number] = {
            line.number, match.captured(1).toInt(), match.captured(2).toInt(), speed, {}};
    }
}

void TuneReader::addNote(const QString& text, int line)
{
    std::vector<TuneNote>& notes = m_tunes[m_number].notes;
    const std::optional<WrittenNote> written = noteOf(text);
    if (!written || (written->goesOn && (notes.empty() || notes.back().pitch == 0))) {
        m_faults.add(line, u"음이 아님: %1"_s.arg(text));
        m_hasBadNote = true;
        return;
    }
    m_ticks += written->note.ticks;
    if (written->goesOn && notes.back().pitch == written->note.pitch)
        notes.back().ticks += written->note.ticks;
    else
        notes.push_back(written->note);
}

void TuneReader::endBar(int line)
{
    m_bars.push_back({line, m_ticks});
    m_ticks = 0;
}

void TuneReader::endTune()
{
    if (m_number == 0)
        return;
    if (m_ticks > 0 || m_bars.empty())
        endBar(m_bars.empty() ? m_tunes[m_number].line : m_bars.back().line);
    if (!m_hasBadNote)
        checkBars();
    m_bars.clear();
    m_ticks = 0;
    m_hasBadNote = false;
    m_number = 0;
}

// The first bar may be an upbeat, for whose length the last one is shorter.
void TuneReader::checkBars()
{
    const Tune& tune = m_tunes[m_number];
    const int whole = tune.beats * kTicksPerQuarter * 4 / tune.beatUnit;
    const auto quarters = [](int ticks) {
        return QString::number(static_cast<double>(ticks) / kTicksPerQuarter);
    };
    for (std::size_t i = 0; i < m_bars.size(); ++i) {
        const bool atEnd = i == 0 || i + 1 == m_bars.size();
        if (m_bars[i].ticks != whole && !(atEnd && m_bars[i].ticks < whole))
            m_faults.add(m_bars[i].line,
                         u"%1장의 %2째 마디가 %3박이 아니라 %4박임 (4분음표로)"_s.arg(
                             QString::number(m_number), QString::number(i + 1), quarters(whole),
                             quarters(m_bars[i].ticks)));
    }
    if (m_bars.size() > 1 && (m_bars.front().ticks + m_bars.back().ticks) % whole != 0)
        m_faults.add(m_bars.back().line,
                     u"%1장의 첫 마디와 끝 마디가 한 마디를 이루지 못함"_s.arg(m_number));
}

Result<std::map<int, Tune>> TuneReader::take()
{
    endTune();
    if (!m_faults.isEmpty())
        return m_faults.failure();
    return std::move(m_tunes);
}

template <typename T>
QByteArray bigEndian(T value)
{
    QByteArray bytes(sizeof value, 0);
    qToBigEndian(value, bytes.data());
    return bytes;
}

// A length of time as MIDI has it: seven bits a byte, the highest first.
QByteArray variableLength(int value)
{
    QByteArray bytes(1, static_cast<char>(value & 0x7F));
    while ((value >>= 7) > 0)
        bytes.prepend(static_cast<char>((value & 0x7F) | 0x80));
    return bytes;
}

QByteArray metaEvent(char type, const QByteArray& content)
{
    return QByteArray("\0\xFF", 2) + type + variableLength(static_cast<int>(content.size())) +
           content;
}

QByteArray head(const Tune& tune)
{
    constexpr char kText = 0x01;
    constexpr char kTempo = 0x51;
    constexpr char kMetre = 0x58;
    constexpr char kClocksPerBeat = 24;
    constexpr char kThirtySecondsPerQuarter = 8;
    const auto speed = static_cast<quint32>(kMicrosecondsPerMinute / tune.quartersPerMinute);
    const std::array<char, 4> metre{static_cast<char>(tune.beats),
                                    static_cast<char>(std::lround(std::log2(tune.beatUnit))),
                                    kClocksPerBeat, kThirtySecondsPerQuarter};
    return metaEvent(kText, kMaker) + metaEvent(kTempo, bigEndian(speed).mid(1)) +
           metaEvent(kMetre, QByteArray(metre.data(), metre.size())) + QByteArray("\0\xC0", 2) +
           kOrgan;
}

} // namespace

Result<std::map<int, Tune>> readTunes(const QString& file)
{
    const auto lines = readUserTable(file, {{u"장"_s, u"박자"_s, u"빠르기"_s, u"음"_s}, 4});
    if (!lines)
        return lines.failure();
    TuneReader reader(file);
    for (const TableLine& line : lines.value())
        reader.add(line);
    return reader.take();
}

QByteArray midiFile(const Tune& tune)
{
    constexpr int kBreath = kTicksPerQuarter / 16; // lets a repeated note be heard as two
    QByteArray track = head(tune);
    int silence = 0;
    for (const TuneNote& note : tune.notes) {
        if (note.pitch == 0) {
            silence += note.ticks;
            continue;
        }
        const int sound = note.ticks > 2 * kBreath ? note.ticks - kBreath : note.ticks;
        const auto pitch = static_cast<char>(note.pitch);
        track += variableLength(silence) + '\x90' + pitch + kLoudness + variableLength(sound) +
                 '\x80' + pitch + '\0';
        silence = note.ticks - sound;
    }
    constexpr char kEndOfTrack = 0x2F;
    track += variableLength(silence + kTicksPerQuarter) + metaEvent(kEndOfTrack, {}).mid(1);
    constexpr quint32 kHeadLength = 6;
    constexpr quint16 kFormat = 0;
    constexpr quint16 kTracks = 1;
    return "MThd" + bigEndian(kHeadLength) + bigEndian(kFormat) + bigEndian(kTracks) +
           bigEndian(static_cast<quint16>(kTicksPerQuarter)) + "MTrk" +
           bigEndian(static_cast<quint32>(track.size())) + track;
}

bool isOwnMidiFile(const QByteArray& content)
{
    return content.startsWith("MThd") && content.contains(kMaker);
}

} // namespace lumen
