// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"
#include "recipes/reference_recipes.h"
#include "recipes/user_sources.h"
#include "reference/module_builder.h"
#include "text/field_scramble.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QtEndian>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

/// A note that sounds, in quarters from the beginning.
struct Sound
{
    int pitch = 0;
    double begin = 0;

    friend bool operator==(const Sound&, const Sound&) = default;
};

/// Reads the one track of a MIDI file of format 0, and fails on anything that a player would trip
/// over.
class MidiReader
{
public:
    explicit MidiReader(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        m_bytes = file.readAll();
    }

    std::vector<Sound> read()
    {
        EXPECT_TRUE(m_bytes.startsWith(QByteArray("MThd\0\0\0\6\0\0\0\1", 12)));
        m_division = qFromBigEndian<quint16>(m_bytes.constData() + 12);
        EXPECT_EQ(m_bytes.mid(14, 4), "MTrk");
        EXPECT_EQ(qFromBigEndian<quint32>(m_bytes.constData() + 18), m_bytes.size() - 22);
        m_at = 22;
        while (!m_ended && m_at < m_bytes.size())
            readEvent();
        EXPECT_TRUE(m_ended);
        EXPECT_EQ(m_at, m_bytes.size());
        EXPECT_EQ(m_sounding, 0);
        return m_sounds;
    }
    double quarters() const { return static_cast<double>(m_time) / m_division; }

private:
    int byte() { return static_cast<unsigned char>(m_bytes.at(m_at++)); }
    int variable()
    {
        int value = 0;
        for (int next = 0x80; (next & 0x80) != 0;) {
            next = byte();
            value = value << 7 | (next & 0x7F);
        }
        return value;
    }
    void readEvent()
    {
        m_time += variable();
        const int status = byte();
        if (status == 0xFF) {
            m_ended = byte() == 0x2F;
            m_at += variable();
        } else if (status == 0xC0) {
            byte();
        } else if (status == 0x90) {
            EXPECT_EQ(m_sounding, 0) << "one voice";
            m_sounding = byte();
            m_sounds.push_back({m_sounding, quarters()});
            EXPECT_GT(byte(), 0);
        } else {
            ASSERT_EQ(status, 0x80);
            EXPECT_EQ(byte(), m_sounding);
            m_sounding = byte();
        }
    }

    QByteArray m_bytes;
    qsizetype m_at = 0;
    int m_division = 1;
    int m_time = 0;
    int m_sounding = 0;
    bool m_ended = false;
    std::vector<Sound> m_sounds;
};

class HymnalModuleTest : public testing::Test
{
protected:
    /// Builds of the tables that the folder of a user holds, or of those that come with us.
    ModuleOutcome build(Supply supply)
    {
        SourceFolders folders;
        folders.content = files.path(u"content"_s);
        ReferenceSources sources = installedReferences(folders);
        if (supply == Supply::Own)
            takeOwnFiles(findUserSources(files.path(u"own"_s)), sources);
        OriginalCorpus none({});
        for (const ReferenceTask& task : referenceTasks(none, sources))
            if (task.file == u"z201"_s)
                return buildModule(task, files.path(u"Data"_s), [](double) { return true; });
        return {};
    }
    ModuleOutcome buildOwn(const QString& hymns, const QString& tunes)
    {
        files.write(u"own/hymns.tsv"_s, hymns);
        files.write(u"own/tunes.tsv"_s, tunes);
        return build(Supply::Own);
    }
    QStringList titles() const
    {
        QStringList result;
        for (const QVariantList& row :
             storeRows(files.path(u"Data/z201.dts"_s), u"select Num, Title from Hymm"_s))
            result << row[0].toString() + u' ' + DES::UnscrambleField(row[1].toString());
        return result;
    }
    QStringList tuneNames() const { return QDir(files.path(u"Hymn"_s)).entryList(QDir::Files); }

    SourceFiles files;

    void SetUp() override { QDir().mkpath(files.path(u"Data"_s)); }
};

const QString kHymns = u"# 형식\n7\t첫 노래\t지은 이\t\t갈래\t9\t시23;요3:16-17\t가 나 / 다 // 라\n"
                       "9\t둘째 노래\n"_s;
const QString kTunes = u"7\t3/4\t100\tC4:1 | F#4:1.5 Bb3:0.5 R:1 |\n"
                       "7\t3/4\t100\tE5:3 | +E5:1 +D5:1\n"_s;

TEST_F(HymnalModuleTest, TablesBecomeAModuleAndTunes)
{
    const ModuleOutcome outcome = buildOwn(kHymns, kTunes);
    ASSERT_EQ(outcome.state, ModuleState::Built) << outcome.problem.toStdString();
    EXPECT_EQ(outcome.report.facts.join(u' '), u"2행 가락 1"_s);
    const QString module = files.path(u"Data/z201.dts"_s);
    const auto first = storeRows(module, u"select * from Hymm where Num = 7"_s);
    QStringList fields;
    for (const QVariant& field : first.front())
        fields << (field.isNull() ? u"Null"_s : DES::UnscrambleField(field.toString()));
    fields.removeFirst();
    EXPECT_EQ(fields, (QStringList{u"첫 노래"_s, u"가 나\r\n다\r\n\r\n라"_s, u"지은 이"_s,
                                   u"Null"_s, u"갈래"_s, u"9"_s, u"시23;요3:16-17"_s}));
    const auto second = storeRows(module, u"select cont from Hymm where Num = 9"_s);
    EXPECT_FALSE(second.front().front().isNull()) << "a hymn without words is shown all the same";

    MidiReader midi(files.path(u"Hymn/7.mid"_s));
    EXPECT_EQ(midi.read(), (std::vector<Sound>{{60, 0}, {66, 1}, {58, 2.5}, {76, 4}, {74, 8}}));
    EXPECT_EQ(midi.quarters(), 10);
}

