#include "MetCall.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
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
    Family family = Setting("QUEXAL_FAULT_FAMILY") == "looks" ? Family::Looks : Family::Changes;
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

void Log(const std::string& line) {
    const long log = syscall(SYS_openat, AT_FDCWD, TheSettings().log.c_str(), O_WRONLY | O_APPEND | O_CREAT, 0600);
    syscall(SYS_write, log, line.data(), line.size());
    syscall(SYS_close, log);
}

} // namespace

bool Counts(Family family) {
    return family == TheSettings().family;
}

bool IsNamedOnly(const std::string& path) {
    return TheSettings().namedFilesOnly && Watched(path);
}

std::string PathOf(int handle) {
    char path[PATH_MAX];
    const std::string link = "/proc/self/fd/" + std::to_string(handle);
    const long length = syscall(SYS_readlinkat, AT_FDCWD, link.c_str(), path, sizeof path);
    return length < 0 ? std::string() : std::string(path, static_cast<std::size_t>(length));
}

std::string PathOf(int folder, const char* path) {
    if (*path == '/') {
        return path;
    }
    if (*path == '\0') {
        return PathOf(folder);
    }
    char current[PATH_MAX];
    if (folder != AT_FDCWD) {
        return PathOf(folder) + "/" + path;
    }
    return std::string(getcwd(current, sizeof current) == nullptr ? "" : current) + "/" + path;
}

Met::Met(Family family, const char* kind, const std::string& path) {
    if (!Counts(family) || !Watched(path)) {
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

Met::~Met() {
    const int error = errno;
    if (Is("kill-after") || Is("tear")) {
        std::raise(SIGKILL);
    }
    errno = error;
}

bool Met::Fails() const {
    if (m_fails) {
        errno = TheSettings().error;
    }
    return m_fails;
}

bool Met::Pretends() const {
    return m_watched && TheSettings().action == "pretend";
}

std::size_t Met::Shortened(std::size_t size) const {
    if (Is("tear")) {
        return size - size / 10;
    }
    return Is("short") && size > 1 ? size / 2 : size;
}

bool Met::Is(std::string_view action) const {
    return m_watched && m_number == TheSettings().call && TheSettings().action == action;
}
