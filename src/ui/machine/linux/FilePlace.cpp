#include "ui/machine/FilePlace.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <optional>

// Goes past the toolkit to the system, since the toolkit knows nothing of mounts and of attributes.
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstdlib>

namespace FilePlace {

namespace {

constexpr long LongestName = 255;       // where the system does not tell
constexpr long TemporaryEnding = 7;     // ".XXXXXX", behind the whole name
constexpr mode_t SpecialRights = 07000; // which the toolkit does not give to a new file

// Where the file is, or will be made, whatever links lead there; nothing when that cannot be told.
std::optional<QByteArray> Target(const QString& path, bool exists) {
    const QByteArray name = QFile::encodeName(path);
    if (!exists) {
        const QFileInfo file(path);
        return file.isSymLink() ? QFile::encodeName(file.symLinkTarget()) : name;
    }
    std::array<char, PATH_MAX> target{};
    return realpath(name.constData(), target.data()) != nullptr ? std::optional<QByteArray>(target.data())
                                                                : std::nullopt;
}

bool HasSystemAttribute(const QByteArray& name, std::uint64_t attribute) {
    struct statx status {};
    if (statx(AT_FDCWD, name.constData(), 0, 0, &status) != 0) {
        return errno != ENOSYS && errno != EPERM; // as where the system does not know it, or a container forbids it
    }
    return (status.stx_attributes & attribute) != 0;
}

bool LeavesNoRoomForEnding(const QByteArray& file, const QByteArray& folder) {
    const long longest = pathconf(folder.constData(), _PC_NAME_MAX);
    const qsizetype length = file.size() - (file.lastIndexOf('/') + 1);
    return length + TemporaryEnding > (longest > 0 ? longest : LongestName);
}

// Labels that the system itself gives to every file do not count.
bool HasAttributes(const QByteArray& name) {
    const ssize_t size = listxattr(name.constData(), nullptr, 0);
    if (size <= 0) {
        return size < 0 && errno != ENOTSUP;
    }
    QByteArray list(static_cast<qsizetype>(size), '\0');
    const ssize_t read = listxattr(name.constData(), list.data(), static_cast<std::size_t>(size));
    if (read < 0) {
        return true; // they are just being changed
    }
    const QByteArrayList attributes = list.left(static_cast<qsizetype>(read)).split('\0');
    return std::any_of(attributes.begin(), attributes.end(), [](const QByteArray& attribute) {
        return !attribute.isEmpty() && !attribute.startsWith("security.");
    });
}

// A new file gets what its folder has for new ones.
bool WouldBeReadableByOthers(const QByteArray& folder) {
    return getxattr(folder.constData(), "system.posix_acl_default", nullptr, 0) >= 0 ||
           (errno != ENODATA && errno != ENOTSUP);
}

bool WouldBelongToOthers(const struct stat& file, const struct stat& folder) {
    const gid_t group = (folder.st_mode & S_ISGID) != 0 ? folder.st_gid : getegid();
    return file.st_uid != geteuid() || file.st_gid != group;
}

bool WouldNotBeTheSame(const struct stat& file, const QByteArray& name, const QByteArray& folderName) {
    struct stat folder {};
    return stat(folderName.constData(), &folder) != 0 || file.st_nlink > 1 || (file.st_mode & SpecialRights) != 0 ||
           WouldBelongToOthers(file, folder) || HasAttributes(name) || WouldBeReadableByOthers(folderName);
}

bool IsForbidden(int error) {
    return error == EACCES || error == EROFS;
}

} // namespace

// What cannot be looked at might be anything: it is kept.
bool MustBeKept(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    struct stat file {};
    const bool exists = stat(name.constData(), &file) == 0;
    if (!exists && errno != ENOENT && errno != ENOTDIR && errno != ENAMETOOLONG) {
        return true;
    }
    if (exists && !S_ISREG(file.st_mode)) {
        return false;
    }
    if (exists && access(name.constData(), W_OK) != 0) {
        return !IsForbidden(errno);
    }
    const auto target = Target(path, exists);
    if (!target) {
        return true;
    }
    const QByteArray folder = target->left(std::max<qsizetype>(target->lastIndexOf('/'), 1));
    if (LeavesNoRoomForEnding(*target, folder) || HasSystemAttribute(folder, STATX_ATTR_APPEND)) {
        return true;
    }
    return exists && (access(folder.constData(), W_OK) != 0 || HasSystemAttribute(*target, STATX_ATTR_MOUNT_ROOT) ||
                      WouldNotBeTheSame(file, *target, folder));
}

} // namespace FilePlace
