// Locks there, and the state folder that two editors share.

#include "ui/machine/FileLock.h"

#include "OnDisk.h"
#include "driver/UserPlaces.h"
#include "recovery/OpenMark.h"
#include "ui/machine/QtDesktop.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include <cstdio>

using namespace CommonRoutines;
using Ui::FileLock;

namespace {

constexpr const char* LockToHold = "QUEXAL_LOCK_TO_HOLD";

// The tests once more, as another program that holds a lock until it is ended.
class AnotherHolder {
public:
    explicit AnotherHolder(const QString& path) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QString::fromLatin1(LockToHold), path);
        m_process.setProcessEnvironment(environment);
        m_process.start(QCoreApplication::applicationFilePath(),
                        {QStringLiteral("--gtest_filter=FileLockTest.DISABLED_HoldsALock"),
                         QStringLiteral("--gtest_also_run_disabled_tests")});
        while (!m_said.contains("holds") && m_process.waitForReadyRead()) {
            m_said += m_process.readAllStandardOutput();
        }
    }
    ~AnotherHolder() { End(); }
    AnotherHolder(const AnotherHolder&) = delete;
    AnotherHolder& operator=(const AnotherHolder&) = delete;

    [[nodiscard]] bool Holds() const { return m_said.contains("holds it"); }
    void End() {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
    QByteArray m_said;
};

class FileLockTest : public OnDisk {
protected:
    const QString lock = Path(QStringLiteral("a.lock"));
};

class SharedStateTest : public OnDisk {
protected:
    SharedStateTest() { EXPECT_TRUE(folder.Replace(name, "content")); }
    [[nodiscard]] QString StatePath() { return QString::fromStdString(folder.PathOf(name)); }

private:
    UserPlaces m_places;

protected:
    const std::string name = "1-2.changes";
    Ui::QtStateFolder folder;
    Ui::QtStateFolder other;
};

} // namespace

// No test, but the other program.
TEST_F(FileLockTest, DISABLED_HoldsALock) {
    FileLock held;
    const bool isHeld = held.Take(qEnvironmentVariable(LockToHold)) == LockResult::Taken;
    std::fputs(isHeld ? "holds it\n" : "holds nothing\n", stdout);
    std::fflush(stdout);
    Sleep(60'000);
}

TEST_F(FileLockTest, OneOwnerAtATimeHasIt) {
    FileLock first;
    EXPECT_EQ(first.Take(lock), LockResult::Taken);
    FileLock second;
    EXPECT_EQ(second.Take(lock), LockResult::HeldByAnother);
    EXPECT_EQ(second.Problem(), QString());
    first.Release();
    EXPECT_FALSE(QFile::exists(lock));
    FileLock third;
    EXPECT_EQ(third.Take(lock), LockResult::Taken);
    third.Release();
    EXPECT_EQ(Names(), justTheFile);
}

TEST_F(FileLockTest, ItEndsWithItsProcess) {
    AnotherHolder another(lock);
    ASSERT_TRUE(another.Holds());
    FileLock own;
    EXPECT_EQ(own.Take(lock), LockResult::HeldByAnother);
    another.End();
    EXPECT_TRUE(QFile::exists(lock));
    FileLock next;
    EXPECT_EQ(next.Take(lock), LockResult::Taken);
    next.Release();
    EXPECT_FALSE(QFile::exists(lock));
}

TEST_F(FileLockTest, WhatIsRemovedWhileSomebodyLooksIsFreeAfterThat) {
    FileLock first;
    ASSERT_EQ(first.Take(lock), LockResult::Taken);
    {
        const Native::Handle looks(
            OpenForOthers(lock, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, GENERIC_READ | GENERIC_WRITE));
        ASSERT_TRUE(looks.IsOpen());
        first.Release();
        FileLock meanwhile; // which of the two it is depends on the system; never a lock without its file
        if (meanwhile.Take(lock) == LockResult::Taken) {
            EXPECT_TRUE(QFile::exists(lock));
        }
    }
    FileLock next;
    EXPECT_EQ(next.Take(lock), LockResult::Taken);
    EXPECT_TRUE(QFile::exists(lock));
}

TEST_F(FileLockTest, ALockThatSomebodyHasRemovedIsGivenUpAlone) {
    FileLock first;
    ASSERT_EQ(first.Take(lock), LockResult::Taken);
    ASSERT_TRUE(QFile::remove(lock));
    first.Release();
    FileLock next;
    EXPECT_EQ(next.Take(lock), LockResult::Taken);
    EXPECT_TRUE(QFile::exists(lock));
}

TEST_F(FileLockTest, OneThatCannotBeMadeTellsWhy) {
    for (const QString& path : {Path(QStringLiteral("missing/a.lock")), Folder()}) {
        FileLock own;
        EXPECT_EQ(own.Take(path), LockResult::Impossible);
        EXPECT_NE(own.Problem(), QString()) << path.toStdString();
    }
}

TEST_F(FileLockTest, OneThatAnotherProgramKeepsToItselfIsNotTaken) {
    const QString kept = Path(QStringLiteral("file.txt"));
    const Native::Handle held(OpenForOthers(kept, 0));
    FileLock own;
    EXPECT_EQ(own.Take(kept), LockResult::Impossible);
    EXPECT_NE(own.Problem(), QString());
}

TEST_F(SharedStateTest, AFileIsReadWhileTheOtherEditorWritesIt) {
    QFile writing(StatePath());
    ASSERT_TRUE(writing.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered));
    EXPECT_EQ(other.Read(name), "content");
    EXPECT_FALSE(other.IsGone(name));
    EXPECT_EQ(other.Names(), std::vector<std::string>{name});
}

