// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/map_names.h"
#include "map/label_layout.h"
#include "map/land.h"
#include "map/map_painter.h"
#include "modules/source_files.h"
#include "recipes/reference_recipes.h"
#include "reference/module_builder.h"
#include "text/field_scramble.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

const QString kSheets = u"3\t첫 지도\t본문\t10,20\t12,23\n"_s;
const QString kPlaces = u"가 마을\t11,21\t성읍\t3:3\n나 바다\t11.5,22.5\t물\t3:1\n"_s;
const QString kLines =
    u"길\t3\t가는 길\t가_마을 11.2,21.5\n호수\t*\t못\t10.2,20.2 10.2,20.4 10.4,20.4\n"_s;
// Land west of the 22nd degree, cut by the map's edges, and an island.
const QString kCoast = u"5,15 5,22 15,22 15,15\n10.4,22.4 10.4,22.6 10.6,22.6 10.6,22.4\n"_s;

class MapModuleTest : public testing::Test
{
protected:
    void SetUp() override
    {
        QDir().mkpath(files.path(u"Data"_s));
        write(u"maps.tsv"_s, kSheets);
        write(u"places.tsv"_s, kPlaces);
        write(u"lines.tsv"_s, kLines);
        write(u"coast.tsv"_s, kCoast);
    }
    void write(const QString& table, const QString& text)
    {
        files.write(u"content/map/"_s + table, text);
    }
    ModuleOutcome build()
    {
        SourceFolders folders;
        folders.content = files.path(u"content"_s);
        OriginalCorpus none({});
        for (const ReferenceTask& task : referenceTasks(none, installedReferences(folders)))
            if (task.file == u"BibleMap"_s)
                return buildModule(task, files.path(u"Data"_s), [](double) { return true; });
        return {};
    }
    QString picture(int number) const { return files.path(u"maps/k%1.map"_s.arg(number)); }

    SourceFiles files;
};

bool isWater(const QImage& map, const GeoBox& box, const GeoPoint& at)
{
    const QColor color = map.pixelColor(MapProjection(box).at(at).toPoint());
    return color.blue() > color.red();
}

TEST_F(MapModuleTest, TablesBecomeAListPicturesAndPlacesInThem)
{
    const ModuleOutcome outcome = build();
    ASSERT_EQ(outcome.state, ModuleState::Built) << outcome.problem.toStdString();
    const QString module = files.path(u"Data/BibleMap.dts"_s);
    const auto list = storeRows(module, u"select Title, FileNum from BibleMap"_s);
    ASSERT_EQ(list.size(), 1U);
    EXPECT_EQ(DES::UnscrambleField(list[0][0].toString()), u"첫 지도"_s);
    EXPECT_EQ(list[0][1].toInt(), 3);

    QImage map;
    ASSERT_TRUE(map.load(picture(3), "PNG"));
    EXPECT_GE(std::max(map.width(), map.height()), 2400);
    const GeoBox box{20, 10, 23, 12};
    const GeoPoint land[] = {{11.8, 20.5}, {10.5, 22.5}};
    const GeoPoint water[] = {{10.8, 22.9}, {10.3, 22.2}, {10.25, 20.35}};
    for (const GeoPoint& point : land)
        EXPECT_FALSE(isWater(map, box, point)) << point.lat << ' ' << point.lon;
    for (const GeoPoint& point : water)
        EXPECT_TRUE(isWater(map, box, point)) << point.lat << ' ' << point.lon;

    const auto places = storeRows(module, u"select Name from BibleMapPlace where FileNum = 3"_s);
    ASSERT_EQ(places.size(), 2U);
    EXPECT_EQ(DES::UnscrambleField(places[0][0].toString()), u"가 마을"_s);
    const std::vector<MapName> names = mapNamesOf(map.text(kMapNamesKey));
    ASSERT_EQ(names.size(), 2U);
    EXPECT_EQ(names[0].name, u"가 마을"_s);
    // 2,500 pixels for three degrees east, at the eleventh degree, from the north-west corner (80,
    // 150).
    EXPECT_EQ(names[1].at, QPoint(2163, 574));
    const QColor mark = map.pixelColor(names[0].at);
    EXPECT_GT(mark.red(), 2 * mark.green()) << "the mark of a town stands where the text says";
    int letters = 0;
    for (int x = names[0].label.left(); x <= names[0].label.right(); ++x)
        letters += map.pixelColor(x, names[0].label.center().y()).lightness() < 60;
    EXPECT_GT(letters, 10) << "the name is written where the text says";
}

