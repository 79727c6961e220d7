// SPDX-License-Identifier: GPL-2.0-or-later
#include "dying_writer.h"

#include <csignal>
#include <sqlite3.h>

namespace lumen {
namespace {

int writesLeft = 0;

struct DyingFile
{
    sqlite3_file base; // first: the library takes the whole for it
    sqlite3_file* real;
};

sqlite3_file* real(sqlite3_file* file)
{
    return reinterpret_cast<DyingFile*>(file)->real;
}

bool isLast()
{
    return --writesLeft == 0;
}

int closeFile(sqlite3_file* file)
{
    return real(file)->pMethods->xClose(real(file));
}

int readFile(sqlite3_file* file, void* buffer, int size, sqlite3_int64 offset)
{
    return real(file)->pMethods->xRead(real(file), buffer, size, offset);
}

int writeFile(sqlite3_file* file, const void* buffer, int size, sqlite3_int64 offset)
{
    if (isLast()) {
        real(file)->pMethods->xWrite(real(file), buffer, size / 2, offset);
        std::raise(SIGKILL);
    }
    return real(file)->pMethods->xWrite(real(file), buffer, size, offset);
}

int truncateFile(sqlite3_file* file, sqlite3_int64 size)
{
    if (isLast())
        std::raise(SIGKILL);
    return real(file)->pMethods->xTruncate(real(file), size);
}

int syncFile(sqlite3_file* file, int flags)
{
    if (isLast())
        std::raise(SIGKILL);
    return real(file)->pMethods->xSync(real(file), flags);
}

int fileSize(sqlite3_file* file, sqlite3_int64* size)
{
    return real(file)->pMethods->xFileSize(real(file), size);
}

int lockFile(sqlite3_file* file, int level)
{
    return real(file)->pMethods->xLock(real(file), level);
}

int unlockFile(sqlite3_file* file, int level)
{
    return real(file)->pMethods->xUnlock(real(file), level);
}

int checkLock(sqlite3_file* file, int* result)
{
    return real(file)->pMethods->xCheckReservedLock(real(file), result);
}

int fileControl(sqlite3_file* file, int operation, void* argument)
{
    return real(file)->pMethods->xFileControl(real(file), operation, argument);
}

int sectorSize(sqlite3_file* file)
{
    return real(file)->pMethods->xSectorSize(real(file));
}

int characteristics(sqlite3_file* file)
{
    return real(file)->pMethods->xDeviceCharacteristics(real(file));
}

const sqlite3_io_methods& dyingMethods()
{
    static const sqlite3_io_methods methods = [] {
        sqlite3_io_methods made{};
        made.iVersion = 1;
        made.xClose = closeFile;
        made.xRead = readFile;
        made.xWrite = writeFile;
        made.xTruncate = truncateFile;
        made.xSync = syncFile;
        made.xFileSize = fileSize;
        made.xLock = lockFile;
        made.xUnlock = unlockFile;
        made.xCheckReservedLock = checkLock;
        made.xFileControl = fileControl;
        made.xSectorSize = sectorSize;
        made.xDeviceCharacteristics = characteristics;
        return made;
    }();
    return methods;
}

sqlite3_vfs* realVfs = nullptr;

int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags)
{
    auto* dying = reinterpret_cast<DyingFile*>(file);
    dying->real = reinterpret_cast<sqlite3_file*>(dying + 1);
    const int code = realVfs->xOpen(realVfs, name, dying->real, flags, outFlags);
    dying->base.pMethods = code == SQLITE_OK ? &dyingMethods() : nullptr;
    return code;
}

int deleteFile(sqlite3_vfs*, const char* name, int syncFolder)
{
    if (isLast())
        std::raise(SIGKILL);
    return realVfs->xDelete(realVfs, name, syncFolder);
}

} // namespace

void dieAtDatabaseWrite(int n)
{
    writesLeft = n;
    realVfs = sqlite3_vfs_find(nullptr);
    static sqlite3_vfs dying = *realVfs;
    dying.zName = "dying";
    dying.szOsFile = static_cast<int>(sizeof(DyingFile)) + realVfs->szOsFile;
    dying.xOpen = openFile;
    dying.xDelete = deleteFile;
    sqlite3_vfs_register(&dying, 1);
}

} // namespace lumen
