// What a name leads to there: its length, its letters, its case, its drive, and what is no file's name at all.

#include "ui/machine/FileLook.h"

#include "OnDisk.h"
#include "ui/Text.h"
#include "ui/machine/FilePlace.h"
#include "ui/machine/QtDesktop.h"
#include "ui/machine/SystemFile.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

using std::filesystem::file_type;

namespace {

class FileLookTest : public OnDisk {
protected:
    static std::string Name(const QString& path) { return path.toStdString(); }
    // Everything that is done with a file.
    void ExpectGoodAsName(const QString& path) {
        const std::string name = Name(path);
        EXPECT_EQ(desktop.StampOf(name), "") << name;
        EXPECT_FALSE(desktop.HasContent(name)) << name;
        EXPECT_FALSE(desktop.StaysInPlace(name)) << name;
        ASSERT_TRUE(desktop.ReplaceFile(name, "first")) << name;
        EXPECT_EQ(desktop.ReadFile(name), "first") << name;
        ASSERT_TRUE(desktop.ReplaceFile(name, "content")) << name;
        ASSERT_TRUE(desktop.OverwriteFile(name, "written over")) << name;
        ASSERT_TRUE(DurableFile::Extend(path, 7, " and on")) << name;
        EXPECT_EQ(desktop.ReadFile(name), "written and on") << name;
        EXPECT_TRUE(desktop.HasContent(name)) << name;
        EXPECT_FALSE(desktop.StaysInPlace(name)) << name;
        EXPECT_TRUE(desktop.AreOneFile(name, name)) << name;
        EXPECT_FALSE(desktop.AreOneFile(name, Name(file))) << name;
        EXPECT_EQ(QFileInfo(Text::PathToQt(desktop.TruePath(name))).fileName(), QFileInfo(path).fileName());
        ASSERT_TRUE(SystemFile::Rename(path, path + QLatin1Char('2'))) << name;
        EXPECT_TRUE(FileLook::IsGone(path)) << name;
        EXPECT_FALSE(FileLook::IsGone(path + QLatin1Char('2'))) << name;
        EXPECT_TRUE(SystemFile::Remove(path + QLatin1Char('2'))) << name;
        EXPECT_TRUE(FileLook::IsGone(path + QLatin1Char('2'))) << name;
    }

    Ui::QtDesktop desktop;
};

} // namespace

TEST_F(FileLookTest, ANameMayBeLongerThanTheSystemTakesUnmarked) {
    QString folder = Folder();
    while (folder.size() < 600) {
        folder += QLatin1Char('/') + QString(70, QLatin1Char('f'));
    }
    ASSERT_TRUE(QDir().mkpath(folder));
    ExpectGoodAsName(folder + QStringLiteral("/data.txt"));
    EXPECT_TRUE(desktop.MayMakeFilesIn(Name(folder)));
    EXPECT_FALSE(desktop.MayMakeFilesIn(Name(folder) + "/missing"));
    std::error_code error;
    ASSERT_TRUE(DurableFile::Replace(folder + QStringLiteral("/a"), "a"));
    EXPECT_EQ(FileLook::NamesIn(folder, error), std::vector<std::string>{"a"});
    EXPECT_FALSE(error);
}

TEST_F(FileLookTest, ANameMayBeInAnyScript) {
    for (const char16_t* name :
         {u"Ж\u0451лтый \u0444айл.txt", u"\u03B1\u03C1\u03C7\u03B5\u03AF\u03BF.txt", u"\u6587\u4EF6.txt",
          u"\U0001F5FA map \U0001F30D.txt", u"Stra\u00DFe \u00E9t\u00E9.txt", u"two  blanks", u"a'b&c%d#e.txt"}) {
        ExpectGoodAsName(Path(QString::fromUtf16(name)));
    }
}

TEST_F(FileLookTest, BothSeparatorsLeadToAFile) {
    const QString back = QDir::toNativeSeparators(file);
    ASSERT_NE(back, file);
    EXPECT_EQ(desktop.ReadFile(Name(back)), "old");
    EXPECT_TRUE(desktop.ReplaceFile(Name(back), "new"));
    EXPECT_EQ(desktop.ReadFile(Name(file)), "new");
    EXPECT_EQ(desktop.TruePath(Name(back)), desktop.TruePath(Name(file)));
}

TEST_F(FileLookTest, AFileHasOneTrueNameWhateverItsCase) {
    const QString mixed = Path(QStringLiteral("Mixed Case.TXT"));
    ASSERT_TRUE(DurableFile::Replace(mixed, "content"));
    const QString upper = mixed.toUpper();
    const QString lower = mixed.toLower();
    EXPECT_EQ(desktop.TruePath(Name(upper)), desktop.TruePath(Name(mixed)));
    EXPECT_EQ(desktop.TruePath(Name(lower)), desktop.TruePath(Name(mixed)));
    EXPECT_TRUE(QString::fromStdString(desktop.TruePath(Name(lower))).endsWith(QStringLiteral("Mixed Case.TXT")));
    EXPECT_TRUE(desktop.AreOneFile(Name(upper), Name(lower)));
    ASSERT_TRUE(desktop.ReplaceFile(Name(lower), "new"));
    EXPECT_EQ(Names(), (QStringList{QStringLiteral("file.txt"), QStringLiteral("Mixed Case.TXT")}));
    EXPECT_EQ(desktop.ReadFile(Name(mixed)), "new");
}

