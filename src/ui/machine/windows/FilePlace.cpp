#include "ui/machine/FilePlace.h"

#include "ui/machine/FileLook.h"
#include "ui/machine/windows/Native.h"
#include "ui/machine/windows/Rights.h"

#include <QFileInfo>

#include <string>

namespace FilePlace {

namespace {

using Native::Handle;

constexpr qsizetype LongestName = 255;
constexpr qsizetype TemporaryEnding = 7; // ".XXXXXX", behind the whole name

// What a new file can be given. The others say how the content is stored, or that it is somewhere else.
constexpr DWORD PlainAttributes = FILE_ATTRIBUTE_NORMAL | FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_HIDDEN |
                                  FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_TEMPORARY | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

// Streams beside the content, such as where a file was loaded from.
bool HasFurtherStreams(const QString& path, HANDLE file) {
    const auto volume = Native::VolumeOf(file);
    if (!volume || (*volume & FILE_NAMED_STREAMS) == 0) {
        return !volume;
    }
    WIN32_FIND_STREAM_DATA stream{};
    const HANDLE search = FindFirstStreamW(Native::NameOf(path).c_str(), FindStreamInfoStandard, &stream, 0);
    if (search == INVALID_HANDLE_VALUE) {
        return GetLastError() != ERROR_HANDLE_EOF;
    }
    const bool hasThem = FindNextStreamW(search, &stream) != 0 || GetLastError() != ERROR_HANDLE_EOF;
    FindClose(search);
    return hasThem;
}

// Only what is certain keeps a file from being replaced: that another program has it open now is seen later.
bool IsForbidden(const QString& path, DWORD access) {
    const Handle file(Native::Open(path, access));
    return !file.IsOpen() && GetLastError() == ERROR_ACCESS_DENIED;
}

bool WouldNotBeTheSame(const QString& path) {
    const Handle file(Native::Open(path, FILE_READ_ATTRIBUTES | READ_CONTROL, FILE_FLAG_OPEN_REPARSE_POINT));
    BY_HANDLE_FILE_INFORMATION info{};
    return !file.IsOpen() || GetFileInformationByHandle(file.Get(), &info) == 0 || info.nNumberOfLinks > 1 ||
           (info.dwFileAttributes & ~PlainAttributes) != 0 || Rights::CannotBeGiven(file.Get()) ||
           IsForbidden(path, WRITE_DAC) || HasFurtherStreams(path, file.Get());
}

bool LeavesNoRoomForEnding(const QString& path) {
    return QFileInfo(path).fileName().size() + TemporaryEnding > LongestName;
}

} // namespace

// What cannot be looked at might be anything: it is kept.
bool MustBeKept(const QString& path) {
    const auto type = FileLook::StatusOf(path).type();
    if (type == std::filesystem::file_type::not_found) { // or is a link that leads to a name where nothing is yet
        return LeavesNoRoomForEnding(path) || !FileLook::IsGone(path);
    }
    if (type != std::filesystem::file_type::regular) {
        return type == std::filesystem::file_type::none;
    }
    if (!FileLook::MayWrite(path)) {
        return false;
    }
    const auto target = FileLook::WithoutLinks(path);
    return !target || LeavesNoRoomForEnding(*target) ||
           !FileLook::MayMakeFilesIn(FileLook::FolderLeft(QFileInfo(*target).path())) || IsForbidden(*target, DELETE) ||
           WouldNotBeTheSame(*target);
}

} // namespace FilePlace
