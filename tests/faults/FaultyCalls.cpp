// The calls that change what is on the disk, and the one that opens, for whichever purpose. Preloaded into a program.
// The system is called directly, so that nothing that this file does is met by itself.

#include "MetCall.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <string>

namespace {

int Open(int folder, const char* path, int flags, mode_t mode) {
    const auto real = [&] { return static_cast<int>(syscall(SYS_openat, folder, path, flags, mode)); };
    const std::string whole = PathOf(folder, path);
    // Reading changes nothing, but a folder is opened in order to be put on the disk.
    if ((flags & O_ACCMODE) == O_RDONLY && (flags & O_DIRECTORY) == 0) {
        const Met met(Family::Looks, "open", whole);
        return met.Fails() ? -1 : real();
    }
    if ((flags & O_TMPFILE) == O_TMPFILE && IsNamedOnly(whole)) {
        errno = EOPNOTSUPP;
        return -1;
    }
    const Met met(Family::Changes, "open", whole);
    return met.Fails() ? -1 : real();
}

int Sync(int handle, long call) {
    const Met met(Family::Changes, "sync", PathOf(handle));
    if (met.Fails()) {
        return -1;
    }
    return met.Pretends() ? 0 : static_cast<int>(syscall(call, handle));
}

int Rename(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) {
    const Met met(Family::Changes, "rename", PathOf(toFolder, to));
    return met.Fails() ? -1 : static_cast<int>(syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}

int Unlink(int folder, const char* path, int flags) {
    const Met met(Family::Changes, "unlink", PathOf(folder, path));
    return met.Fails() ? -1 : static_cast<int>(syscall(SYS_unlinkat, folder, path, flags));
}

int Truncate(int handle, off_t size) {
    const Met met(Family::Changes, "truncate", PathOf(handle));
    return met.Fails() ? -1 : static_cast<int>(syscall(SYS_ftruncate, handle, size));
}

int Link(int fromFolder, const char* from, int toFolder, const char* to, int flags) {
    const Met met(Family::Changes, "link", PathOf(toFolder, to));
    return met.Fails() ? -1 : static_cast<int>(syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
}

mode_t ModeIn(int flags, va_list arguments) {
    return (flags & (O_CREAT | O_TMPFILE)) == 0 ? 0 : va_arg(arguments, mode_t);
}

} // namespace

// What the program calls instead of the library's functions.
extern "C" {

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeIn(flags, arguments);
    va_end(arguments);
    return Open(AT_FDCWD, path, flags, mode);
}
int open64(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeIn(flags, arguments);
    va_end(arguments);
    return Open(AT_FDCWD, path, flags, mode);
}
int openat(int folder, const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeIn(flags, arguments);
    va_end(arguments);
    return Open(folder, path, flags, mode);
}
int openat64(int folder, const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeIn(flags, arguments);
    va_end(arguments);
    return Open(folder, path, flags, mode);
}

ssize_t write(int handle, const void* data, size_t size) {
    const Met met(Family::Changes, "write", PathOf(handle));
    return met.Fails() ? -1 : syscall(SYS_write, handle, data, met.Shortened(size));
}
ssize_t pwrite(int handle, const void* data, size_t size, off_t offset) {
    const Met met(Family::Changes, "write", PathOf(handle));
    return met.Fails() ? -1 : syscall(SYS_pwrite64, handle, data, met.Shortened(size), offset);
}
ssize_t pwrite64(int handle, const void* data, size_t size, off64_t offset) {
    return pwrite(handle, data, size, offset);
}
ssize_t writev(int handle, const iovec* parts, int count) {
    const Met met(Family::Changes, "write", PathOf(handle));
    const auto taken = met.Shortened(static_cast<std::size_t>(count));
    return met.Fails() ? -1 : syscall(SYS_writev, handle, parts, taken);
}

int fsync(int handle) {
    return Sync(handle, SYS_fsync);
}
int fdatasync(int handle) {
    return Sync(handle, SYS_fdatasync);
}
int syncfs(int handle) noexcept {
    return Sync(handle, SYS_syncfs);
}

int rename(const char* from, const char* to) noexcept {
    return Rename(AT_FDCWD, from, AT_FDCWD, to, 0);
}
int renameat(int fromFolder, const char* from, int toFolder, const char* to) noexcept {
    return Rename(fromFolder, from, toFolder, to, 0);
}
int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept {
    return Rename(fromFolder, from, toFolder, to, flags);
}
int link(const char* from, const char* to) noexcept {
    return Link(AT_FDCWD, from, AT_FDCWD, to, 0);
}
int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
    return Link(fromFolder, from, toFolder, to, flags);
}
int unlink(const char* path) noexcept {
    return Unlink(AT_FDCWD, path, 0);
}
int unlinkat(int folder, const char* path, int flags) noexcept {
    return Unlink(folder, path, flags);
}
int remove(const char* path) noexcept {
    return Unlink(AT_FDCWD, path, 0);
}

int ftruncate(int handle, off_t size) noexcept {
    return Truncate(handle, size);
}
int ftruncate64(int handle, off64_t size) noexcept {
    return Truncate(handle, size);
}
int truncate(const char* path, off_t size) noexcept {
    const Met met(Family::Changes, "truncate", PathOf(AT_FDCWD, path));
    return met.Fails() ? -1 : static_cast<int>(syscall(SYS_truncate, path, size));
}

int fchmod(int handle, mode_t mode) noexcept {
    const Met met(Family::Changes, "chmod", PathOf(handle));
    return met.Fails() ? -1 : static_cast<int>(syscall(SYS_fchmod, handle, mode));
}
int chmod(const char* path, mode_t mode) noexcept {
    const Met met(Family::Changes, "chmod", PathOf(AT_FDCWD, path));
    return met.Fails() ? -1 : static_cast<int>(syscall(SYS_fchmodat, AT_FDCWD, path, mode));
}
int mkdir(const char* path, mode_t mode) noexcept {
    const Met met(Family::Changes, "mkdir", PathOf(AT_FDCWD, path));
    return met.Fails() ? -1 : static_cast<int>(syscall(SYS_mkdirat, AT_FDCWD, path, mode));
}

int close(int handle) {
    const int flags = static_cast<int>(syscall(SYS_fcntl, handle, F_GETFL));
    const bool readsOnly = flags < 0 || ((flags & O_ACCMODE) == O_RDONLY && (flags & O_DIRECTORY) == 0);
    const Met met(Family::Changes, "close", readsOnly ? std::string() : PathOf(handle));
    // Whatever it says, a handle is closed then.
    const int result = static_cast<int>(syscall(SYS_close, handle));
    return met.Fails() ? -1 : result;
}
}
