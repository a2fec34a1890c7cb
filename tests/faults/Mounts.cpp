#include "Mounts.h"

#include "Session.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <stdexcept>
#include <string>
#include <system_error>

namespace {

constexpr std::uintmax_t DiskSize = 16 * 1024 * 1024;

bool separated = false;

void Require(bool succeeded, const std::string& what) {
    if (!succeeded) {
        throw std::system_error(errno, std::generic_category(), what);
    }
}

} // namespace

bool SeparateMounts() {
    separated =
        geteuid() == 0 && unshare(CLONE_NEWNS) == 0 && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    return separated;
}

bool MayMount() {
    return separated;
}

TmpfsMount::TmpfsMount(const std::filesystem::path& folder, std::size_t pages, std::size_t files) : m_folder(folder) {
    std::string options = "size=" + std::to_string(pages * PageSize);
    if (files > 0) {
        options += ",nr_inodes=" + std::to_string(files + 1);
    }
    std::filesystem::create_directories(folder);
    Require(mount("tmpfs", folder.c_str(), "tmpfs", 0, options.c_str()) == 0, "mounting a tmpfs");
}

TmpfsMount::~TmpfsMount() {
    umount2(m_folder.c_str(), MNT_DETACH);
}

void TmpfsMount::MakeReadOnly() {
    Require(mount("tmpfs", m_folder.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0, "remounting a tmpfs");
}

LoopImage::LoopImage(std::filesystem::path image, std::filesystem::path folder)
    : m_image(std::move(image)), m_folder(std::move(folder)) {
    std::filesystem::create_directories(m_folder);
    if (!std::filesystem::exists(m_image)) {
        std::ofstream(m_image).close();
        std::filesystem::resize_file(m_image, DiskSize);
        Require(RunProgram({"mkfs.ext4", "-q", "-F", m_image}), "making a file system");
    }
    m_mounted = RunProgram({"mount", "-o", "loop,commit=300,noauto_da_alloc", m_image, m_folder});
}

LoopImage::~LoopImage() {
    if (m_mounted) {
        umount2(m_folder.c_str(), MNT_DETACH);
    }
}

void LoopImage::Sync() const {
    const int handle = open(m_folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const bool synced = syncfs(handle) == 0;
    close(handle);
    Require(synced, "writing a disk");
}

void LoopImage::CopyTo(const std::filesystem::path& image) const {
    Require(RunProgram({"cp", "--sparse=always", m_image, image}), "copying a disk");
}

void LoopImage::Unmount() {
    Require(umount(m_folder.c_str()) == 0, "unmounting a disk");
    m_mounted = false;
}

bool LoopImage::IsSound() const {
    return RunProgram({"e2fsck", "-f", "-n", m_image});
}
