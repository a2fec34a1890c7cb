#include "ui/machine/FileLock.h"

#include <QDir>
#include <QThread>

#include <string>
#include <windows.h>

namespace Ui {

using namespace CommonRoutines;

namespace {

// Whoever looks whether a lock is dead has it for a moment.
constexpr int MostLooks = 3;
constexpr unsigned long LookMilliseconds = 1;

// A file that is being removed has no name any more for those who come.
bool IsStillThere(HANDLE file) {
    FILE_STANDARD_INFO info{};
    return GetFileInformationByHandleEx(file, FileStandardInfo, &info, sizeof info) != 0 && info.DeletePending == 0;
}

} // namespace

LockResult FileLock::Take(const QString& path) {
    const std::wstring name = QDir::toNativeSeparators(path).toStdWString();
    for (int looks = 0;; ++looks) {
        const HANDLE file = CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                                        FILE_ATTRIBUTE_NORMAL, nullptr);
        OVERLAPPED start{};
        if (file != INVALID_HANDLE_VALUE &&
            LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &start) != 0 &&
            IsStillThere(file)) {
            m_path = path;
            m_handle = reinterpret_cast<std::intptr_t>(file);
            return LockResult::Taken;
        }
        const DWORD error = GetLastError();
        const bool isHeld = error == ERROR_LOCK_VIOLATION || error == ERROR_IO_PENDING;
        if (file != INVALID_HANDLE_VALUE) {
            CloseHandle(file);
        }
        if (looks >= MostLooks) {
            m_problem = isHeld ? QString() : qt_error_string(static_cast<int>(error));
            return isHeld ? LockResult::HeldByAnother : LockResult::Impossible;
        }
        QThread::msleep(LookMilliseconds);
    }
}

void FileLock::Release() {
    if (m_handle != -1) {
        const auto file = reinterpret_cast<HANDLE>(m_handle);
        FILE_DISPOSITION_INFO removed{TRUE}; // while it is locked, so that nobody else's is removed
        SetFileInformationByHandle(file, FileDispositionInfo, &removed, sizeof removed);
        CloseHandle(file);
        m_handle = -1;
    }
}

} // namespace Ui
