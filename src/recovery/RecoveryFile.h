#pragma once

// The recovery file holds the changes of a table that no data file holds yet. Each is a line of its own, which
// goes on the disk as soon as it is made. The checksum of a line covers the lines before it, so that a line that
// is damaged, missing or in another place shows, and what stands before it can still be trusted.

#include "core/Encoding.h"
#include "recovery/Fingerprint.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CommonRoutines {

// The data file to which changes belong.
struct FileIdentity {
    std::string path; // without links, in the machine's own encoding
    Fingerprint bytes;

    bool operator==(const FileIdentity&) const = default;
};

// A slot of a line that got another text. Lines and slots are numbered from 1, as the file is read; a
// slot behind the last one is a new variation.
struct SlotChange {
    std::int32_t line = 0;
    std::int32_t slot = 0;
    std::string text;
    std::optional<std::int32_t> after; // of a new slot that is not the last: the one that it follows, 0 for none

    bool operator==(const SlotChange&) const = default;
};

// What has become of the slots of a line that a save has numbered anew: by their numbers from 1 on as the line was
// read before, their numbers as it is read now, 0 for those that have gone.
struct LineNumbers {
    std::int32_t line = 0;
    std::int32_t countNow = 0;
    std::vector<std::int32_t> now;

    bool operator==(const LineNumbers&) const = default;
};

struct RecoveryFile {
    FileIdentity file;
    Encoding encoding = Encoding::Windows1252; // of the file, and of the texts
    std::vector<SlotChange> changes;           // in the order in which they were made
    // What was to be saved with all of these changes in it, under whichever name. When it is there, they are.
    std::optional<FileIdentity> savedAs;
    std::vector<std::string> holds;   // the names of left-over files whose changes are among these, all of them
    std::vector<LineNumbers> numbers; // of the lines that the save has numbered anew; see SavesForOthers
    std::size_t overtaken = 0;        // changes that were left out, since a later save has changed their slots
    bool isDamaged = false;           // something followed that cannot be trusted
};

// An identity as a line with a checksum and an end, and back; nothing when the line is damaged.
[[nodiscard]] std::string IdentityLine(const FileIdentity& file);
[[nodiscard]] std::optional<FileIdentity> ParseIdentityLine(std::string_view lineWithoutEnd);

// The content of a recovery file as it grows.
class RecoveryRecords {
public:
    RecoveryRecords(const FileIdentity& file, Encoding encoding);

    void AddChange(const SlotChange& change);
    void AddSaving(const FileIdentity& file); // see RecoveryFile::savedAs
    void AddHeld(std::string_view leftOver);  // see RecoveryFile::holds
    void AddNumbers(const LineNumbers& numbers);

    [[nodiscard]] const std::string& Content() const { return m_content; }

private:
    void AddLine(std::string_view body);

    std::string m_content;
    std::uint64_t m_checksum = 0; // of the lines so far
};

// A recovery file from its bytes, as far as it can be trusted; nothing when it is none. A last line without its
// end was never written whole and does not count, nor do zero bytes that a power cut left at the end.
[[nodiscard]] std::optional<RecoveryFile> ParseRecoveryFile(std::string_view content);

// True of a recovery file in a format that is not known yet.
[[nodiscard]] bool IsOfNewerVersion(std::string_view content);

} // namespace CommonRoutines
