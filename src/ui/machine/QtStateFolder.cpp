#include "ui/machine/QtStateFolder.h"

#include "core/Ansi.h"
#include "ui/Text.h"
#include "ui/machine/DateTimeText.h"
#include "ui/machine/DurableFile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace Ui {

using namespace CommonRoutines;

namespace {

constexpr QFileDevice::Permissions OnlyForTheUser =
    QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;

QString FolderPath() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    // The toolkit knows where states are kept (XDG_STATE_HOME) only from version 6.7 on.
    QString states = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(states)) {
        states = QDir::homePath() + QStringLiteral("/.local/state");
    }
    return states + QStringLiteral("/quexal-editor");
#else
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
#endif
}

// What is kept here is for nobody else to read.
void MakeFolder() {
    const QString path = FolderPath();
    QDir().mkpath(path);
    QFile::setPermissions(path, OnlyForTheUser);
}

} // namespace

QString QtStateFolder::FilePath(const std::string& name) {
    return FolderPath() + QLatin1Char('/') + Text::PathToQt(name);
}

std::vector<std::string> QtStateFolder::Names() {
    std::vector<std::string> names;
    const QStringList found = QDir(FolderPath()).entryList(QDir::Files | QDir::Hidden, QDir::NoSort);
    names.reserve(static_cast<std::size_t>(found.size()));
    for (const QString& name : found) {
        names.push_back(Text::PathFromQt(name));
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string QtStateFolder::NewName() {
    // By the process no other one has the name, and by the time none that had its number before.
    QString name;
    do {
        name = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz-")) +
               QString::number(QCoreApplication::applicationPid());
    } while (name == m_lastName);
    m_lastName = name;
    return Text::PathFromQt(name);
}

std::optional<std::string> QtStateFolder::Read(const std::string& name) {
    return DurableFile::Read(FilePath(name));
}

bool QtStateFolder::Replace(const std::string& name, std::string_view content) {
    MakeFolder();
    return DurableFile::Replace(FilePath(name), content);
}

bool QtStateFolder::Extend(const std::string& name, std::size_t kept, std::string_view added) {
    return DurableFile::Extend(FilePath(name), kept, added);
}

bool QtStateFolder::Rename(const std::string& name, const std::string& newName) {
    return QFile::rename(FilePath(name), FilePath(newName));
}

bool QtStateFolder::Remove(const std::string& name) {
    return QFile::remove(FilePath(name));
}

LockResult QtStateFolder::Lock(const std::string& name) {
    if (m_locks.contains(name)) {
        return LockResult::HeldByAnother;
    }
    MakeFolder();
    auto lock = std::make_unique<FileLock>();
    const LockResult result = lock->Take(FilePath(name));
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
