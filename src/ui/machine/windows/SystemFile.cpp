#include "ui/machine/SystemFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryFile>
#include <QThread>

#include <array>
#include <io.h>
#include <string>
#include <vector>
#include <windows.h>

#include <aclapi.h>

namespace SystemFile {

namespace {

// Another program may look at a file for a moment: a virus scanner, say.
constexpr int Tries = 10;
constexpr unsigned long PauseMilliseconds = 50;

HANDLE HandleOf(QFileDevice& file) {
    return reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()));
}

// As the system takes names of any length.
std::wstring NameOf(const QString& path) {
    const QString native = QDir::toNativeSeparators(path);
    const bool isShare = native.startsWith(QStringLiteral("\\\\"));
    return (native.startsWith(QStringLiteral("\\\\?\\")) ? native
            : isShare                                    ? QStringLiteral("\\\\?\\UNC\\") + native.mid(2)
                                                         : QStringLiteral("\\\\?\\") + native)
        .toStdWString();
}

bool IsHeldByAnother(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION || error == ERROR_ACCESS_DENIED ||
           error == ERROR_USER_MAPPED_FILE;
}

// Who may do what with a file, and its attributes, are given to the new one.
bool GiveRights(const std::wstring& old, const std::wstring& file) {
    const DWORD attributes = GetFileAttributesW(old.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        return false;
    }
    constexpr SECURITY_INFORMATION rights = DACL_SECURITY_INFORMATION;
    DWORD size = 0;
    GetFileSecurityW(old.c_str(), rights, nullptr, 0, &size);
    std::vector<unsigned char> descriptor(size);
    const bool areGiven = size > 0 && GetFileSecurityW(old.c_str(), rights, descriptor.data(), size, &size) != 0 &&
                          SetFileSecurityW(file.c_str(), rights, descriptor.data()) != 0;
    return areGiven && SetFileAttributesW(file.c_str(), attributes) != 0;
}

bool Rename(const std::wstring& from, const std::wstring& to) {
    for (int i = 0; i < Tries; ++i) {
        if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0) {
            return true;
        }
        if (!IsHeldByAnother(GetLastError())) {
            return false;
        }
        QThread::msleep(PauseMilliseconds);
    }
    return false;
}

} // namespace

bool Sync(QFileDevice& file) {
    return FlushFileBuffers(HandleOf(file)) != 0;
}

// The names are written through with the files.
bool SyncFolder(const QString& /*folder*/) {
    return true;
}

bool OpenWithoutEmptying(QFile& file, bool isNew) {
    for (int i = 0; i < Tries; ++i) {
        if (file.open(QIODevice::ReadWrite | QIODevice::Unbuffered |
                      (isNew ? QIODevice::NewOnly : QIODevice::ExistingOnly))) {
            return true;
        }
        QThread::msleep(PauseMilliseconds);
    }
    return false;
}

bool Replace(const QString& path, const std::filesystem::file_status& old,
             const std::function<bool(QFileDevice&)>& write) {
    QTemporaryFile file(path + QStringLiteral(".XXXXXX"));
    if (!file.open() || !write(file)) {
        return false;
    }
    file.setAutoRemove(false);
    const QString temporary = file.fileName();
    file.close();
    const bool isNew = old.type() == std::filesystem::file_type::not_found;
    const bool isReplaced =
        (isNew || GiveRights(NameOf(path), NameOf(temporary))) && Rename(NameOf(temporary), NameOf(path));
    if (!isReplaced) {
        QFile::remove(temporary);
    }
    return isReplaced;
}

} // namespace SystemFile
