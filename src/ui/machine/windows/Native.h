#pragma once

#include <QString>

#include <optional>
#include <string>
#include <windows.h>

#undef ReplaceFile // the desktop has a function of this name

// Names and handles as the system's own calls take them.
namespace Native {

// Of any length: past 260 characters the system takes a name only behind a mark, as a full one. What would be a device
// becomes a name that nothing can have.
[[nodiscard]] std::wstring NameOf(const QString& path);
// The path without that mark, as the toolkit writes it.
[[nodiscard]] QString PathOf(const std::wstring& name);

// A handle that is closed with its owner.
class Handle {
public:
    explicit Handle(HANDLE handle) : m_handle(handle) {}
    ~Handle();
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    [[nodiscard]] bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE Get() const { return m_handle; }

private:
    HANDLE m_handle;
};

// Opens what is there, a folder as well; for a look by default, which no other program can keep from.
[[nodiscard]] HANDLE Open(const QString& path, DWORD access = FILE_READ_ATTRIBUTES, DWORD flags = 0);

// Whether two handles are of one file.
[[nodiscard]] bool AreOne(HANDLE a, HANDLE b);

// What the volume of a file can do, as flags of the system; nothing where that cannot be told.
[[nodiscard]] std::optional<DWORD> VolumeOf(HANDLE file);

// Whether an error may pass: another program has the file for a moment, a virus scanner, say.
[[nodiscard]] bool MayPass(DWORD error);
inline constexpr int Tries = 10;
inline constexpr unsigned long PauseMilliseconds = 50;

} // namespace Native
