#pragma once

#include "core/StateFolder.h"

#include <QString>
#include <QtGlobal>

#ifndef Q_OS_UNIX
#include <QLockFile>

#include <memory>
#endif

namespace Ui {

// A file that one owner at a time can have. It ends with its owner, or with the process, however that ends. The
// system itself holds the lock, and nothing has to be read from the file to tell who lives.
class FileLock {
public:
    FileLock() = default;
    ~FileLock() { Release(); }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    // To be called once. A file that is there and locked by nobody is taken over.
    [[nodiscard]] CommonRoutines::LockResult Take(const QString& path);
    // Removes the file, if it has been taken and is still there.
    void Release();
    // Why it was impossible to take; empty otherwise.
    [[nodiscard]] const QString& Problem() const { return m_problem; }

private:
    QString m_problem;
#ifdef Q_OS_UNIX
    QString m_path;
    int m_handle = -1;
#else
    std::unique_ptr<QLockFile> m_lock;
#endif
};

} // namespace Ui