TEST_F(FileLookTest, AShortNameIsThatOfTheFile) {
    const QString name = Path(QStringLiteral("a rather long name.text"));
    ASSERT_TRUE(DurableFile::Replace(name, "content"));
    std::wstring shortName(MAX_PATH, L'\0');
    shortName.resize(GetShortPathNameW(QDir::toNativeSeparators(name).toStdWString().c_str(), shortName.data(),
                                       static_cast<DWORD>(shortName.size())));
    const QString path = QString::fromStdWString(shortName);
    if (!path.contains(QLatin1Char('~'))) {
        GTEST_SKIP() << "left out: this disk has no short names";
    }
    EXPECT_TRUE(desktop.AreOneFile(Name(path), Name(name)));
    EXPECT_EQ(desktop.TruePath(Name(path)), desktop.TruePath(Name(name)));
}

// As "subst" does.
TEST_F(FileLookTest, AFolderUnderALetterOfItsOwnHasTheSameFiles) {
    if (DefineDosDeviceW(0, L"Q:", QDir::toNativeSeparators(Folder()).toStdWString().c_str()) == 0 ||
        GetFileAttributesW(L"Q:\\") == INVALID_FILE_ATTRIBUTES) {
        GTEST_SKIP() << "left out: no letter can be given";
    }
    const bool isOne = desktop.AreOneFile("Q:/file.txt", Name(file));
    const std::string content = desktop.ReadFile("Q:\\file.txt").value_or("");
    const bool isReplaced = desktop.ReplaceFile("Q:/file.txt", "new");
    const bool isRoot = desktop.MayMakeFilesIn("Q:");
    DefineDosDeviceW(DDD_REMOVE_DEFINITION, L"Q:", nullptr);
    EXPECT_TRUE(isOne);
    EXPECT_EQ(content, "old");
    EXPECT_TRUE(isReplaced);
    EXPECT_TRUE(isRoot);
    EXPECT_EQ(DurableFile::Read(file), "new");
}

TEST_F(FileLookTest, ADriveAloneIsItsRoot) {
    EXPECT_EQ(FileLook::FolderLeft(QStringLiteral("C:")), QStringLiteral("C:/"));
    EXPECT_EQ(FileLook::FolderLeft(QStringLiteral("C:\\a")), QStringLiteral("C:\\a"));
    EXPECT_EQ(FileLook::FolderLeft(QStringLiteral("\\\\server\\share")), QStringLiteral("\\\\server\\share"));
    EXPECT_EQ(FileLook::FolderLeft({}), QString());
    EXPECT_TRUE(desktop.MayMakeFilesIn("C:"));
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(Folder()));
    EXPECT_EQ(FileLook::WithoutLinks(FileLook::FolderLeft(QStringLiteral("C:"))), QStringLiteral("C:/"));
    EXPECT_TRUE(QDir::setCurrent(before));
}

TEST_F(FileLookTest, AFileInTheRootOfADriveIsReadAndReplaced) {
    const QString path = QStringLiteral("C:\\quexal-%1.txt").arg(GetCurrentProcessId());
    ExpectGoodAsName(path);
}

TEST_F(FileLookTest, WhatIsMissingIsToldFromWhatCannotBeLookedAt) {
    EXPECT_EQ(FileLook::StatusOf(file).type(), file_type::regular);
    EXPECT_EQ(FileLook::StatusOf(Folder()).type(), file_type::directory);
    for (const QString& missing :
         {Path(QStringLiteral("missing")), Path(QStringLiteral("missing/file")), Path(QStringLiteral("file.txt/inner")),
          Path(QStringLiteral("a?b")), Path(QString(300, QLatin1Char('x'))), QStringLiteral("B:/file.txt")}) {
        EXPECT_EQ(FileLook::StatusOf(missing).type(), file_type::not_found) << missing.toStdString();
        EXPECT_EQ(FileLook::WithoutLinks(missing), std::nullopt);
        EXPECT_TRUE(FileLook::IsGone(missing)) << missing.toStdString();
        std::error_code error;
        static_cast<void>(FileLook::SizeOf(missing, error));
        EXPECT_TRUE(FileLook::IsMissing(error)) << missing.toStdString();
        EXPECT_EQ(desktop.StampOf(Name(missing)), "");
    }
    std::error_code error;
    static_cast<void>(FileLook::SizeOf(Folder(), error));
    EXPECT_TRUE(error && !FileLook::IsMissing(error));
    EXPECT_FALSE(FileLook::IsMissing({ERROR_ACCESS_DENIED, std::system_category()}));
    EXPECT_NE(FileLook::Message({ERROR_ACCESS_DENIED, std::system_category()}), QString());
}

