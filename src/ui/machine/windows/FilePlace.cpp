#include "ui/machine/FilePlace.h"

#include <QDir>
#include <QFileInfo>

#include <windows.h>

namespace FilePlace {

namespace {

bool HasFurtherNames(const QString& path) {
    const HANDLE file =
        CreateFileW(QDir::toNativeSeparators(path).toStdWString().c_str(), FILE_READ_ATTRIBUTES,
                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING, 0, nullptr);
    BY_HANDLE_FILE_INFORMATION info{};
    // What cannot be looked at is kept.
    const bool hasThem =
        file == INVALID_HANDLE_VALUE || GetFileInformationByHandle(file, &info) == 0 || info.nNumberOfLinks > 1;
    if (file != INVALID_HANDLE_VALUE) {
        CloseHandle(file);
    }
    return hasThem;
}

} // namespace

// The rights of the old file are given to the new one, and so are its attributes.
bool MustBeKept(const QString& path) {
    const QFileInfo file(path);
    return file.isFile() && file.isWritable() && HasFurtherNames(file.filePath());
}

} // namespace FilePlace
