#include "ui/machine/SystemFile.h"

#include "ui/machine/FileLook.h"
#include "ui/machine/windows/Native.h"
#include "ui/machine/windows/Rights.h"

#include <QFile>
#include <QRandomGenerator>
#include <QThread>

#include <io.h>
#include <optional>
#include <string>
#include <utility>

namespace SystemFile {

namespace {

// Until it is done, or cannot be.
template <typename Call>
bool Patiently(Call call) {
    for (int i = 0; i < Native::Tries; ++i) {
        if (call()) {
            return true;
        }
        if (!Native::MayPass(GetLastError())) {
            return false;
        }
        QThread::msleep(Native::PauseMilliseconds);
    }
    return false;
}

HANDLE HandleOf(const QFileDevice& file) {
    const int number = file.handle();
    return number < 0 ? INVALID_HANDLE_VALUE : reinterpret_cast<HANDLE>(_get_osfhandle(number));
}

// The handle goes with the file.
bool HandOver(HANDLE handle, QFile& file) {
    const int number = _open_osfhandle(reinterpret_cast<std::intptr_t>(handle), 0);
    if (number < 0) {
        CloseHandle(handle);
        return false;
    }
    return file.open(number, QIODevice::WriteOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle);
}

HANDLE Make(const std::wstring& name, DWORD access, DWORD sharing, std::optional<Rights::Descriptor> rights) {
    SECURITY_ATTRIBUTES attributes{sizeof attributes, rights ? rights->data() : nullptr, FALSE};
    return CreateFileW(name.c_str(), access, sharing, &attributes, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
}

// What a new file takes over from the old one.
struct Traits {
    std::optional<Rights::Descriptor> rights; // where files have some
    FILE_BASIC_INFO info{};
};

// Nothing for a file that may not be written, or cannot be looked at. Who has it open is seen later.
std::optional<Traits> TraitsOf(const QString& path) {
    const Native::Handle file(Native::Open(path, FILE_READ_ATTRIBUTES | READ_CONTROL));
    Traits traits;
    if (!file.IsOpen() || !FileLook::MayWrite(path) ||
        GetFileInformationByHandleEx(file.Get(), FileBasicInfo, &traits.info, sizeof traits.info) == 0) {
        return std::nullopt;
    }
    const auto volume = Native::VolumeOf(file.Get());
    if (!volume) {
        return std::nullopt;
    }
    const bool hasRights = (*volume & FILE_PERSISTENT_ACLS) != 0;
    traits.rights = hasRights ? Rights::Of(file.Get()) : std::nullopt;
    return hasRights == traits.rights.has_value() ? std::optional(traits) : std::nullopt;
}

// A file beside another one, which goes unless it takes that one's place. Nobody else can open it to read it, whatever
// its rights are.
class NewFile {
public:
    NewFile(const QString& path, const std::optional<Traits>& old) : m_target(Native::NameOf(path)) {
        const auto rights = old ? old->rights : Rights::OfNewFiles();
        HANDLE handle = INVALID_HANDLE_VALUE;
        for (int i = 0; i < MostNames && handle == INVALID_HANDLE_VALUE; ++i) {
            m_name = m_target + RandomEnding();
            handle = Make(m_name, GENERIC_READ | GENERIC_WRITE | DELETE | WRITE_DAC, FILE_SHARE_DELETE, rights);
            if (handle == INVALID_HANDLE_VALUE && GetLastError() != ERROR_FILE_EXISTS) {
                break;
            }
        }
        m_isMade = handle != INVALID_HANDLE_VALUE;
        m_isOpen = m_isMade && HandOver(handle, m_file);
    }
    ~NewFile() {
        m_file.close();
        if (m_isMade) {
            DeleteFileW(m_name.c_str());
        }
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    [[nodiscard]] bool IsOpen() const { return m_isOpen; }
    [[nodiscard]] QFile& File() { return m_file; }

    // It has been changed since a backup, which the old one need not have been.
    [[nodiscard]] bool Take(Traits& traits) {
        FILE_BASIC_INFO info{};
        info.CreationTime = traits.info.CreationTime;
        info.FileAttributes = traits.info.FileAttributes | FILE_ATTRIBUTE_ARCHIVE;
        return (!traits.rights || Rights::Give(HandleOf(m_file), *traits.rights)) &&
               SetFileInformationByHandle(HandleOf(m_file), FileBasicInfo, &info, sizeof info) != 0;
    }
    // At once, by one renaming. The system's call for replacing moves the old file away first, and can fail there. True
    // when the new name is on the disk.
    [[nodiscard]] bool TakePlace() {
        const bool hasTaken = Patiently([this] {
            return MoveFileExW(m_name.c_str(), m_target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) !=
                   0;
        });
        m_isMade = m_isMade && !hasTaken;
        return hasTaken && Sync(m_file);
    }

private:
    static constexpr int MostNames = 100;

    static std::wstring RandomEnding() {
        static const std::wstring letters = L"abcdefghijklmnopqrstuvwxyz0123456789";
        std::wstring ending = L".";
        for (int i = 0; i < 6; ++i) {
            ending += letters[QRandomGenerator::system()->bounded(static_cast<quint32>(letters.size()))];
        }
        return ending;
    }

    std::wstring m_target;
    std::wstring m_name;
    QFile m_file;
    bool m_isMade = false;
    bool m_isOpen = false;
};

} // namespace

// The system has no call for it.
void BeginSync(QFileDevice& /*file*/) {}

bool Sync(QFileDevice& file) {
    return FlushFileBuffers(HandleOf(file)) != 0;
}

// The names go there with the files.
bool SyncFolder(const QString& /*folder*/) {
    return true;
}

bool OpenWithoutEmptying(QFile& file, bool isNew) {
    const std::wstring name = Native::NameOf(file.fileName());
    constexpr DWORD access = GENERIC_WRITE | FILE_READ_ATTRIBUTES;
    constexpr DWORD sharing = 0; // nobody is to meet half of a file
    HANDLE handle = INVALID_HANDLE_VALUE;
    const bool isOpen = Patiently([&] {
        handle = isNew ? Make(name, access, sharing, Rights::OfNewFiles())
                       : CreateFileW(name.c_str(), access, sharing, nullptr, OPEN_EXISTING, 0, nullptr);
        return handle != INVALID_HANDLE_VALUE;
    });
    return isOpen && HandOver(handle, file);
}

bool Replace(const QString& path, const std::filesystem::file_status& old,
             const std::function<bool(QFileDevice&)>& write) {
    const bool isNew = old.type() == std::filesystem::file_type::not_found;
    auto traits = isNew ? std::nullopt : TraitsOf(path);
    if (!isNew && !traits) {
        return false;
    }
    NewFile file(path, traits);
    return file.IsOpen() && (isNew || file.Take(*traits)) && write(file.File()) && file.TakePlace();
}

bool Rename(const QString& path, const QString& newPath) {
    const std::wstring name = Native::NameOf(path);
    const std::wstring newName = Native::NameOf(newPath);
    return Patiently([&] { return MoveFileExW(name.c_str(), newName.c_str(), MOVEFILE_WRITE_THROUGH) != 0; });
}

bool Remove(const QString& path) {
    const std::wstring name = Native::NameOf(path);
    return Patiently([&] { return DeleteFileW(name.c_str()) != 0; });
}

} // namespace SystemFile
