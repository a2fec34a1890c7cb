// The rights of the state folder, its place, and links.

#include "ui/machine/StateFolderTest.h"

#include "ui/machine/QtDesktop.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

using namespace CommonRoutines;
using namespace Ui;

namespace {

unsigned ModeOf(const QString& path) {
    struct stat status {};
    EXPECT_EQ(stat(path.toUtf8().constData(), &status), 0);
    return status.st_mode & 0777U;
}

} // namespace

TEST_F(StateFolderTest, IsOnlyForTheUser) {
    ASSERT_TRUE(QDir().mkpath(FolderPath())); // one that was there before is no exception
    ASSERT_TRUE(folder.Replace("a", "content"));
    EXPECT_EQ(ModeOf(FolderPath()), 0700U);
}

TEST_F(StateFolderTest, BehindALinkKeepsTheRightsOfItsTarget) {
    const QString target = UserPlaces::States() + QStringLiteral("/elsewhere");
    ASSERT_TRUE(QDir().mkpath(target));
    ASSERT_EQ(chmod(target.toUtf8().constData(), 0755), 0);
    ASSERT_TRUE(QFile::link(target, FolderPath()));
    ASSERT_TRUE(folder.Replace("a", "content"));
    EXPECT_EQ(ModeOf(target), 0755U);
    EXPECT_EQ(ModeOf(target + QStringLiteral("/a")), 0600U);
}

TEST_F(StateFolderTest, MakesFilesForTheUserAlone) {
    const mode_t before = umask(0);
    EXPECT_TRUE(folder.Replace("a", "content"));
    EXPECT_TRUE(folder.Replace("a", "other content"));
    EXPECT_EQ(folder.Lock("b.lock"), LockResult::Taken);
    EXPECT_EQ(umask(before), 0U); // of other files it is as it was
    EXPECT_EQ(ModeOf(FolderPath() + QStringLiteral("/a")), 0600U);
    EXPECT_EQ(ModeOf(FolderPath() + QStringLiteral("/b.lock")), 0600U);
}

// A lock that is gone may be another editor's by now.
TEST_F(StateFolderTest, UnlocksOnlyItsOwn) {
    QtStateFolder other;
    ASSERT_EQ(folder.Lock("a.lock"), LockResult::Taken);
    ASSERT_TRUE(folder.Remove("a.lock"));
    ASSERT_EQ(other.Lock("a.lock"), LockResult::Taken);
    folder.Unlock("a.lock");
    EXPECT_EQ(folder.Names(), Texts{"a.lock"});
}

TEST_F(StateFolderTest, IsInTheHomeFolderUnlessTheUserSaysOtherwise) {
    qputenv("XDG_STATE_HOME", "not/absolute");
    EXPECT_EQ(folder.PathOf("a"), (QDir::homePath() + QStringLiteral("/.local/state/quexal-editor/a")).toStdString());
}

TEST_F(StateFolderTest, ItsPathsAreThoseOfTheMachine) {
    qputenv("XDG_STATE_HOME", "/states/\xC4\x8D");
    EXPECT_EQ(folder.PathOf("a"), "/states/\xC4\x8D/quexal-editor/a");
}

TEST_F(StateFolderTest, TheTruePathHasNoLinks) {
    ASSERT_TRUE(folder.Replace("a", "content"));
    const std::string target = QFileInfo(FolderPath()).canonicalFilePath().toStdString() + "/a";
    const std::string link = (FolderPath() + QStringLiteral("/link")).toStdString();
    ASSERT_EQ(symlink(target.c_str(), link.c_str()), 0);
    QtDesktop desktop;
    EXPECT_EQ(desktop.TruePath(link), target);
    EXPECT_EQ(desktop.TruePath("/no/such/file"), "/no/such/file");
}

TEST_F(StateFolderTest, SaysInTheWordsOfTheSystemWhyItCannot) {
    EXPECT_FALSE(folder.Read("a"));
    EXPECT_EQ(folder.Problem(), "No such file or directory");
    ASSERT_TRUE(QDir().mkpath(FolderPath() + QStringLiteral("/b.lock")));
    EXPECT_EQ(folder.Lock("b.lock"), LockResult::Impossible);
    EXPECT_EQ(folder.Problem(), "Is a directory");
}
