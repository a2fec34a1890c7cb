#pragma once

#include <cstddef>
#include <filesystem>

// File systems of the tests' own. They are mounted where only this process and its children see them, and
// vanish with it, however it ends.

// Separates what is mounted from now on from the machine's. False for anyone but root.
bool SeparateMounts();
[[nodiscard]] bool MayMount();

// A file system in memory, with a limited room.
class TmpfsMount {
public:
    static constexpr std::size_t PageSize = 4096;

    // Room for so many pages; for so many files besides its root, when that is limited too.
    TmpfsMount(const std::filesystem::path& folder, std::size_t pages, std::size_t files = 0);
    ~TmpfsMount();
    TmpfsMount(const TmpfsMount&) = delete;
    TmpfsMount& operator=(const TmpfsMount&) = delete;

    void MakeReadOnly();

private:
    std::filesystem::path m_folder;
};

// A disk in a file, which holds what a disk would hold: nothing that is still waiting in memory. Its file
// system is ext4, which writes by itself as late as it can and does not guess which files matter, so that
// only what is put on the disk on purpose is there.
class LoopImage {
public:
    // A disk that is empty, or, when there is a file already, as it was left.
    LoopImage(std::filesystem::path image, std::filesystem::path folder);
    ~LoopImage();
    LoopImage(const LoopImage&) = delete;
    LoopImage& operator=(const LoopImage&) = delete;

    [[nodiscard]] bool Mounted() const { return m_mounted; }
    // Puts everything that is waiting in memory on the disk.
    void Sync() const;
    // What the disk holds at this moment, as the image of another one.
    void CopyTo(const std::filesystem::path& image) const;
    void Unmount();
    // Whether the unmounted file system has no faults.
    [[nodiscard]] bool IsSound() const;

private:
    std::filesystem::path m_image;
    std::filesystem::path m_folder;
    bool m_mounted = false;
};
