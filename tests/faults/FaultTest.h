#pragma once

#include "Mounts.h"
#include "Session.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// The content of a file; nothing where there is none.
std::optional<std::string> ContentOf(const std::filesystem::path& path);
void WriteContent(const std::filesystem::path& path, const std::string& content);

// A data file of about 100 KiB, many times what is written at once anywhere.
const std::string& OldContent();
// The same after so many edits, as a session without any fault saved it.
const std::string& ContentAfter(int edits);
// Any data file after so many edits, likewise.
std::string SavedWithoutFault(const std::string& content, int edits);

// A folder that goes with its owner. It is in memory where the machine has a place for that, or on the disk:
// hundreds of saves are quicker when none waits for a disk, and calls fail or kill alike on both.
class TemporaryFolder {
public:
    enum class Kind { InMemory, OnDisk };

    explicit TemporaryFolder(Kind kind = Kind::InMemory);
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

// Sessions that meet faults, and what they leave on the disk. The data file stands alone in a folder
// of its own, the disk, in which every call is watched.
class FaultTest : public testing::Test {
protected:
    // Enough edits that all kinds are among them.
    static constexpr int Edits = 7;

    FaultTest();

    // Puts the data file on the disk, and nothing else; nothing is left of earlier sessions either.
    void PrepareDisk(const std::string& content = OldContent());
    // Opens the data file, makes edits and saves, to another name where one is given.
    [[nodiscard]] Steps EditAndSave(const std::filesystem::path& name = {}, int edits = Edits) const;
    // Opens the data file, makes edits, and stops.
    [[nodiscard]] Steps EditAndPause(int edits = Edits) const;
    // Opens the data file again, takes what there is of unsaved changes, and saves.
    [[nodiscard]] Steps RecoverAndSave() const;

    // A next session, which no fault meets, recovers and saves so many edits: these or a number between. When
    // it opens the file again there is nothing more to recover.
    void ExpectRecovered(int edits) { ExpectRecovered(edits, edits); }
    void ExpectRecovered(int fewest, int most);

    // What a save from one content to another has left, which a fault met: one of both, the new one if the
    // session said so, and nothing else if it came to its end.
    static void ExpectOldOrNew(const Session& session, const std::filesystem::path& file,
                               const std::optional<std::string>& before, const std::string& after);
    // The same, whatever is said about it, for a disk without a session.
    static void ExpectOldOrNew(const std::filesystem::path& file, const std::optional<std::string>& before,
                               const std::string& after);
    static void ExpectContent(const std::filesystem::path& file, const std::string& content);

    TemporaryFolder folder;
    const std::filesystem::path disk = folder.Path() / "disk";
    const std::filesystem::path home = folder.Path() / "home";
    // Where the program keeps unsaved changes.
    const std::filesystem::path state = home / ".local/state/quexal-editor";
    Workplace place{disk / "districts.txt", home, folder.Path() / "calls", {disk}};
};

// Needs to mount file systems.
class MountingTest : public FaultTest {
protected:
    void SetUp() override {
        if (!MayMount()) {
            GTEST_SKIP() << "left out: only root may mount file systems";
        }
    }
};