TEST_F(FileLookTest, AFileThatSomebodyHoldsCanBeLookedAt) {
    const Native::Handle held(OpenForOthers(file, 0, GENERIC_READ | GENERIC_WRITE));
    ASSERT_TRUE(held.IsOpen());
    EXPECT_EQ(FileLook::StatusOf(file).type(), file_type::regular);
    EXPECT_TRUE(FileLook::MayWrite(file));
    EXPECT_FALSE(FileLook::IsGone(file));
    EXPECT_NE(FileLook::WithoutLinks(file), std::nullopt);
    EXPECT_FALSE(desktop.StampOf(Name(file)).empty());
    EXPECT_EQ(desktop.StampOf(Name(file)).find("unknown"), std::string::npos);
}

TEST_F(FileLookTest, AnotherProgramsChangeShows) {
    const std::string before = desktop.StampOf(Name(file));
    EXPECT_EQ(desktop.StampOf(Name(file)), before);
    Sleep(50);
    const Native::Handle other(OpenForOthers(file, FILE_SHARE_READ, GENERIC_WRITE));
    DWORD written = 0;
    ASSERT_NE(WriteFile(other.Get(), "OLD", 3, &written, nullptr), 0);
    FlushFileBuffers(other.Get());
    EXPECT_NE(desktop.StampOf(Name(file)), before);
}

// The time of the content can be put back, as some programs do; that of the change cannot.
TEST_F(FileLookTest, AChangeShowsThatHidesItsTime) {
    const std::string before = desktop.StampOf(Name(file));
    Sleep(50);
    {
        const Native::Handle other(OpenForOthers(file, FILE_SHARE_READ, GENERIC_READ | GENERIC_WRITE));
        FILETIME time{};
        ASSERT_NE(GetFileTime(other.Get(), nullptr, nullptr, &time), 0);
        DWORD written = 0;
        ASSERT_NE(WriteFile(other.Get(), "OLD", 3, &written, nullptr), 0);
        ASSERT_NE(SetFileTime(other.Get(), nullptr, nullptr, &time), 0);
    }
    EXPECT_NE(desktop.StampOf(Name(file)), before);
}

TEST_F(FileLookTest, ReadOnlyIsTheFileAndNotItsFolder) {
    EXPECT_TRUE(FileLook::MayWrite(file));
    ASSERT_NE(SetFileAttributesW(Native(file).c_str(), FILE_ATTRIBUTE_READONLY), 0);
    EXPECT_FALSE(FileLook::MayWrite(file));
    SetFileAttributesW(Native(file).c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_TRUE(FileLook::MayMakeFilesIn(Folder()));
    EXPECT_FALSE(FileLook::MayMakeFilesIn(file));
    EXPECT_FALSE(FileLook::MayMakeFilesIn(QStringLiteral("B:/")));
}

TEST_F(FileLookTest, DevicesAndPartsOfFilesAreNoNamesOfFiles) {
    for (const char* name :
         {"CON",    "con",      "NUL",     "aux.txt",      "PRN.a.b", "com1", "LPT9.txt", "COM\xC2\xB9",
          "conin$", "nul .txt", "x.txt:y", "x.txt::$DATA", "a?b",     "a*b",  "a<b",      "a>b",
          "a\"b",   "a|b",      "a.",      "a ",           "a.txt. ", "..",   "tab\tname"}) {
        const QString path = Path(QString::fromUtf8(name));
        EXPECT_FALSE(FileLook::MayBeNamed(path)) << name;
        EXPECT_FALSE(DurableFile::Replace(path, "new")) << name;
        EXPECT_FALSE(DurableFile::Overwrite(path, "new")) << name;
        EXPECT_EQ(DurableFile::Read(path), std::nullopt) << name;
        EXPECT_EQ(Names(), justTheFile) << name;
    }
    for (const char* name :
         {"CONFIG", "com10", "COM", "auxiliary.txt", "nul1", ".x", "a.b.c", "\xC2\xB9", "COMX", "lpt"}) {
        EXPECT_TRUE(FileLook::MayBeNamed(Path(QString::fromUtf8(name)))) << name;
    }
    EXPECT_TRUE(FileLook::MayBeNamed(QStringLiteral("C:\\x.txt")));
    EXPECT_FALSE(FileLook::MayBeNamed(QStringLiteral("C:\\")));
}

TEST_F(FileLookTest, ASharedFolderIsNamedAsOne) {
    const QString shared = QStringLiteral("//server/share/a b.txt");
    EXPECT_EQ(Native::NameOf(shared), LR"(\\?\UNC\server\share\a b.txt)");
    EXPECT_EQ(Native::PathOf(Native::NameOf(shared)), shared);
    EXPECT_EQ(Native::PathOf(LR"(\\?\C:\a\b.txt)"), QStringLiteral("C:/a/b.txt"));
}
