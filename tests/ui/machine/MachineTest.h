#pragma once

#include "ui/machine/QtDesktop.h"

#include <QDir>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fstream>
#include <string>

// The real desktop, and a folder for files.
class MachineTest : public testing::Test {
protected:
    std::string Path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)).toStdString(); }
    std::string Written(const char* name, const char* content) const {
        std::ofstream(Path(name)) << content;
        return Path(name);
    }
    QStringList FilesInFolder() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden); }

    Ui::QtDesktop desktop;

private:
    QTemporaryDir m_folder;
};
