#include "ui/machine/SystemFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace SystemFile {

namespace {

constexpr mode_t ReadableByAll = 0666; // the user's mask takes away what others may not do

// Whether a new file lets everybody do what the old one does. The toolkit takes a look at that one that fails for a
// file that nobody may touch.
bool HasRightsOf(const QFileDevice& file, const std::filesystem::file_status& old) {
    constexpr auto all = static_cast<mode_t>(std::filesystem::perms::all);
    struct stat status {};
    return old.type() == std::filesystem::file_type::not_found ||
           (fstat(file.handle(), &status) == 0 &&
            (status.st_mode & all) == (static_cast<mode_t>(old.permissions()) & all));
}

} // namespace

void BeginSync(QFileDevice& file) {
    constexpr off64_t toTheEnd = 0;
    sync_file_range(file.handle(), 0, toTheEnd, SYNC_FILE_RANGE_WRITE);
}

// Of what is kept about a file, only its size matters here, which is put on the disk with its content.
bool Sync(QFileDevice& file) {
    return fdatasync(file.handle()) == 0;
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

// The toolkit would empty a file that it opens for writing alone. A file of somebody else in a folder for all may only
// be opened without leave to make one.
bool OpenWithoutEmptying(QFile& file, bool isNew) {
    const QByteArray name = QFile::encodeName(file.fileName());
    const int handle = open(name.constData(), O_WRONLY | O_CLOEXEC | (isNew ? O_CREAT : 0), ReadableByAll);
    return handle >= 0 && file.open(handle, QIODevice::WriteOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle);
}

bool Replace(const QString& path, const std::filesystem::file_status& old,
             const std::function<bool(QFileDevice&)>& write) {
    QSaveFile file(path);
    // The toolkit lets nobody else read the new file until it has the rights of the old one. It would put a file that
    // is not whole in the place of the old one without a word.
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    if (!HasRightsOf(file, old) || !write(file)) {
        file.cancelWriting();
    }
    return file.commit();
}

bool Rename(const QString& path, const QString& newPath) {
    std::error_code error;
    std::filesystem::rename(QFileInfo(path).filesystemFilePath(), QFileInfo(newPath).filesystemFilePath(), error);
    return !error;
}

bool Remove(const QString& path) {
    return QFile::remove(path);
}

} // namespace SystemFile
