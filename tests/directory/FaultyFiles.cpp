#include "tests/directory/FaultyFiles.h"

#include <cstring>

namespace mindloft::test {
namespace {

int writes = 0, failFrom = 0, failCode = 0;
sqlite3_vfs* realVfs = nullptr;
sqlite3_vfs faultyVfs;
sqlite3_io_methods faultyMethods;

/// The real file lies behind this one in the same allocation.
struct FaultyFile {
  sqlite3_file base;
  sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

sqlite3_file* RealOf(sqlite3_file* file) {
  return reinterpret_cast<FaultyFile*>(file)->real();
}

/// SQLITE_OK while writes still work.
int NextWrite() {
  ++writes;
  return failFrom > 0 && writes >= failFrom ? failCode : SQLITE_OK;
}

int Close(sqlite3_file* file) {
  return RealOf(file)->pMethods ? RealOf(file)->pMethods->xClose(RealOf(file)) : SQLITE_OK;
}
int Read(sqlite3_file* f, void* to, int n, sqlite3_int64 at) {
  return RealOf(f)->pMethods->xRead(RealOf(f), to, n, at);
}
int Write(sqlite3_file* f, const void* from, int n, sqlite3_int64 at) {
  if (int code = NextWrite()) {
    // Half of it is on the disk.
    RealOf(f)->pMethods->xWrite(RealOf(f), from, n / 2, at);
    return code;
  }
  return RealOf(f)->pMethods->xWrite(RealOf(f), from, n, at);
}
int Truncate(sqlite3_file* f, sqlite3_int64 size) {
  if (int code = NextWrite()) return code;
  return RealOf(f)->pMethods->xTruncate(RealOf(f), size);
}
int Sync(sqlite3_file* f, int flags) {
  if (int code = NextWrite()) return code == SQLITE_FULL ? SQLITE_IOERR_FSYNC : code;
  return RealOf(f)->pMethods->xSync(RealOf(f), flags);
}
int FileSize(sqlite3_file* f, sqlite3_int64* size) {
  return RealOf(f)->pMethods->xFileSize(RealOf(f), size);
}
int Lock(sqlite3_file* f, int level) {
  return RealOf(f)->pMethods->xLock(RealOf(f), level);
}
int Unlock(sqlite3_file* f, int level) {
  return RealOf(f)->pMethods->xUnlock(RealOf(f), level);
}
int CheckReserved(sqlite3_file* f, int* held) {
  return RealOf(f)->pMethods->xCheckReservedLock(RealOf(f), held);
}
int FileControl(sqlite3_file* f, int what, void* value) {
  return RealOf(f)->pMethods->xFileControl(RealOf(f), what, value);
}
int SectorSize(sqlite3_file* f) {
  return RealOf(f)->pMethods->xSectorSize(RealOf(f));
}
int Characteristics(sqlite3_file* f) {
  return RealOf(f)->pMethods->xDeviceCharacteristics(RealOf(f));
}
int ShmMap(sqlite3_file* f, int region, int size, int extend, void volatile** to) {
  return RealOf(f)->pMethods->xShmMap(RealOf(f), region, size, extend, to);
}
int ShmLock(sqlite3_file* f, int at, int n, int flags) {
  return RealOf(f)->pMethods->xShmLock(RealOf(f), at, n, flags);
}
void ShmBarrier(sqlite3_file* f) {
  RealOf(f)->pMethods->xShmBarrier(RealOf(f));
}
int ShmUnmap(sqlite3_file* f, int remove) {
  return RealOf(f)->pMethods->xShmUnmap(RealOf(f), remove);
}

int Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
  auto* faulty = reinterpret_cast<FaultyFile*>(file);
  faulty->base.pMethods = nullptr;
  if (flags & SQLITE_OPEN_WAL) {
    if (NextWrite()) return SQLITE_CANTOPEN;
  }
  int code = realVfs->xOpen(realVfs, name, faulty->real(), flags, outFlags);
  if (code == SQLITE_OK) faulty->base.pMethods = &faultyMethods;
  return code;
}

}  // namespace

FaultyFiles::FaultyFiles() : previous_(sqlite3_vfs_find(nullptr)) {
  realVfs = previous_;
  faultyVfs = *realVfs;
  faultyVfs.pNext = nullptr;
  faultyVfs.zName = "faulty";
  faultyVfs.szOsFile = static_cast<int>(sizeof(FaultyFile)) + realVfs->szOsFile;
  faultyVfs.xOpen = Open;
  faultyMethods = {
      2,        Close,         Read,        Write,      Truncate,        Sync,   FileSize, Lock,
      Unlock,   CheckReserved, FileControl, SectorSize, Characteristics, ShmMap, ShmLock,  ShmBarrier,
      ShmUnmap, nullptr,       nullptr};
  FailFrom(0, 0);
  sqlite3_vfs_register(&faultyVfs, 1);
}

FaultyFiles::~FaultyFiles() {
  sqlite3_vfs_register(previous_, 1);
  sqlite3_vfs_unregister(&faultyVfs);
}

void FaultyFiles::FailFrom(int write, int code) {
  writes = 0;
  failFrom = write;
  failCode = code;
}

int FaultyFiles::Writes() const {
  return writes;
}

}  // namespace mindloft::test
