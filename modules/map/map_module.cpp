// SPDX-License-Identifier: GPL-2.0-or-later
#include "map/map_module.h"

#include "map/land.h"
#include "map/map_frame.h"
#include "map/map_painter.h"
#include "platform/files/safe_write.h"
#include "reference/companion_folder.h"
#include "text/field_scramble.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

// Stands in each picture that is drawn here, as a text of its head.
const QString kMarkKey = u"Software"_s;
const QString kMark = u"lumen-modules"_s;

QString pictureName(int number)
{
    return u"k%1.map"_s.arg(number);
}

bool isDrawnHere(const QString& path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    return reader.text(kMarkKey) == kMark;
}

QByteArray pngOf(const DrawnMap& map)
{
    QImage picture = map.picture;
    picture.setText(kMarkKey, kMark);
    picture.setText(kMapNamesKey, mapNamesText(map.names));
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return png;
}

Result<std::vector<GeoLine>> landOf(const MapSources& maps)
{
    return readLand(QFileInfo::exists(maps.land) ? maps.land : maps.tables + u"/coast.tsv"_s);
}

bool addPlaces(const MapTables& tables, const MapSheet& sheet, ModuleStore& store)
{
    return std::ranges::all_of(tables.places, [&](const MapPlace& place) {
        return !place.weights.contains(sheet.number) ||
               store.addRow(u"BibleMapPlace"_s, {sheet.number, DES::ScrambleField(place.name)});
    });
}

void removeOthers(QDir& folder, const MapTables& tables)
{
    for (const QString& name : folder.entryList({u"k*.map"_s}, QDir::Files))
        if (std::ranges::none_of(
                tables.sheets,
                [&name](const MapSheet& sheet) { return pictureName(sheet.number) == name; }) &&
            isDrawnHere(folder.filePath(name)))
            folder.remove(name);
}

} // namespace

Result<ModuleReport> fillMaps(const MapSources& maps, ModuleStore& store)
{
    const auto tables = readMapTables(maps.tables);
    if (!tables)
        return tables.failure();
    store.createTable(
        {u"BibleMap"_s, {memoColumn(u"Title"_s), {u"FileNum"_s, FieldType::Short}}, {}});
    store.createTable({u"BibleMapPlace"_s,
                       {{u"FileNum"_s, FieldType::Short}, memoColumn(u"Name"_s)},
                       {{u"number"_s, {u"FileNum"_s}}}});
    store.expect(tables.value().sheets.size() + tables.value().places.size());
    for (const MapSheet& sheet : tables.value().sheets)
        if (!store.addRow(u"BibleMap"_s, {DES::ScrambleField(sheet.title), sheet.number}) ||
            !addPlaces(tables.value(), sheet, store))
            return Failure{FailureKind::Cancelled, {}};
    ModuleReport report;
    report.facts << u"지도 %1"_s.arg(tables.value().sheets.size());
    return report;
}

bool mapFilesAreThere(const MapSources& maps, const QString& moduleFolder)
{
    const auto tables = readMapTables(maps.tables);
    const QDir folder(companionFolder(moduleFolder, u"maps"_s));
    // What is wrong with the tables the making tells.
    return tables && std::ranges::all_of(tables.value().sheets, [&folder](const MapSheet& sheet) {
               return folder.exists(pictureName(sheet.number));
           });
}

Result<QStringList> writeMapFiles(const MapSources& maps, const QString& moduleFolder)
{
    const auto tables = readMapTables(maps.tables);
    if (!tables)
        return tables.failure();
    const auto land = landOf(maps);
    if (!land)
        return land.failure();
    if (!qGuiApp || mapFontFamily().isEmpty())
        return Failure{FailureKind::NotFound,
                       u"한글 글꼴이 없어 지도를 그릴 수 없습니다. 데비안 꾸러미 fonts-nanum이나 "
                       "fonts-noto-cjk를 설치하십시오."_s};
    QDir folder(companionFolder(moduleFolder, u"maps"_s));
    if (!folder.mkpath(u"."_s))
        return Failure{FailureKind::NoAccess, u"폴더를 만들 수 없습니다: %1"_s.arg(folder.path())};
    QStringList remarks;
    for (const MapSheet& sheet : tables.value().sheets) {
        const QString path = folder.filePath(pictureName(sheet.number));
        if (QFileInfo::exists(path) && !isDrawnHere(path)) {
            remarks << u"직접 둔 지도를 그대로 둠: %1"_s.arg(path);
            continue;
        }
        const DrawnMap map = drawMap(tables.value(), sheet, land.value());
        for (const QString& name : map.leftOut)
            remarks << u"%1: 자리가 없어 쓰지 못한 이름: %2"_s.arg(sheet.title, name);
        if (const auto written = writeSafely(path, pngOf(map)); !written)
            return written.failure();
    }
    removeOthers(folder, tables.value());
    return remarks;
}

} // namespace lumen
