#pragma once

#include <QFileDevice>
#include <QString>

#include <filesystem>
#include <functional>

class QFile;

// What each system has its own calls for, since the toolkit has none, or none that tell of every failure.
namespace SystemFile {

// Lets the system begin to put on the disk what has been written into an open file. Only Sync tells how that went.
void BeginSync(QFileDevice& file);

// Puts on the disk what has been written into an open file.
[[nodiscard]] bool Sync(QFileDevice& file);

// Puts the names in a folder on the disk.
[[nodiscard]] bool SyncFolder(const QString& folder);

// Opens a file for writing, which need not be readable, and makes it where it is new.
[[nodiscard]] bool OpenWithoutEmptying(QFile& file, bool isNew);

// Puts what `write` writes into a new file in the place of the old one, at once, once it is whole on the disk. The new
// one gets the rights of the old one, whose status this is, and nobody else may read it before. False when the old one
// is still there.
[[nodiscard]] bool Replace(const QString& path, const std::filesystem::file_status& old,
                           const std::function<bool(QFileDevice&)>& write);

// Another file of the new name, if any, need not stay.
[[nodiscard]] bool Rename(const QString& path, const QString& newPath);
[[nodiscard]] bool Remove(const QString& path);

} // namespace SystemFile
