#include "ui/DurableFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

// The only place that goes past the toolkit to the system, since the toolkit neither reports that the
// disk refused what it was given nor writes down the names in a folder.
#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace DurableFile {

namespace {

#ifdef Q_OS_UNIX

bool SyncContent(int handle) {
    return fsync(handle) == 0;
}

bool SyncFolder(const QString& folder) {
    const int handle = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) {
        return false;
    }
    const bool synced = fsync(handle) == 0;
    close(handle);
    return synced;
}

#else

// There the toolkit's own flushing has to do.
bool SyncContent(int /*handle*/) {
    return true;
}
bool SyncFolder(const QString& /*folder*/) {
    return true;
}

#endif

} // namespace

bool Replace(const QString& path, std::string_view content) {
    const QFileInfo target(path);
    if (target.exists() && !target.isFile()) {
        return false;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    // Everything is on the disk before the commit, which would put a file that is not in the place of
    // the old one without a word.
    const auto size = static_cast<qint64>(content.size());
    if (file.write(content.data(), size) != size || !file.flush() || !SyncContent(file.handle())) {
        file.cancelWriting();
    }
    // A link leads to the folder in which the name of the new file stands.
    return file.commit() && SyncFolder(QFileInfo(QFileInfo(path).canonicalFilePath()).absolutePath());
}

} // namespace DurableFile
