// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/export/zip_package.h"

#include <memory>
#include <zip.h>

namespace lumen {
namespace {

struct SourceFree
{
    void operator()(zip_source_t* source) const { zip_source_free(source); }
};
using Source = std::unique_ptr<zip_source_t, SourceFree>;

struct ArchiveDiscard
{
    void operator()(zip_t* archive) const { zip_discard(archive); }
};
using Archive = std::unique_ptr<zip_t, ArchiveDiscard>;

// The content is read when the archive is closed, so that it has to live until then.
bool addPart(zip_t* archive, const ZipPart& part)
{
    zip_source_t* source = zip_source_buffer(archive, part.content.constData(),
                                             static_cast<zip_uint64_t>(part.content.size()), 0);
    if (!source)
        return false;
    const zip_int64_t index =
        zip_file_add(archive, part.name.constData(), source, ZIP_FL_ENC_UTF_8);
    if (index < 0) {
        zip_source_free(source);
        return false;
    }
    const int method = part.compressed ? ZIP_CM_DEFLATE : ZIP_CM_STORE;
    return zip_set_file_compression(archive, static_cast<zip_uint64_t>(index), method, 0) == 0;
}

QByteArray contentOf(zip_source_t* source)
{
    zip_stat_t stat;
    zip_stat_init(&stat);
    if (zip_source_stat(source, &stat) < 0 || !(stat.valid & ZIP_STAT_SIZE) ||
        zip_source_open(source) < 0)
        return {};
    QByteArray bytes(static_cast<qsizetype>(stat.size), Qt::Uninitialized);
    const zip_int64_t read = zip_source_read(source, bytes.data(), stat.size);
    zip_source_close(source);
    return read == static_cast<zip_int64_t>(bytes.size()) ? bytes : QByteArray();
}

} // namespace

QByteArray zipPackage(const QList<ZipPart>& parts)
{
    zip_error_t error;
    zip_error_init(&error);
    const Source file(zip_source_buffer_create(nullptr, 0, 0, &error));
    if (!file)
        return {};
    Archive archive(zip_open_from_source(file.get(), ZIP_CREATE | ZIP_TRUNCATE, &error));
    if (!archive)
        return {};
    // The archive takes over one reference at its opening; this one is for reading the result.
    zip_source_keep(file.get());
    for (const ZipPart& part : parts)
        if (!addPart(archive.get(), part))
            return {};
    if (zip_close(archive.get()) < 0)
        return {};
    static_cast<void>(archive.release()); // closing has freed it
    return contentOf(file.get());
}

} // namespace lumen
