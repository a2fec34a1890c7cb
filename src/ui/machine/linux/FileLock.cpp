#include "ui/machine/FileLock.h"

#include <QFile>
#include <QThread>

// Goes past the toolkit to the system, since the toolkit tells who has a lock from what is written in it.
// A process that is killed, or finds the disk full, before it has written that leaves a lock for ever.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace Ui {

using namespace CommonRoutines;

namespace {

// Whoever looks whether a lock is dead has it for a moment.
constexpr int MostLooks = 3;
constexpr unsigned long LookMicroseconds = 500;

// Whether the file that is open is still the one with this name: whoever had it before may just have
// removed it.
bool IsStillThere(int handle, const char* path) {
    struct stat opened {};
    struct stat named {};
    return fstat(handle, &opened) == 0 && stat(path, &named) == 0 && opened.st_dev == named.st_dev &&
           opened.st_ino == named.st_ino;
}

} // namespace

LockResult FileLock::Take(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    for (int looks = 0;; ++looks) {
        const int handle = open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
        if (handle < 0) {
            m_problem = qt_error_string(errno);
            return LockResult::Impossible;
        }
        if (flock(handle, LOCK_EX | LOCK_NB) != 0) {
            const bool held = errno == EWOULDBLOCK;
            m_problem = held ? QString() : qt_error_string(errno);
            close(handle);
            if (held && looks < MostLooks) {
                QThread::usleep(LookMicroseconds);
                continue;
            }
            return held ? LockResult::HeldByAnother : LockResult::Impossible;
        }
        if (IsStillThere(handle, name.constData())) {
            m_path = path;
            m_handle = handle;
            return LockResult::Taken;
        }
        close(handle);
        if (looks >= MostLooks) {
            return LockResult::Impossible; // nobody removes it so often: it cannot be looked at
        }
    }
}

void FileLock::Release() {
    if (m_handle >= 0) {
        const int handle = static_cast<int>(m_handle);
        if (IsStillThere(handle, QFile::encodeName(m_path).constData())) {
            QFile::remove(m_path); // while it is locked, so that nobody else's is removed
        }
        close(handle);
        m_handle = -1;
    }
}

} // namespace Ui
