#pragma once

// The folder, one for each user, in which the program keeps what has to outlive it when it stops
// unexpectedly. A part of the Desktop port. Files are named without their folder.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CommonRoutines {

enum class LockResult {
    Taken,
    HeldByAnother, // by a living process, this one included
    Impossible,    // the folder cannot be written to, say
};

class StateFolder {
public:
    StateFolder() = default;
    StateFolder(const StateFolder&) = delete;
    StateFolder& operator=(const StateFolder&) = delete;
    virtual ~StateFolder() = default;

    // All files, locks among them, in the order of their names.
    virtual std::vector<std::string> Names() = 0;
    // A name that no file has. It begins with a number that is higher than those of all files, whatever the clock
    // says, and ends with one of the process.
    virtual std::string NewName() = 0;
    // The number that a name begins with, 0 where it begins with none of those that NewName gives.
    [[nodiscard]] static std::uint64_t NumberOf(std::string_view name);

    virtual std::optional<std::string> Read(const std::string& name) = 0;
    // True when there is certainly no such file.
    virtual bool IsGone(const std::string& name) = 0;
    // Puts a file there as a whole, and makes it go on behind its first `kept` bytes, which must be there.
    // True when that is on the disk. Where it fails, what was there before, or was to be kept, still is.
    virtual bool Replace(const std::string& name, std::string_view content) = 0;
    virtual bool Extend(const std::string& name, std::size_t kept, std::string_view added) = 0;
    virtual bool Rename(const std::string& name, const std::string& newName) = 0;
    virtual bool Remove(const std::string& name) = 0;

    // Makes a file that is a lock until Unlock, or the end of the process, which removes it. A lock whose
    // process has died is taken over.
    virtual LockResult Lock(const std::string& name) = 0;
    virtual void Unlock(const std::string& name) = 0;

    // Why the last call of Names, Read or Lock could not do what it was asked for; empty when it could.
    virtual std::string Problem() = 0;

    // For messages: the path of a file, and when it was last written, as Windows-1252.
    virtual std::string PathOf(const std::string& name) = 0;
    virtual std::string TimeOf(const std::string& name) = 0;
};

} // namespace CommonRoutines
