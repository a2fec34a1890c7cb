#include "ui/machine/FileLock.h"

#include "ui/machine/windows/Native.h"

#include <QThread>

namespace Ui {

using namespace CommonRoutines;

namespace {

// Whoever looks whether a lock is dead has it for a moment.
constexpr int MostLooks = 3;
constexpr unsigned long LookMilliseconds = 1;

// Whether the file that is open is still the one with this name: whoever had it before may just have removed it.
bool IsStillThere(HANDLE file, const QString& path) {
    const Native::Handle named(Native::Open(path));
    return named.IsOpen() && Native::AreOne(file, named.Get());
}

constexpr auto FileDispositionInfoEx = static_cast<FILE_INFO_BY_HANDLE_CLASS>(21); // which older headers lack

// Its name goes at once where the system knows that, elsewhere when the last one who looks at it has closed it.
void Remove(HANDLE file) {
    FILE_DISPOSITION_INFO_EX atOnce{FILE_DISPOSITION_FLAG_DELETE | FILE_DISPOSITION_FLAG_POSIX_SEMANTICS};
    if (SetFileInformationByHandle(file, FileDispositionInfoEx, &atOnce, sizeof atOnce) == 0) {
        FILE_DISPOSITION_INFO atClose{TRUE};
        SetFileInformationByHandle(file, FileDispositionInfo, &atClose, sizeof atClose);
    }
}

} // namespace

LockResult FileLock::Take(const QString& path) {
    const std::wstring name = Native::NameOf(path);
    for (int looks = 0;; ++looks) {
        const HANDLE file = CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                                        FILE_ATTRIBUTE_NORMAL, nullptr);
        DWORD error = GetLastError();
        OVERLAPPED start{};
        if (file != INVALID_HANDLE_VALUE) {
            const bool isLocked =
                LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &start) != 0;
            error = isLocked ? ERROR_DELETE_PENDING : GetLastError();
            if (isLocked && IsStillThere(file, path)) {
                m_path = path;
                m_handle = reinterpret_cast<std::intptr_t>(file);
                return LockResult::Taken;
            }
            CloseHandle(file);
        }
        const bool isHeld = error == ERROR_LOCK_VIOLATION || error == ERROR_IO_PENDING;
        if (looks >= (isHeld ? MostLooks : Native::Tries) || !(isHeld || Native::MayPass(error))) {
            m_problem = isHeld ? QString() : qt_error_string(static_cast<int>(error));
            return isHeld ? LockResult::HeldByAnother : LockResult::Impossible;
        }
        QThread::msleep(isHeld ? LookMilliseconds : Native::PauseMilliseconds);
    }
}

void FileLock::Release() {
    if (m_handle != -1) {
        const auto file = reinterpret_cast<HANDLE>(m_handle);
        Remove(file); // while it is locked, so that nobody else's is removed
        CloseHandle(file);
        m_handle = -1;
    }
}

} // namespace Ui
