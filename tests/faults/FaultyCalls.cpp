// Preloaded into a program, makes its calls to the system fail, or stops or kills it at them. Only calls
// that change what is on the disk count, and only on what is in the folders named. The environment says
// what happens:
//   QUEXAL_FAULT_FOLDERS  the folders, separated by ":", without symbolic links in their paths
//   QUEXAL_FAULT_LOG      a file that gets a line "NUMBER KIND PATH" for every call met, and " failed" behind it
//                         when the call is made to fail
//   QUEXAL_FAULT_ACTION   fail         the call fails and does nothing
//                         fail-on      so do all calls after it
//                         short        a write takes half of what it is given, or one byte of one
//                         pretend      every call that has data put on the disk succeeds and does nothing
//                         kill-before  the program is killed before the call
//                         kill-after   the program is killed when the call has been made
//                         tear         a write takes nine tenths, and the program is killed
//                         stop         the program is stopped before every call
//   QUEXAL_FAULT_CALL     the number of the call, from 1 on
//   QUEXAL_FAULT_ERROR    the number of the error with which it fails
//   QUEXAL_FAULT_NAMED    1 for a file system that knows no files without a name
// The system is called directly, so that nothing that this file does is met by itself.

#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

std::string Setting(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

std::vector<std::string> Folders() {
    std::vector<std::string> folders;
    std::string rest = Setting("QUEXAL_FAULT_FOLDERS");
    while (!rest.empty()) {
        const std::size_t end = rest.find(':');
        folders.push_back(rest.substr(0, end) + "/");
        rest = end == std::string::npos ? "" : rest.substr(end + 1);
    }
    return folders;
}

struct Settings {
    std::vector<std::string> folders = Folders();
    std::string log = Setting("QUEXAL_FAULT_LOG");
    std::string action = Setting("QUEXAL_FAULT_ACTION");
    int call = std::atoi(Setting("QUEXAL_FAULT_CALL").c_str());
    int error = std::atoi(Setting("QUEXAL_FAULT_ERROR").c_str());
    bool namedFilesOnly = Setting("QUEXAL_FAULT_NAMED") == "1";
};

const Settings& TheSettings() {
    static const Settings settings;
    return settings;
}

bool Watched(const std::string& path) {
    for (const std::string& folder : TheSettings().folders) {
        if ((path + "/").starts_with(folder)) {
            return true;
        }
    }
    return false;
}

std::string PathOf(int handle) {
    char path[PATH_MAX];
    const std::string link = "/proc/self/fd/" + std::to_string(handle);
    const long length = syscall(SYS_readlinkat, AT_FDCWD, link.c_str(), path, sizeof path);
    return length < 0 ? std::string() : std::string(path, static_cast<std::size_t>(length));
}

// The path that a call gets, relative to a folder that it gets too, as a whole.
std::string PathOf(int folder, const char* path) {
    if (*path == '/') {
        return path;
    }
    char current[PATH_MAX];
    if (folder != AT_FDCWD) {
        return PathOf(folder) + "/" + path;
    }
    return std::string(getcwd(current, sizeof current) == nullptr ? "" : current) + "/" + path;
}

void Log(const std::string& line) {
    const long log = syscall(SYS_openat, AT_FDCWD, TheSettings().log.c_str(), O_WRONLY | O_APPEND | O_CREAT, 0600);
    syscall(SYS_write, log, line.data(), line.size());
    syscall(SYS_close, log);
}

// A call that has been met: how it is to go.
class Met {
public:
    Met(const char* kind, const std::string& path) {
        if (!Watched(path)) {
            return;
        }
        static std::atomic<int> calls = 0;
        m_watched = true;
        m_number = ++calls;
        m_fails = Is("fail") || (TheSettings().action == "fail-on" && m_number >= TheSettings().call);
        Log(std::to_string(m_number) + " " + kind + " " + path + (m_fails ? " failed\n" : "\n"));
        if (Is("kill-before")) {
            std::raise(SIGKILL);
        }
        if (TheSettings().action == "stop") {
            std::raise(SIGSTOP);
        }
    }
    Met(const Met&) = delete;
    Met& operator=(const Met&) = delete;
    ~Met() {
        const int error = errno;
        if (Is("kill-after") || Is("tear")) {
            std::raise(SIGKILL);
        }
        errno = error;
    }

    [[nodiscard]] bool Fails() const {
        if (m_fails) {
            errno = TheSettings().error;
        }
        return m_fails;
    }
    [[nodiscard]] bool Pretends() const { return m_watched && TheSettings().action == "pretend"; }
    [[nodiscard]] std::size_t Shortened(std::size_t size) const {
        if (Is("tear")) {
            return size - size / 10;
        }
        return Is("short") && size > 1 ? size / 2 : size;
    }

private:
    // Whether this is the call that the action is for.
    [[nodiscard]] bool Is(std::string_view action) const {
        return m_watched && m_number == TheSettings().call && TheSettings().action == action;
    }

    bool m_watched = false;
    bool m_fails = false;
    int m_number = 0;
};

int Open(int folder, const char* path, int flags, mode_t mode) {
    const auto real = [&] { return static_cast<int>(syscall(SYS_openat, folder, path, flags, mode)); };
    // Reading changes nothing, but a folder is opened in order to be put on the disk.
    if ((flags & O_ACCMODE) == O_RDONLY && (flags & O_DIRECTORY) == 0) {
        return real();
    }
    const std::string whole = PathOf(folder, path);
    if (TheSettings().namedFilesOnly && (flags & O_TMPFILE) == O_TMPFILE && Watched(whole)) {
        errno = EOPNOTSUPP;
        return -1;
    }
    const Met met("open", whole);
    return met.Fails() ? -1 : real();
}

int Sync(int handle, long call) {
    const Met met("sync", PathOf(handle));
    if (met.Fails()) {
        return -1;
    }
    return met.Pretends() ? 0 : static_cast<int>(syscall(call, handle));
}

int Rename(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) {
    const Met met("rename", PathOf(toFolder, to));
    return met.Fails() ? -1 : static_cast<int>(syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}

int Unlink(int folder, const char* path, int flags) {
    const Met met("unlink", PathOf(folder, path));
    return met.Fails() ? -1 : static_cast<int>(syscall(SYS_unlinkat, folder, path, flags));
}

int Truncate(int handle, off_t size) {
    const Met met("truncate", PathOf(handle));
    return met.Fails() ? -1 : static_cast<int>(syscall(SYS_ftruncate, handle, size));
}

int Link(int fromFolder, const char* from, int toFolder, const char* to, int flags) {
    const Met met("link", PathOf(toFolder, to));
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
    const Met met("write", PathOf(handle));
    return met.Fails() ? -1 : syscall(SYS_write, handle, data, met.Shortened(size));
}
ssize_t pwrite(int handle, const void* data, size_t size, off_t offset) {
    const Met met("write", PathOf(handle));
    return met.Fails() ? -1 : syscall(SYS_pwrite64, handle, data, met.Shortened(size), offset);
}
ssize_t pwrite64(int handle, const void* data, size_t size, off64_t offset) {
    return pwrite(handle, data, size, offset);
}
ssize_t writev(int handle, const iovec* parts, int count) {
    const Met met("write", PathOf(handle));
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
    const Met met("truncate", PathOf(AT_FDCWD, path));
    return met.Fails() ? -1 : static_cast<int>(syscall(SYS_truncate, path, size));
}

int fchmod(int handle, mode_t mode) noexcept {
    const Met met("chmod", PathOf(handle));
    return met.Fails() ? -1 : static_cast<int>(syscall(SYS_fchmod, handle, mode));
}
int chmod(const char* path, mode_t mode) noexcept {
    const Met met("chmod", PathOf(AT_FDCWD, path));
    return met.Fails() ? -1 : static_cast<int>(syscall(SYS_fchmodat, AT_FDCWD, path, mode));
}
int mkdir(const char* path, mode_t mode) noexcept {
    const Met met("mkdir", PathOf(AT_FDCWD, path));
    return met.Fails() ? -1 : static_cast<int>(syscall(SYS_mkdirat, AT_FDCWD, path, mode));
}

int close(int handle) {
    const int flags = static_cast<int>(syscall(SYS_fcntl, handle, F_GETFL));
    const bool readsOnly = flags < 0 || ((flags & O_ACCMODE) == O_RDONLY && (flags & O_DIRECTORY) == 0);
    const Met met("close", readsOnly ? std::string() : PathOf(handle));
    // Whatever it says, a handle is closed then.
    const int result = static_cast<int>(syscall(SYS_close, handle));
    return met.Fails() ? -1 : result;
}
}
