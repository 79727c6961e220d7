// SPDX-License-Identifier: GPL-2.0-or-later
#include "import/jet_conversion.h"

#include "jet/error.h"
#include "jet/import/jet_header.h"
#include "sources/interruption.h"

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

/// Thrown to leave the row loops when the user has asked to stop.
struct Stopped
{
};

void copyRows(JetFileReader& reader, StoreWriter& writer, ConversionReport& report)
{
    for (const TableSchema& table : reader.tables()) {
        writer.createTable(table);
        reader.readRows(table.name, [&](const QVariantList& row) {
            if (interrupted())
                throw Stopped{};
            writer.addRow(table.name, row);
            ++report.rows;
            return true;
        });
    }
    report.tables = static_cast<qsizetype>(reader.tables().size());
    report.faults = reader.faults();
}

/// Pages that are not there mean that the end of the file is missing, and rows with it. Of a file
/// that loses more rows than it gives, what remains is worth nothing either.
bool isTooDamaged(const ConversionReport& report)
{
    const bool nothingLeft = report.rows == 0 && report.faults.absentRows > 0;
    return report.tables == 0 || report.faults.missingPages > 0 ||
           report.faults.rows > report.rows || nothingLeft;
}

void noteFaults(StoreWriter& writer, const JetFaults& faults)
{
    if (!faults.tables.isEmpty())
        writer.addOriginLine(u"읽지 못한 표"_s, faults.tables.join(u", "_s));
    if (faults.rows > 0)
        writer.addOriginLine(u"읽지 못한 행"_s, QString::number(faults.rows));
    if (faults.absentRows > 0)
        writer.addOriginLine(u"찾지 못한 행"_s, QString::number(faults.absentRows));
    if (faults.strangePages > 0)
        writer.addOriginLine(u"읽지 못한 쪽"_s, QString::number(faults.strangePages));
    if (faults.values > 0)
        writer.addOriginLine(u"온전하지 않은 값"_s, QString::number(faults.values));
}

ImportExit convert(const JetConversion& conversion, const JetHeader& header,
                   ConversionReport& report)
{
    const auto reader = JetFileReader::open(conversion.source, header);
    if (!reader)
        return ImportExit::Damaged;
    // Only the user's own databases, which compare texts loosely, are written to later on.
    const StoreUse use =
        conversion.compare == StoreCompare::Binary ? StoreUse::OnlyRead : StoreUse::Written;
    StoreWriter writer(conversion.destination, conversion.compare, use);
    copyRows(*reader, writer, report);
    if (isTooDamaged(report))
        return ImportExit::Damaged;
    noteFaults(writer, report.faults);
    writer.setOrigin(header.version == JetVersion::Jet3 ? u"jet3"_s : u"jet4"_s);
    if (!header.password.isEmpty())
        writer.setPassword(header.password);
    writer.commit();
    return ImportExit::Done;
}

} // namespace

ImportExit convertIntoStore(const JetConversion& conversion, ConversionReport& report)
{
    const std::optional<JetHeader> header = readJetHeader(readDatabaseHead(conversion.source));
    if (!header)
        return ImportExit::Damaged;
    if (!header->password.isEmpty() && header->password != conversion.password)
        return ImportExit::WrongPassword;
    try {
        return convert(conversion, *header, report);
    } catch (const Stopped&) {
        return ImportExit::Failed;
    } catch (const JetError& error) {
        // Anything but a disc that takes no more comes from what the file holds, such as a key
        // that stands twice.
        return error.number() == ErrorNumber::kWriteFailed ? ImportExit::CannotWrite
                                                           : ImportExit::Damaged;
    }
}

} // namespace lumen