TEST_F(SharedStateTest, AFileGoesOnWhileTheOtherEditorReadsIt) {
    QFile reading(StatePath());
    ASSERT_TRUE(reading.open(QIODevice::ReadOnly));
    EXPECT_TRUE(folder.Extend(name, 7, " and on"));
    EXPECT_EQ(other.Read(name), "content and on");
}

TEST_F(SharedStateTest, AFileIsRenamedAndRemovedByTheOtherEditor) {
    EXPECT_TRUE(other.Rename(name, name + ".aside"));
    EXPECT_TRUE(folder.IsGone(name));
    EXPECT_FALSE(folder.Extend(name, 7, "lost"));
    EXPECT_TRUE(folder.IsGone(name));
    EXPECT_FALSE(other.Rename(name + ".aside", name + ".aside"));
    EXPECT_TRUE(folder.Remove(name + ".aside"));
    EXPECT_EQ(other.Names(), std::vector<std::string>());
}

TEST_F(SharedStateTest, AnOpenFileIsKnownWhateverItsCaseAndItsSeparators) {
    Ui::QtDesktop here;
    Ui::QtDesktop there;
    OpenMark mine;
    OpenMark theirs;
    static_cast<void>(there.State().NewName()); // another process has other names
    EXPECT_FALSE(mine.Set(here, file.toStdString()));
    EXPECT_TRUE(theirs.Set(there, QDir::toNativeSeparators(file.toUpper()).toStdString()));
    mine.Clear(here);
    EXPECT_FALSE(theirs.Set(there, file.toStdString()));
    theirs.Clear(there);
}

// The lock is another file, so that what it stands for can be written and read.
TEST_F(SharedStateTest, ALockedFileIsExtendedAndReplaced) {
    const std::string lock = name + ".lock";
    ASSERT_EQ(folder.Lock(lock), LockResult::Taken);
    EXPECT_EQ(other.Lock(lock), LockResult::HeldByAnother);
    EXPECT_TRUE(folder.Extend(name, 7, " and on"));
    EXPECT_TRUE(folder.Replace(name, "anew"));
    EXPECT_EQ(other.Read(name), "anew");
    EXPECT_EQ(other.Names(), (std::vector<std::string>{name, lock}));
    folder.Unlock(lock);
    EXPECT_EQ(other.Names(), std::vector<std::string>{name});
    EXPECT_EQ(other.Lock(lock), LockResult::Taken);
    other.Unlock(lock);
}
