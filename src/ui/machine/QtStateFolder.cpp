#include "ui/machine/QtStateFolder.h"

#include "ui/Text.h"
#include "ui/machine/DateTimeText.h"
#include "ui/machine/DurableFile.h"
#include "ui/machine/FileLook.h"
#include "ui/machine/OnlyForTheUser.h"
#include "ui/machine/SystemFile.h"
#include "ui/machine/UserFolders.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <system_error>

namespace Ui {

using namespace CommonRoutines;

namespace {

void MakeFolder() {
    QDir().mkpath(UserFolders::State());
    UserFolders::CloseToOthers(UserFolders::State()); // also one that was there
}

} // namespace

QString QtStateFolder::FilePath(const std::string& name) {
    return UserFolders::State() + QLatin1Char('/') + Text::PathToQt(name);
}

std::vector<std::string> QtStateFolder::Names() {
    std::error_code error;
    std::vector<std::string> names = FileLook::NamesIn(QDir(UserFolders::State()).absolutePath(), error);
    const bool isMissing = error == std::errc::no_such_file_or_directory;
    m_problem = error && !isMissing ? Text::FromQt(FileLook::Message(error)) : std::string();
    std::sort(names.begin(), names.end());
    return names;
}

std::string QtStateFolder::NewName() {
    constexpr int digits = 8; // so that file managers, too, show the files in their order
    for (const std::string& name : Names()) {
        m_lastNumber = std::max(m_lastNumber, NumberOf(name));
    }
    return Text::PathFromQt(QStringLiteral("%1-%2")
                                .arg(++m_lastNumber, digits, 10, QLatin1Char('0'))
                                .arg(QCoreApplication::applicationPid()));
}

std::optional<std::string> QtStateFolder::Read(const std::string& name) {
    auto content = DurableFile::Read(FilePath(name));
    m_problem.clear();
    if (!content) {
        QFile file(FilePath(name));
        const bool isTooLarge = file.size() > DurableFile::LargestFile;
        m_problem = isTooLarge                       ? "It is larger than 2 GiB"
                    : file.open(QIODevice::ReadOnly) ? "Not all of it can be read"
                                                     : Text::FromQt(file.errorString());
    }
    return content;
}

bool QtStateFolder::IsGone(const std::string& name) {
    return FileLook::IsGone(FilePath(name));
}

bool QtStateFolder::Replace(const std::string& name, std::string_view content) {
    const OnlyForTheUser guard;
    MakeFolder();
    return DurableFile::Replace(FilePath(name), content);
}

bool QtStateFolder::Extend(const std::string& name, std::size_t kept, std::string_view added) {
    return DurableFile::Extend(FilePath(name), kept, added);
}

// The toolkit would copy what cannot be renamed, and half a copy could be left.
bool QtStateFolder::Rename(const std::string& name, const std::string& newName) {
    return IsGone(newName) && SystemFile::Rename(FilePath(name), FilePath(newName));
}

bool QtStateFolder::Remove(const std::string& name) {
    return SystemFile::Remove(FilePath(name));
}

LockResult QtStateFolder::Lock(const std::string& name) {
    if (m_locks.contains(name)) {
        return LockResult::HeldByAnother;
    }
    const OnlyForTheUser guard;
    MakeFolder();
    auto lock = std::make_unique<FileLock>();
    const LockResult result = lock->Take(FilePath(name));
    m_problem = Text::FromQt(lock->Problem());
    if (result == LockResult::Taken) {
        m_locks.emplace(name, std::move(lock));
    }
    return result;
}

void QtStateFolder::Unlock(const std::string& name) {
    m_locks.erase(name);
}

std::string QtStateFolder::PathOf(const std::string& name) {
    return Text::PathFromQt(FilePath(name));
}

std::string QtStateFolder::TimeOf(const std::string& name) {
    const QDateTime time = QFileInfo(FilePath(name)).lastModified();
    return DateTimeText::Day(time.date()) + ' ' + DateTimeText::ShortTime(time.time());
}

} // namespace Ui
