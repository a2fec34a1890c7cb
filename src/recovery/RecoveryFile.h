#pragma once

// The recovery file holds the changes of a table that no data file holds yet. Each is a line of its own, which
// goes on the disk as soon as it is made. A file that can still be trusted is told from one that cannot by a
// checksum in every line.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CommonRoutines {

// The data file to which changes belong.
struct FileIdentity {
    std::string path; // without links, in the machine's own encoding
    std::size_t size = 0;
    std::string digest; // of its bytes: 32 hexadecimal digits

    bool operator==(const FileIdentity&) const = default;
    // True when the file is, byte for byte, that one, wherever it is.
    [[nodiscard]] bool HasBytesOf(const FileIdentity& other) const {
        return size == other.size && digest == other.digest;
    }
};

// A slot of a line that got another text. Lines and slots are numbered from 1, as the file is read; a
// slot behind the last one is a new variation.
struct SlotChange {
    std::int32_t line = 0;
    std::int32_t slot = 0;
    std::string text;

    bool operator==(const SlotChange&) const = default;
};

struct RecoveryFile {
    FileIdentity file;
    std::vector<SlotChange> changes; // in the order in which they were made
    // What was to be saved with all of these changes in it, under whichever name. When it is there, they are.
    std::optional<FileIdentity> savedAs;
};

// What identifies a file with these bytes. The digest is XXH3 of 128 bits, which tells versions of a
// file apart at the speed of memory; it does not protect from somebody who forges one.
[[nodiscard]] FileIdentity IdentityOf(std::string_view path, std::string_view bytes);

// The beginning of a recovery file, and what each change and each attempt to save adds to it.
[[nodiscard]] std::string RecoveryHeader(const FileIdentity& file);
[[nodiscard]] std::string RecoveryRecord(std::int32_t line, std::int32_t slot, std::string_view text);
[[nodiscard]] std::string SavingRecord(const FileIdentity& file);

// A recovery file from its bytes; nothing when it is damaged, or is none. A last line without its end
// was never written whole and does not count, nor do zero bytes that a power cut left at the end.
[[nodiscard]] std::optional<RecoveryFile> ParseRecoveryFile(std::string_view content);

} // namespace CommonRoutines
