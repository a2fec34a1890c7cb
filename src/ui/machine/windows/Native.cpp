#include "ui/machine/windows/Native.h"

#include <QDir>

#include <cstring>

namespace Native {

namespace {

constexpr QLatin1String Mark("\\\\?\\");
constexpr QLatin1String ShareMark("\\\\?\\UNC\\");
constexpr QLatin1String Share("\\\\");

std::wstring FullName(const std::wstring& name) {
    std::wstring full(name.size() + MAX_PATH, L'\0');
    DWORD size = GetFullPathNameW(name.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    if (size > full.size()) {
        full.resize(size);
        size = GetFullPathNameW(name.c_str(), size, full.data(), nullptr);
    }
    full.resize(size <= full.size() ? size : 0);
    return full;
}

} // namespace

std::wstring NameOf(const QString& path) {
    const QString native = QDir::toNativeSeparators(path);
    if (path.isEmpty() || native.startsWith(Mark)) {
        return native.toStdWString();
    }
    const QString full = QString::fromStdWString(FullName(native.toStdWString()));
    const bool isShare = full.startsWith(Share) && !full.startsWith(QLatin1String("\\\\.\\"));
    return (isShare ? ShareMark + full.mid(Share.size()) : Mark + full).toStdWString();
}

QString PathOf(const std::wstring& name) {
    const QString path = QString::fromStdWString(name);
    return QDir::fromNativeSeparators(path.startsWith(ShareMark) ? Share + path.mid(ShareMark.size())
                                      : path.startsWith(Mark)    ? path.mid(Mark.size())
                                                                 : path);
}

Handle::~Handle() {
    if (IsOpen()) {
        CloseHandle(m_handle);
    }
}

HANDLE Open(const QString& path, DWORD access, DWORD flags) {
    return CreateFileW(NameOf(path).c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                       OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | flags, nullptr);
}

// Where a disk has no numbers for files, they are all zero.
bool AreOne(HANDLE a, HANDLE b) {
    constexpr FILE_ID_128 none{};
    FILE_ID_INFO idOfA{};
    FILE_ID_INFO idOfB{};
    if (GetFileInformationByHandleEx(a, FileIdInfo, &idOfA, sizeof idOfA) != 0 &&
        GetFileInformationByHandleEx(b, FileIdInfo, &idOfB, sizeof idOfB) != 0) {
        return idOfA.VolumeSerialNumber == idOfB.VolumeSerialNumber &&
               std::memcmp(&idOfA.FileId, &idOfB.FileId, sizeof none) == 0 &&
               std::memcmp(&idOfA.FileId, &none, sizeof none) != 0;
    }
    BY_HANDLE_FILE_INFORMATION infoOfA{}; // some file systems have shorter numbers alone
    BY_HANDLE_FILE_INFORMATION infoOfB{};
    return GetFileInformationByHandle(a, &infoOfA) != 0 && GetFileInformationByHandle(b, &infoOfB) != 0 &&
           infoOfA.dwVolumeSerialNumber == infoOfB.dwVolumeSerialNumber &&
           infoOfA.nFileIndexHigh == infoOfB.nFileIndexHigh && infoOfA.nFileIndexLow == infoOfB.nFileIndexLow &&
           (infoOfA.nFileIndexHigh | infoOfA.nFileIndexLow) != 0;
}

std::optional<DWORD> VolumeOf(HANDLE file) {
    DWORD flags = 0;
    const bool isKnown = GetVolumeInformationByHandleW(file, nullptr, 0, nullptr, nullptr, &flags, nullptr, 0) != 0;
    return isKnown ? std::optional(flags) : std::nullopt;
}

bool MayPass(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION || error == ERROR_ACCESS_DENIED ||
           error == ERROR_USER_MAPPED_FILE || error == ERROR_DELETE_PENDING;
}

} // namespace Native
