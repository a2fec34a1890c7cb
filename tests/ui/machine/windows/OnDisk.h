#pragma once

#include "ui/machine/DurableFile.h"
#include "ui/machine/windows/Native.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>

// A folder with one file, and another program that may have it open.
class OnDisk : public testing::Test {
protected:
    OnDisk() { EXPECT_TRUE(DurableFile::Replace(file, "old")); }

    [[nodiscard]] QString Path(const QString& name) const { return m_folder.filePath(name); }
    [[nodiscard]] QString Folder() const { return m_folder.path(); }
    [[nodiscard]] QStringList Names() const {
        return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden | QDir::System);
    }
    static std::wstring Native(const QString& path) { return Native::NameOf(path); }
    static DWORD AttributesOf(const QString& path) { return GetFileAttributesW(Native(path).c_str()); }

    // As another program opens a file that shares this with others.
    static HANDLE OpenForOthers(const QString& path, DWORD sharing, DWORD access = GENERIC_READ) {
        return CreateFileW(Native(path).c_str(), access, sharing, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                           nullptr);
    }

private:
    QTemporaryDir m_folder;

protected:
    const QString file = Path(QStringLiteral("file.txt"));
    const QStringList justTheFile{QStringLiteral("file.txt")};
};