TEST_F(HymnalModuleTest, BadLinesAreToldAndWhatWasThereStays)
{
    ASSERT_EQ(buildOwn(kHymns, kTunes).state, ModuleState::Built);
    struct Row
    {
        QString hymns;
        QString tunes;
        QString problem; ///< behind the table's name
    };
    const Row rows[] = {
        {u"0\t영\n559\t위\n3\t가\n3\t나\n4\t\n"_s, kTunes,
         u"hymns.tsv:1: 장이 1부터 558까지의 수가 아님: 0\n"
         "hymns.tsv:2: 장이 1부터 558까지의 수가 아님: 559\n"
         "hymns.tsv:4: 3장이 앞에도 있음\nhymns.tsv:5: 제목이 없음"_s},
        {u"7\t가\t\t\t\t8\t시151;요한3:16;창1:32;유1:3-2\n"_s, kTunes,
         u"hymns.tsv:1: 관련 찬송이 없음: 8\nhymns.tsv:1: 관련 성구가 없음: 시151\n"
         "hymns.tsv:1: 관련 성구가 없음: 요한3:16\nhymns.tsv:1: 관련 성구가 없음: 창1:32\n"
         "hymns.tsv:1: 관련 성구가 없음: 유1:3-2"_s},
        {u"9\t가\n"_s, kTunes, u"tunes.tsv:1: 찬송가에 없는 장: 7"_s},
        {kHymns, u"7\t3/4\t100\tH4:1 C4 +R:1 C4:0 | C4:2\n"_s,
         u"tunes.tsv:1: 음이 아님: H4:1\ntunes.tsv:1: 음이 아님: C4\n"
         "tunes.tsv:1: 음이 아님: +R:1\ntunes.tsv:1: 음이 아님: C4:0"_s},
        {kHymns, u"7\t3/4\t100\tC4:1 | C4:2 | C4:4\n"_s,
         u"tunes.tsv:1: 7장의 2째 마디가 3박이 아니라 2박임 (4분음표로)\n"
         "tunes.tsv:1: 7장의 3째 마디가 3박이 아니라 4박임 (4분음표로)\n"
         "tunes.tsv:1: 7장의 첫 마디와 끝 마디가 한 마디를 이루지 못함"_s},
        {kHymns, u"x\t3/4\t100\tC4:3\n7\t3\t100\tC4:3\n9\t3/4\t0\tC4:3\n"_s,
         u"tunes.tsv:1: 장이 수가 아님: x\ntunes.tsv:2: 박자가 아님: 3\n"
         "tunes.tsv:3: 빠르기가 20부터 300까지의 수가 아님: 0"_s},
        {kHymns, u"7\t6/8\t60\tC4:3 |\n7\t3/4\t60\tC4:3 |\n9\t3/4\t60\tC4:3\n7\t6/8\t60\tC4:3\n"_s,
         u"tunes.tsv:2: 박자와 빠르기가 같은 곡의 앞줄과 다름\n"
         "tunes.tsv:4: 7장의 가락이 앞에도 있음"_s},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.problem.toStdString());
        const ModuleOutcome outcome = buildOwn(row.hymns, row.tunes);
        EXPECT_EQ(outcome.state, ModuleState::Failed);
        EXPECT_EQ(QString(outcome.problem).remove(files.path(u"own/"_s)), row.problem);
        EXPECT_EQ(titles(), (QStringList{u"7 첫 노래"_s, u"9 둘째 노래"_s}));
        EXPECT_EQ(tuneNames(), QStringList{u"7.mid"_s});
    }
}

TEST_F(HymnalModuleTest, TunesFollowTheHymnalAndAUsersOwnFilesStay)
{
    files.write(u"Hymn/9.mid"_s, QByteArray("MThd by the user"));
    ASSERT_EQ(buildOwn(kHymns, kTunes).state, ModuleState::Built);
    ASSERT_TRUE(QFile::remove(files.path(u"Hymn/7.mid"_s)));
    EXPECT_EQ(build(Supply::Own).state, ModuleState::Built) << "a tune is missing";
    EXPECT_EQ(build(Supply::Own).state, ModuleState::UpToDate);

    const ModuleOutcome outcome = buildOwn(kHymns, u"9\t3/4\t100\tC4:3\n"_s);
    EXPECT_EQ(outcome.state, ModuleState::Built);
    EXPECT_EQ(outcome.report.details.size(), 1);
    EXPECT_EQ(tuneNames(), QStringList{u"9.mid"_s});
    EXPECT_EQ(QFile(files.path(u"Hymn/9.mid"_s)).size(), 16);
}

TEST_F(HymnalModuleTest, AUsersHymnalIsNotReplacedByOurs)
{
    files.write(u"content/hymns/hymns.tsv"_s, u"1\t우리 것\n"_s);
    files.write(u"content/hymns/tunes.tsv"_s, u"1\t3/4\t100\tC4:3\n"_s);
    EXPECT_EQ(build(Supply::Installed).state, ModuleState::Built);
    EXPECT_EQ(titles(), QStringList{u"1 우리 것"_s});
    EXPECT_EQ(buildOwn(kHymns, kTunes).state, ModuleState::Built);
    EXPECT_EQ(build(Supply::Installed).state, ModuleState::UpToDate);
    EXPECT_EQ(titles().size(), 2);
    EXPECT_EQ(tuneNames(), QStringList{u"7.mid"_s});
}

} // namespace
} // namespace lumen
