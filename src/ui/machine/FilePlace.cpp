#include "ui/machine/FilePlace.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

// Goes past the toolkit to the system, since the toolkit knows nothing of mounts and of attributes.
#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace FilePlace {

namespace {

// Where the file is, or will be made, whatever links lead there.
QFileInfo Target(const QString& path) {
    const QFileInfo file(path);
    if (file.exists()) {
        return QFileInfo(file.canonicalFilePath());
    }
    return file.isSymLink() ? QFileInfo(file.symLinkTarget()) : file;
}

#ifdef Q_OS_LINUX

constexpr long LongestName = 255;       // where the system does not tell
constexpr long TemporaryEnding = 7;     // ".XXXXXX", behind the whole name
constexpr mode_t SpecialRights = 07000; // which the toolkit does not give to a new file

QByteArray NameOf(const QFileInfo& file) {
    return QFile::encodeName(file.filePath());
}

bool HasSystemAttribute(const QByteArray& name, std::uint64_t attribute) {
    struct statx status {};
    return statx(AT_FDCWD, name.constData(), 0, 0, &status) == 0 && (status.stx_attributes & attribute) != 0;
}

bool LeavesNoRoomForEnding(const QFileInfo& file, const QByteArray& folder) {
    const long longest = pathconf(folder.constData(), _PC_NAME_MAX);
    return QFile::encodeName(file.fileName()).size() + TemporaryEnding > (longest > 0 ? longest : LongestName);
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
    return getxattr(folder.constData(), "system.posix_acl_default", nullptr, 0) >= 0;
}

bool WouldBelongToOthers(const struct stat& file, const struct stat& folder) {
    const gid_t group = (folder.st_mode & S_ISGID) != 0 ? folder.st_gid : getegid();
    return file.st_uid != geteuid() || file.st_gid != group;
}

bool WouldNotBeTheSame(const QByteArray& name, const QByteArray& folderName) {
    struct stat file {};
    struct stat folder {};
    if (stat(name.constData(), &file) != 0 || stat(folderName.constData(), &folder) != 0) {
        return true; // it cannot be told
    }
    return file.st_nlink > 1 || (file.st_mode & SpecialRights) != 0 || WouldBelongToOthers(file, folder) ||
           HasAttributes(name) || WouldBeReadableByOthers(folderName);
}

bool MustBeKept(const QFileInfo& file, const QFileInfo& folder) {
    const QByteArray folderName = NameOf(folder);
    if (LeavesNoRoomForEnding(file, folderName) || HasSystemAttribute(folderName, STATX_ATTR_APPEND)) {
        return true;
    }
    return file.exists() && (!folder.isWritable() || HasSystemAttribute(NameOf(file), STATX_ATTR_MOUNT_ROOT) ||
                             WouldNotBeTheSame(NameOf(file), folderName));
}

#else

bool MustBeKept(const QFileInfo& file, const QFileInfo& folder) {
    return file.exists() && !folder.isWritable();
}

#endif

} // namespace

bool MustBeKept(const QString& path) {
    const QFileInfo file = Target(path);
    const bool mayBeWritten = !file.exists() || (file.isFile() && file.isWritable());
    return mayBeWritten && MustBeKept(file, QFileInfo(file.absolutePath()));
}

} // namespace FilePlace
