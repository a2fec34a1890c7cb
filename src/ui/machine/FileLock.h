#pragma once

#include "core/StateFolder.h"

#include <QString>

#include <cstdint>

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
    QString m_path;
    std::intptr_t m_handle = -1; // of the system
};

} // namespace Ui
