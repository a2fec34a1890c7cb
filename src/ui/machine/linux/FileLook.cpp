#include "ui/machine/FileLook.h"

#include <QDateTime>
#include <QFileInfo>

namespace FileLook {

namespace {

std::filesystem::path NameOf(const QString& path) {
    return QFileInfo(path).filesystemFilePath();
}

} // namespace

std::filesystem::file_status StatusOf(const QString& path) {
    std::error_code error;
    return std::filesystem::status(NameOf(path), error);
}

std::optional<QString> WithoutLinks(const QString& path) {
    std::error_code error;
    const QString target = QFileInfo(std::filesystem::canonical(NameOf(path), error)).filePath();
    return error ? std::nullopt : std::optional(target);
}

std::uintmax_t SizeOf(const QString& path, std::error_code& error) {
    return std::filesystem::file_size(NameOf(path), error);
}

bool IsMissing(const std::error_code& error) {
    return error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory ||
           error == std::errc::filename_too_long;
}

std::string TimesOf(const QString& path) {
    const QFileInfo file(path);
    std::string times;
    for (const QDateTime& time : {file.lastModified(), file.metadataChangeTime()}) {
        times += ' ' + std::to_string(time.toMSecsSinceEpoch());
    }
    return times;
}

bool AreOne(const QString& a, const QString& b) {
    std::error_code error;
    return std::filesystem::equivalent(NameOf(a), NameOf(b), error);
}

bool IsGone(const QString& path) {
    std::error_code error;
    return std::filesystem::symlink_status(NameOf(path), error).type() == std::filesystem::file_type::not_found;
}

std::vector<std::string> NamesIn(const QString& folder, std::error_code& error) {
    std::vector<std::string> names;
    std::filesystem::directory_iterator entry(NameOf(folder), error);
    while (!error && entry != std::filesystem::directory_iterator()) {
        if (std::error_code other; entry->is_regular_file(other)) {
            const std::u8string name = entry->path().filename().u8string();
            names.emplace_back(name.begin(), name.end());
        }
        entry.increment(error);
    }
    return names;
}

QString Message(const std::error_code& error) {
    return QString::fromStdString(error.message());
}

bool MayWrite(const QString& path) {
    return QFileInfo(path).isWritable();
}

bool MayMakeFilesIn(const QString& folder) {
    const QFileInfo info(folder);
    return info.isDir() && info.isWritable() && info.isExecutable(); // which lets one enter it
}

// Where one cannot, making it fails.
bool MayBeNamed(const QString& /*path*/) {
    return true;
}

QString FolderLeft(const QString& beginning) {
    return beginning;
}

} // namespace FileLook
