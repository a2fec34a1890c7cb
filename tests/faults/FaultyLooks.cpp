// The calls that only look at the disk. Preloaded into a program. What the library does within its own functions is
// not met, so that these may be called.

#include "MetCall.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <type_traits>

namespace {

// The library's own function of a name that stands here, too.
template <typename Function>
Function* Library(const char* name, Function* /*here*/) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

template <typename Real>
using Result = std::invoke_result_t<Real>;

template <typename Real>
Result<Real> LookAt(const char* kind, int folder, const char* path, Result<Real> failed, Real real) {
    if (!Counts(Family::Looks)) {
        return real();
    }
    const Met met(Family::Looks, kind, PathOf(folder, path));
    return met.Fails() ? failed : real();
}

template <typename Real>
Result<Real> LookInto(const char* kind, int handle, Result<Real> failed, Real real) {
    return LookAt(kind, handle, "", failed, real);
}

int Stat(int folder, const char* path, void* status, int flags) {
    return LookAt("stat", folder, path, -1,
                  [&] { return static_cast<int>(syscall(SYS_newfstatat, folder, path, status, flags)); });
}

int Access(int folder, const char* path, int wanted, int flags) {
    return LookAt("access", folder, path, -1,
                  [&] { return static_cast<int>(syscall(SYS_faccessat2, folder, path, wanted, flags)); });
}

} // namespace

// What the program calls instead of the library's functions.
extern "C" {

int stat(const char* path, struct stat* status) noexcept {
    return Stat(AT_FDCWD, path, status, 0);
}
int stat64(const char* path, struct stat64* status) noexcept {
    return Stat(AT_FDCWD, path, status, 0);
}
int lstat(const char* path, struct stat* status) noexcept {
    return Stat(AT_FDCWD, path, status, AT_SYMLINK_NOFOLLOW);
}
int lstat64(const char* path, struct stat64* status) noexcept {
    return Stat(AT_FDCWD, path, status, AT_SYMLINK_NOFOLLOW);
}
int fstat(int handle, struct stat* status) noexcept {
    return Stat(handle, "", status, AT_EMPTY_PATH);
}
int fstat64(int handle, struct stat64* status) noexcept {
    return Stat(handle, "", status, AT_EMPTY_PATH);
}
int fstatat(int folder, const char* path, struct stat* status, int flags) noexcept {
    return Stat(folder, path, status, flags);
}
int fstatat64(int folder, const char* path, struct stat64* status, int flags) noexcept {
    return Stat(folder, path, status, flags);
}
int statx(int folder, const char* path, int flags, unsigned mask, struct statx* status) noexcept {
    return LookAt("stat", folder, path, -1,
                  [&] { return static_cast<int>(syscall(SYS_statx, folder, path, flags, mask, status)); });
}

int access(const char* path, int wanted) noexcept {
    return Access(AT_FDCWD, path, wanted, 0);
}
int faccessat(int folder, const char* path, int wanted, int flags) noexcept {
    return Access(folder, path, wanted, flags);
}
int eaccess(const char* path, int wanted) noexcept {
    return Access(AT_FDCWD, path, wanted, AT_EACCESS);
}
int euidaccess(const char* path, int wanted) noexcept {
    return Access(AT_FDCWD, path, wanted, AT_EACCESS);
}

char* realpath(const char* path, char* resolved) noexcept {
    static auto* const real = Library("realpath", &realpath);
    return LookAt("realpath", AT_FDCWD, path, nullptr, [&] { return real(path, resolved); });
}
ssize_t readlink(const char* path, char* buffer, size_t size) noexcept {
    return LookAt("readlink", AT_FDCWD, path, -1,
                  [&] { return syscall(SYS_readlinkat, AT_FDCWD, path, buffer, size); });
}

DIR* opendir(const char* path) {
    static auto* const real = Library("opendir", &opendir);
    return LookAt("opendir", AT_FDCWD, path, nullptr, [&] { return real(path); });
}
DIR* fdopendir(int handle) {
    static auto* const real = Library("fdopendir", &fdopendir);
    return LookInto("opendir", handle, nullptr, [&] { return real(handle); });
}
dirent* readdir(DIR* folder) {
    static auto* const real = Library("readdir", &readdir);
    return LookInto("readdir", dirfd(folder), nullptr, [&] { return real(folder); });
}
dirent64* readdir64(DIR* folder) {
    static auto* const real = Library("readdir64", &readdir64);
    return LookInto("readdir", dirfd(folder), nullptr, [&] { return real(folder); });
}

ssize_t listxattr(const char* path, char* list, size_t size) noexcept {
    return LookAt("listxattr", AT_FDCWD, path, -1, [&] { return syscall(SYS_listxattr, path, list, size); });
}
ssize_t getxattr(const char* path, const char* name, void* value, size_t size) noexcept {
    return LookAt("getxattr", AT_FDCWD, path, -1, [&] { return syscall(SYS_getxattr, path, name, value, size); });
}

int statvfs(const char* path, struct statvfs* status) noexcept {
    static auto* const real = Library("statvfs", &statvfs);
    return LookAt("statvfs", AT_FDCWD, path, -1, [&] { return real(path, status); });
}
long pathconf(const char* path, int name) noexcept {
    static auto* const real = Library("pathconf", &pathconf);
    return LookAt("pathconf", AT_FDCWD, path, -1L, [&] { return real(path, name); });
}

int flock(int handle, int operation) noexcept {
    return LookInto("flock", handle, -1, [&] { return static_cast<int>(syscall(SYS_flock, handle, operation)); });
}

ssize_t read(int handle, void* buffer, size_t size) {
    return LookInto("read", handle, -1, [&] { return syscall(SYS_read, handle, buffer, size); });
}
}
