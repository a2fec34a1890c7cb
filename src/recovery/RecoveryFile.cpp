#include "recovery/RecoveryFile.h"

#include <algorithm>
#include <array>
#include <charconv>

#include <xxhash.h>

namespace CommonRoutines {

namespace {

constexpr std::string_view FirstLine = "Quexal Editor, unsaved changes, version 1";
constexpr std::size_t CheckLength = 16;
constexpr char LineEnd = '\n';
constexpr std::string_view Saving = "saving "; // in the place of a line number
constexpr int Hexadecimal = 16;

std::string Hex(XXH64_hash_t number) {
    std::array<char, CheckLength> digits{};
    const char* const end =
        std::to_chars(digits.data(), digits.data() + digits.size(), std::uint64_t{number}, Hexadecimal).ptr;
    const auto length = static_cast<std::size_t>(end - digits.data());
    return std::string(CheckLength - length, '0').append(digits.data(), length);
}

// A line with its checksum in front.
std::string Checked(const std::string& body) {
    return Hex(XXH3_64bits(body.data(), body.size())) + ' ' + body + LineEnd;
}

// The body of a line; nothing when its checksum says otherwise.
std::optional<std::string_view> BodyOf(std::string_view line) {
    if (line.size() <= CheckLength || line[CheckLength] != ' ') {
        return std::nullopt;
    }
    const std::string_view body = line.substr(CheckLength + 1);
    return line.substr(0, CheckLength) == Hex(XXH3_64bits(body.data(), body.size())) ? std::optional(body)
                                                                                     : std::nullopt;
}

// A text without line ends, and back.
std::string Escaped(std::string_view text) {
    std::string escaped;
    escaped.reserve(text.size());
    for (const char c : text) {
        if (c == '\\') {
            escaped += "\\\\";
        } else if (c == LineEnd) {
            escaped += "\\n";
        } else {
            escaped += c;
        }
    }
    return escaped;
}

std::optional<std::string> Unescaped(std::string_view escaped) {
    std::string text;
    text.reserve(escaped.size());
    for (std::size_t i = 0; i < escaped.size(); ++i) {
        if (escaped[i] != '\\') {
            text += escaped[i];
            continue;
        }
        ++i;
        if (i == escaped.size() || (escaped[i] != '\\' && escaped[i] != 'n')) {
            return std::nullopt;
        }
        text += escaped[i] == 'n' ? LineEnd : '\\';
    }
    return text;
}

// Takes the text before the next blank off the front, the blank as well.
std::string_view TakeWord(std::string_view& rest) {
    const std::string_view word = rest.substr(0, rest.find(' '));
    rest.remove_prefix(std::min(word.size() + 1, rest.size()));
    return word;
}

template <typename Number>
bool TakeNumber(std::string_view& rest, Number& number) {
    const std::string_view word = TakeWord(rest);
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    return error == std::errc() && end == word.data() + word.size();
}

std::string Identity(const FileIdentity& file) {
    return std::to_string(file.size) + ' ' + file.digest + ' ' + Escaped(file.path);
}

std::optional<FileIdentity> ParseIdentity(std::string_view body) {
    FileIdentity file;
    if (!TakeNumber(body, file.size)) {
        return std::nullopt;
    }
    file.digest = TakeWord(body);
    auto path = Unescaped(body);
    if (file.digest.size() != 2 * CheckLength || !path) {
        return std::nullopt;
    }
    file.path = std::move(*path);
    return file;
}

std::optional<SlotChange> ParseChange(std::string_view body) {
    SlotChange change;
    std::size_t length = 0;
    if (!TakeNumber(body, change.line) || !TakeNumber(body, change.slot) || !TakeNumber(body, length)) {
        return std::nullopt;
    }
    auto text = Unescaped(body);
    if (change.line < 1 || change.slot < 1 || !text || text->size() != length) {
        return std::nullopt;
    }
    change.text = std::move(*text);
    return change;
}

// Adds what a line says; returns false when it says nothing that is known.
bool AddRecord(RecoveryFile& recovery, std::string_view body) {
    if (body.starts_with(Saving)) {
        recovery.savedAs = ParseIdentity(body.substr(Saving.size()));
        return recovery.savedAs.has_value();
    }
    auto change = ParseChange(body);
    if (change) {
        recovery.changes.push_back(std::move(*change));
        recovery.savedAs.reset(); // it lacks this one
    }
    return change.has_value();
}

// The lines that have an end.
std::string_view WholeLines(std::string_view content) {
    content = content.substr(0, content.find_last_not_of('\0') + 1);
    return content.substr(0, content.rfind(LineEnd) + 1);
}

} // namespace

FileIdentity IdentityOf(std::string_view path, std::string_view bytes) {
    const XXH128_hash_t digest = XXH3_128bits(bytes.data(), bytes.size());
    return {std::string(path), bytes.size(), Hex(digest.high64) + Hex(digest.low64)};
}

std::string RecoveryHeader(const FileIdentity& file) {
    return std::string(FirstLine) + LineEnd + Checked(Identity(file));
}

std::string RecoveryRecord(std::int32_t line, std::int32_t slot, std::string_view text) {
    return Checked(std::to_string(line) + ' ' + std::to_string(slot) + ' ' + std::to_string(text.size()) + ' ' +
                   Escaped(text));
}

std::string SavingRecord(const FileIdentity& file) {
    return Checked(std::string(Saving) + Identity(file));
}

std::optional<RecoveryFile> ParseRecoveryFile(std::string_view content) {
    std::string_view rest = WholeLines(content);
    const auto nextLine = [&rest] {
        const std::string_view line = rest.substr(0, rest.find(LineEnd));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        return line;
    };
    if (nextLine() != FirstLine) {
        return std::nullopt;
    }
    const auto header = BodyOf(nextLine());
    auto file = header ? ParseIdentity(*header) : std::nullopt;
    if (!file) {
        return std::nullopt;
    }
    RecoveryFile recovery{std::move(*file), {}, std::nullopt};
    while (!rest.empty()) {
        const auto body = BodyOf(nextLine());
        if (!body || !AddRecord(recovery, *body)) {
            return std::nullopt;
        }
    }
    return recovery;
}

} // namespace CommonRoutines
