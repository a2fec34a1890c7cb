#include "ui/machine/DurableFile.h"

#include "ui/machine/FileLook.h"
#include "ui/machine/SystemFile.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>

namespace DurableFile {

namespace {

// What is to be written: a regular file, or the name of one to be made.
struct Target {
    QString path; // of a file that is there, without links
    std::filesystem::file_status status;

    [[nodiscard]] bool IsNew() const { return status.type() == std::filesystem::file_type::not_found; }
};

// Nothing for anything else, and where a look at it fails: it must not pass for a file that is not there.
std::optional<Target> TargetOf(const QString& path) {
    Target target{path, FileLook::StatusOf(path)};
    if (target.status.type() == std::filesystem::file_type::regular) {
        const auto file = FileLook::WithoutLinks(path);
        target.path = file.value_or(QString());
        return file ? std::optional(target) : std::nullopt;
    }
    return target.IsNew() && FileLook::MayBeNamed(path) ? std::optional(target) : std::nullopt;
}

// Goes through the bytes of a file piece by piece, at least once, until `transfer` refuses one.
bool InPieces(std::size_t all, const Listener& listener,
              const std::function<bool(std::size_t start, std::size_t size)>& transfer) {
    constexpr std::size_t largestPiece = std::size_t{32} << 20;
    std::size_t done = 0;
    do {
        const std::size_t size = std::min(all - done, largestPiece);
        if (!transfer(done, size)) {
            return false;
        }
        done += size;
        if (listener) {
            listener(static_cast<double>(done) / static_cast<double>(std::max<std::size_t>(all, 1)));
        }
    } while (done < all);
    return true;
}

// Puts one piece of a file on the disk, which is at work from the first part of it on.
bool WriteDurably(QFileDevice& file, std::string_view piece) {
    constexpr std::size_t partSize = std::size_t{2} << 20;
    while (!piece.empty()) {
        const std::string_view part = piece.substr(0, partSize);
        const auto size = static_cast<qint64>(part.size());
        if (file.write(part.data(), size) != size || !file.flush()) {
            return false;
        }
        SystemFile::BeginSync(file);
        piece.remove_prefix(part.size());
    }
    return SystemFile::Sync(file);
}

} // namespace

std::optional<std::string> Read(const QString& path, const Listener& listener) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > LargestFile || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    std::string content(static_cast<std::size_t>(file.size()), '\0');
    const bool isRead = InPieces(content.size(), listener, [&](std::size_t start, std::size_t size) {
        // A disk that fails half way must not make a part pass for the file.
        return file.read(content.data() + start, static_cast<qint64>(size)) == static_cast<qint64>(size);
    });
    // Some files say that they are empty and are not, and others grow meanwhile.
    char more = 0;
    return isRead && file.read(&more, 1) == 0 ? std::optional(std::move(content)) : std::nullopt;
}

bool Replace(const QString& path, std::string_view content, const Listener& listener) {
    const auto target = TargetOf(path);
    if (!target) {
        return false;
    }
    const auto write = [&](QFileDevice& file) {
        return InPieces(content.size(), listener, [&](std::size_t start, std::size_t size) {
            return WriteDurably(file, content.substr(start, size));
        });
    };
    if (!SystemFile::Replace(target->path, target->status, write)) {
        return false;
    }
    // A link that led nowhere leads to the folder in which the name of the new file stands.
    const QString written = target->IsNew() ? QFileInfo(path).canonicalFilePath() : target->path;
    return SystemFile::SyncFolder(QFileInfo(written).absolutePath());
}

bool Overwrite(const QString& path, std::string_view content, const Listener& listener) {
    const auto target = TargetOf(path);
    QFile file(path);
    if (!target || !SystemFile::OpenWithoutEmptying(file, target->IsNew())) {
        return false;
    }
    const bool isNew = target->IsNew();
    // The old end goes last: what is given up on the disk might not be had back.
    const auto size = static_cast<qint64>(content.size());
    const bool isWritten = InPieces(content.size(), listener,
                                    [&](std::size_t start, std::size_t length) {
                                        const auto piece = static_cast<qint64>(length);
                                        return file.write(content.data() + start, piece) == piece;
                                    }) &&
                           (file.size() == size || file.resize(size)) && SystemFile::Sync(file);
    const QFileInfo written(QFileInfo(path).canonicalFilePath());
    if (isNew && !isWritten) {
        file.close();
        QFile::remove(written.filePath());
    }
    return isWritten && (!isNew || SystemFile::SyncFolder(written.absolutePath()));
}

bool Extend(const QString& path, std::size_t kept, std::string_view added) {
    QFile file(path);
    const auto start = static_cast<qint64>(kept);
    const auto size = static_cast<qint64>(added.size());
    return file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered) && file.size() >= start &&
           (file.size() == start || file.resize(start)) && file.seek(start) && file.write(added.data(), size) == size &&
           SystemFile::Sync(file);
}

} // namespace DurableFile
