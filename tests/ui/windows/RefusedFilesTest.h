#pragma once

#include "driver/AnsweringDesktop.h"
#include "rules/Capitals.h"
#include "support/Table.h"
#include "ui/windows/Form1.h"

#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

class RefusingDesktop : public Ui::AnsweringDesktop {
public:
    std::vector<std::string> messages;

    RefusingDesktop() {
        onBox = [this](std::string_view text) { messages.emplace_back(text); };
    }
    void EnterProgramFolder() override {}
};

// Files that each command refuses with a message.
class RefusedFiles : public StateTest {
protected:
    RefusedFiles() { desktop.programFolder = m_folder.path().toStdString(); }

    std::string Path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)).toStdString(); }
    // A file of a size that takes no room on the disk.
    std::string FileOfSize(const char* name, qint64 size) const {
        QFile file(QString::fromStdString(Path(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(size));
        return Path(name);
    }
    static void Click(Ui::Form1& form, const char* button) {
        form.findChild<QPushButton*>(QString::fromLatin1(button))->click();
    }
    void ExpectRefusedAsDataFile(const std::string& path) {
        Ui::Form1 form(desktop);
        ExpectMessage(form, "cbOpen", path);
        EXPECT_EQ(CommonRoutines::lLineCount, 0);
        EXPECT_EQ(CommonRoutines::sDataFileName, "");
    }
    void ExpectRefusedAsChangeFile(const std::string& path) {
        Ui::Form1 form(desktop);
        form.findChild<QPushButton*>(QStringLiteral("btnProcess"))->setEnabled(true);
        ExpectMessage(form, "btnProcess", path);
    }
    // What stands in the place of the word list.
    void ExpectNoWordList() {
        desktop.messages.clear();
        CommonRoutines::LoadLowerCaseWords(desktop);
        EXPECT_EQ(desktop.messages, std::vector<std::string>{"No lowercase file found - no words will be ignored"});
        EXPECT_EQ(CommonRoutines::LowerCaseWords().count, 0);
    }

    static constexpr qint64 TwoGigabytes = qint64{1} << 31;
    static constexpr const char* WordList = "qx_lower.txt";

    RefusingDesktop desktop;

private:
    void ExpectMessage(Ui::Form1& form, const char* button, const std::string& path) {
        desktop.fileToOpen = path;
        desktop.messages.clear();
        Click(form, button);
        EXPECT_EQ(desktop.messages, std::vector<std::string>{"The file cannot be read:\r\n" + path});
    }

    QTemporaryDir m_folder;
};
