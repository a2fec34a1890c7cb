#pragma once

#include "ui/machine/DurableFile.h"

#include <QDir>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// A file in a folder of its own.
class DurableFileTest : public testing::Test {
protected:
    DurableFileTest() { EXPECT_TRUE(DurableFile::Replace(file, "old")); }

    [[nodiscard]] QString Path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    [[nodiscard]] QString Folder() const { return m_folder.path(); }
    [[nodiscard]] QStringList Names() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden); }

private:
    QTemporaryDir m_folder;

protected:
    const QString file = Path("file");
};
