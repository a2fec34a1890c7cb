#pragma once

#include "ui/machine/AsOrdinaryUser.h"
#include "ui/machine/DesktopTest.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include <optional>
#include <string>

// The dialogues for files, on a folder that is theirs.
class FileDialoguesTest : public DesktopTest {
protected:
    std::string Path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)).toStdString(); }
    std::string Folder() const { return m_folder.path().toStdString(); }
    std::string Existing(const char* name) const {
        QFile file(m_folder.filePath(QString::fromLatin1(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return Path(name);
    }
    void ChooseNext(const std::string& path) {
        guide.Next([path](QWidget& dialogue) { Ui::DialogueGuide::ChooseFile(dialogue, path); });
    }
    void LetOthersOnlyEnterFolder() const {
        QFile::setPermissions(QString::fromStdString(Folder()),
                              ForAllToRead | QFile::WriteOwner | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);
    }
    // The box shows this name with the characters that it has.
    static void ExpectPlain(QWidget& box, const QString& name) {
        const auto& message = dynamic_cast<QMessageBox&>(box);
        EXPECT_EQ(message.textFormat(), Qt::PlainText);
        EXPECT_TRUE(message.text().contains(name)) << message.text().toStdString();
        EXPECT_EQ(message.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))->textFormat(), Qt::PlainText);
    }
    void ExpectRefused(const std::string& path, bool isThere);
    // The guide takes one that comes again for answered.
    static void RejectWhenShown(QDialog& dialogue) {
        auto* const timer = new QTimer(&dialogue);
        QObject::connect(timer, &QTimer::timeout, &dialogue, [&dialogue] {
            if (dialogue.isVisible()) {
                dialogue.reject();
            }
        });
        timer->start(10);
    }
    CommonRoutines::FileRequest InFolder() const { return {"", Folder(), "", ""}; }

    static constexpr QFile::Permissions ForAllToRead = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;

private:
    QTemporaryDir m_folder;
};

// To choose this file is refused with a message, and the dialogue comes again.
inline void FileDialoguesTest::ExpectRefused(const std::string& path, bool isThere) {
    const AsOrdinaryUser user;
    // The same dialogue comes up again, which the guide takes for answered.
    QTimer again;
    bool cameAgain = false;
    guide.Next([&](QWidget& dialogue) {
        if (isThere) {
            PressNext("Yes");
        }
        guide.Next([](QWidget& refusal) {
            EXPECT_EQ(dynamic_cast<QMessageBox&>(refusal).text(),
                      QStringLiteral("This file is read-only. Please choose another name."));
            Ui::DialogueGuide::Press(refusal, "OK");
        });
        Ui::DialogueGuide::ChooseFile(dialogue, path);
        QObject::connect(&again, &QTimer::timeout, &dialogue, [&] {
            if (QApplication::activeModalWidget() == &dialogue && guide.AllAnswered()) {
                again.stop();
                cameAgain = true;
                dynamic_cast<QFileDialog&>(dialogue).reject();
            }
        });
        again.start(10);
    });
    EXPECT_EQ(desktop.ChooseFileToSave(InFolder()), std::nullopt);
    EXPECT_TRUE(cameAgain);
}
