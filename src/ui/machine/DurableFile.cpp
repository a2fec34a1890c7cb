#include "ui/machine/DurableFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

// Goes past the toolkit to the system, since the toolkit neither reports that the disk refused what it
// was given nor writes down the names in a folder.
#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#endif

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace DurableFile {

namespace {

#ifdef Q_OS_UNIX

constexpr mode_t ReadableByAll = 0666; // the user's mask takes away what others may not do

// Whether a new file lets everybody do what the old one does. The toolkit takes a look at that one that fails for a
// file that nobody may touch.
bool HasRightsOf(const QFileDevice& file, const std::filesystem::file_status& old) {
    struct stat status {};
    const auto rights = static_cast<mode_t>(old.permissions() & std::filesystem::perms::all);
    return old.type() == std::filesystem::file_type::not_found ||
           (fstat(file.handle(), &status) == 0 &&
            (status.st_mode & static_cast<mode_t>(std::filesystem::perms::all)) == rights);
}

// Of what is kept about a file, only its size matters here, which is put on the disk with its content.
bool SyncContent(int handle) {
    return fdatasync(handle) == 0;
}

// A folder that the user may not read cannot be synced, and some file systems sync none: there the name is
// as safe as it gets.
bool SyncFolder(const QString& folder) {
    const int handle = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) {
        return errno == EACCES;
    }
    const bool synced = fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP;
    close(handle);
    return synced;
}

// The toolkit would empty a file that it opens for writing alone, and one need not be allowed to read it. A file of
// somebody else in a folder for all may only be opened without leave to make one.
bool OpenWithoutEmptying(QFile& file, bool isNew) {
    const QByteArray name = QFile::encodeName(file.fileName());
    const int handle = open(name.constData(), O_WRONLY | O_CLOEXEC | (isNew ? O_CREAT : 0), ReadableByAll);
    return handle >= 0 && file.open(handle, QIODevice::WriteOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle);
}

#else

bool HasRightsOf(const QFileDevice& /*file*/, const std::filesystem::file_status& /*old*/) {
    return true; // the folder gives them
}
bool OpenWithoutEmptying(QFile& file, bool /*isNew*/) {
    return file.open(QIODevice::ReadWrite | QIODevice::Unbuffered);
}
// There the toolkit's own flushing has to do.
bool SyncContent(int /*handle*/) {
    return true;
}
bool SyncFolder(const QString& /*folder*/) {
    return true;
}

#endif

// What is to be written: a regular file, or the name of one to be made.
struct Target {
    QString path; // of a file that is there, without links
    std::filesystem::file_status status;

    [[nodiscard]] bool IsNew() const { return status.type() == std::filesystem::file_type::not_found; }
};

// Nothing for anything else, and where a look at it fails: it must not pass for a file that is not there.
std::optional<Target> TargetOf(const QString& path) {
    std::error_code error;
    const std::filesystem::path name = QFileInfo(path).filesystemFilePath();
    Target target{path, std::filesystem::status(name, error)};
    if (target.status.type() == std::filesystem::file_type::regular) {
        target.path = QFileInfo(std::filesystem::canonical(name, error)).filePath();
        return error ? std::nullopt : std::optional(target);
    }
    return target.IsNew() ? std::optional(target) : std::nullopt;
}

// Goes through the bytes of a file piece by piece, at least once, until `transfer` refuses one.
bool InPieces(std::size_t all, const Listener& listener,
              const std::function<bool(std::size_t start, std::size_t size)>& transfer) {
    constexpr std::size_t largestPiece = std::size_t{32} << 20;
    std::size_t done = 0;
    do {
        const std::size_t size = std::min(all - done, largestPiece);
        if (!transfer(done, size)) {
            return false;
        }
        done += size;
        if (listener) {
            listener(static_cast<double>(done) / static_cast<double>(std::max<std::size_t>(all, 1)));
        }
    } while (done < all);
    return true;
}

} // namespace

std::optional<std::string> Read(const QString& path, const Listener& listener) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > LargestFile || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    std::string content(static_cast<std::size_t>(file.size()), '\0');
    const bool isRead = InPieces(content.size(), listener, [&](std::size_t start, std::size_t size) {
        // A disk that fails half way must not make a part pass for the file.
        return file.read(content.data() + start, static_cast<qint64>(size)) == static_cast<qint64>(size);
    });
    // Some files say that they are empty and are not, and others grow meanwhile.
    char more = 0;
    return isRead && file.read(&more, 1) == 0 ? std::optional(std::move(content)) : std::nullopt;
}

bool Replace(const QString& path, std::string_view content, const Listener& listener) {
    const auto target = TargetOf(path);
    if (!target) {
        return false;
    }
    QSaveFile file(target->path);
    // The toolkit lets nobody else read the new file until it has the rights of the old one.
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    if (!HasRightsOf(file, target->status)) {
        file.cancelWriting();
        return false;
    }
    // Everything is on the disk before the commit, which would put a file that is not in the place of
    // the old one without a word.
    const bool isWritten = InPieces(content.size(), listener, [&](std::size_t start, std::size_t size) {
        return file.write(content.data() + start, static_cast<qint64>(size)) == static_cast<qint64>(size) &&
               file.flush() && SyncContent(file.handle());
    });
    if (!isWritten) {
        file.cancelWriting();
    }
    // A link leads to the folder in which the name of the new file stands.
    return file.commit() && SyncFolder(QFileInfo(QFileInfo(path).canonicalFilePath()).absolutePath());
}

bool Overwrite(const QString& path, std::string_view content, const Listener& listener) {
    const auto target = TargetOf(path);
    QFile file(path);
    if (!target || !OpenWithoutEmptying(file, target->IsNew())) {
        return false;
    }
    const bool isNew = target->IsNew();
    // The old end goes last: what is given up on the disk might not be had back.
    const auto size = static_cast<qint64>(content.size());
    const bool isWritten = InPieces(content.size(), listener,
                                    [&](std::size_t start, std::size_t length) {
                                        const auto piece = static_cast<qint64>(length);
                                        return file.write(content.data() + start, piece) == piece;
                                    }) &&
                           (file.size() == size || file.resize(size)) && SyncContent(file.handle());
    const QFileInfo written(QFileInfo(path).canonicalFilePath());
    if (isNew && !isWritten) {
        QFile::remove(written.filePath());
    }
    return isWritten && (!isNew || SyncFolder(written.absolutePath()));
}

bool Extend(const QString& path, std::size_t kept, std::string_view added) {
    QFile file(path);
    const auto start = static_cast<qint64>(kept);
    const auto size = static_cast<qint64>(added.size());
    return file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered) && file.size() >= start &&
           (file.size() == start || file.resize(start)) && file.seek(start) && file.write(added.data(), size) == size &&
           SyncContent(file.handle());
}

} // namespace DurableFile