TEST_F(MapModuleTest, AUsersOwnPictureStaysAndOursAreRenewed)
{
    QImage own(3, 2, QImage::Format_RGB32);
    own.fill(Qt::green);
    QDir().mkpath(files.path(u"maps"_s));
    ASSERT_TRUE(own.save(picture(3), "BMP"));
    write(u"maps.tsv"_s, kSheets + u"8\t둘째\t\t10,20\t12,23\n"_s);
    const ModuleOutcome first = build();
    EXPECT_EQ(QImage(picture(3), "BMP").size(), own.size());
    EXPECT_EQ(first.report.details.join(u' '), u"직접 둔 지도를 그대로 둠: "_s + picture(3));
    ASSERT_TRUE(QFile::exists(picture(8)));

    EXPECT_EQ(build().state, ModuleState::UpToDate);
    QFile::remove(picture(8));
    EXPECT_EQ(build().state, ModuleState::Built) << "a picture was missing";
    EXPECT_TRUE(QFile::exists(picture(8)));
    // Of a map that is gone ours goes; that of the user stays.
    write(u"maps.tsv"_s, u"5\t셋째\t\t10,20\t12,23\n"_s);
    write(u"places.tsv"_s, u"가 마을\t11,21\t성읍\t5:3\n"_s);
    write(u"lines.tsv"_s, u"길\t5\t가는 길\t가_마을 11.2,21.5\n"_s);
    ASSERT_EQ(build().state, ModuleState::Built);
    EXPECT_EQ(QDir(files.path(u"maps"_s)).entryList(QDir::Files),
              (QStringList{u"k3.map"_s, u"k5.map"_s}));
}

TEST_F(MapModuleTest, BadLinesAreToldByTableAndLine)
{
    const struct
    {
        QString table;
        QString text;
        QString problem;
    } rows[] = {
        {u"maps.tsv"_s, kSheets + u"3\t또\t\t12,20\t10,23\n"_s,
         u"maps.tsv:2: 지도 번호가 맞지 않거나 앞에도 있음: 3\n"
         "maps.tsv:2: 지도의 남서쪽과 북동쪽 모서리가 맞지 않음"_s},
        {u"places.tsv"_s,
         u"가 마을\t91,21\t성읍\t3:3\n나\t11,21\t성\t3:1\n다\t13,21\t산\t3:1 4:1\n"_s,
         u"places.tsv:1: 자리나 종류가 맞지 않음: 가 마을\nplaces.tsv:2: 자리나 종류가 맞지 않음: "
         u"나\n"
         "places.tsv:3: 3번 지도의 밖에 있음: 다\nplaces.tsv:3: 지도 번호나 무게가 맞지 않음: 4:1"_s},
        {u"lines.tsv"_s, u"줄\t3\t\t11,21 11,22\n길\t9\t\t가_마을 없는곳\n"_s,
         u"lines.tsv:1: 종류가 맞지 않음: 줄\nlines.tsv:2: 없는 지도: 9\n"
         "lines.tsv:2: 위도,경도도 지명도 아님: 없는곳\nlines.tsv:2: 점이 둘보다 적음"_s},
        {u"coast.tsv"_s, u"10,20 10,x 11,21\n"_s, u"coast.tsv:1: 위도,경도가 아님: 10,x"_s},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.table.toStdString());
        SetUp();
        write(row.table, row.text);
        const ModuleOutcome outcome = build();
        EXPECT_EQ(outcome.state, ModuleState::Failed);
        EXPECT_EQ(QString(outcome.problem).remove(files.path(u"content/map/"_s)), row.problem);
    }
}

TEST_F(MapModuleTest, OutlinesOfTopologyRunBothWaysAndMayBeDamaged)
{
    const QString text = uR"({"objects":{"land":{"type":"GeometryCollection","geometries":[
        {"type":"MultiPolygon","arcs":[[[0,-3]]]}]}},"transform":{"scale":[0.5,2],"translate":[20,10]},
        "arcs":[[[0,0],[2,0],[0,1]],[[9,9]],[[0,0],[0,1],[2,0]]]})"_s;
    const QString file = files.write(u"land.json"_s, text);
    const auto land = readLand(file);
    ASSERT_TRUE(land);
    ASSERT_EQ(land.value().size(), 1U);
    QStringList points;
    for (const GeoPoint& point : land.value()[0])
        points << u"%1,%2"_s.arg(point.lat).arg(point.lon);
    EXPECT_EQ(points.join(u' '), u"10,20 10,21 12,21 12,21 12,20 10,20"_s);
    const auto damaged =
        readLand(files.write(u"land.json"_s, QString(text).replace(u"-3"_s, u"7"_s)));
    ASSERT_FALSE(damaged);
    EXPECT_EQ(damaged.failure().kind, FailureKind::Damaged);
}

TEST_F(MapModuleTest, CrowdedNamesNeverCoverEachOther)
{
    const QRectF frame(0, 0, 600, 400);
    const QRectF legend(0, 300, 200, 100);
    std::vector<LabelWish> wishes;
    for (int i = 0; i < 60; ++i)
        wishes.push_back({QPointF(i * 37 % 600, i * 53 % 400), QSizeF(70 + i % 5 * 10, 30),
                          1 + i % 3, i % 7 == 0});
    wishes.push_back({QPointF(300, 200), QSizeF(100, 30), 9, true});
    const auto rooms = placeLabels(wishes, frame, {legend});
    std::vector<QRectF> taken{legend};
    for (const auto& room : rooms) {
        if (!room)
            continue;
        EXPECT_TRUE(frame.contains(*room));
        for (const QRectF& other : taken)
            EXPECT_FALSE(other.intersects(*room));
        taken.push_back(*room);
    }
    EXPECT_EQ(rooms.back()->center(), QPointF(300, 200)) << "the heaviest goes first";
    EXPECT_LT(taken.size(), wishes.size()) << "not all have room";
    EXPECT_GT(taken.size(), 25U);
}

} // namespace
} // namespace lumen
