#pragma once

#include "driver/UserPlaces.h"
#include "recovery/SaveCopy.h"
#include "ui/Text.h"
#include "ui/machine/DurableFile.h"
#include "ui/machine/FilePlace.h"
#include "ui/machine/QtDesktop.h"

#include <QDir>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>

// A file in a folder of its own, which is written as the program writes it.
class FilePlaceTest : public testing::Test {
protected:
    FilePlaceTest() { EXPECT_TRUE(DurableFile::Replace(file, "old")); }

    [[nodiscard]] QString Path(const QString& name) const { return m_folder.filePath(name); }
    [[nodiscard]] QString Folder() const { return m_folder.path(); }
    static bool Write(const QString& path, const std::string& content = "new and longer") {
        Ui::QtDesktop desktop;
        return CommonRoutines::WriteFile(desktop, Text::PathFromQt(path), content);
    }
    [[nodiscard]] static QStringList CopiesLeft() {
        return QDir(UserPlaces::StateFolder()).entryList(QDir::Files | QDir::Hidden);
    }

private:
    UserPlaces m_places;
    QTemporaryDir m_folder;

protected:
    const QString file = Path(QStringLiteral("file"));
};
