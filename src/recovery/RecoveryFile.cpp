#include "recovery/RecoveryFile.h"

#include "recovery/Hex.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include <xxhash.h>

namespace CommonRoutines {

namespace {

// The first line ends in the version.
constexpr std::string_view Title = "Quexal Editor, unsaved changes, version ";
constexpr int CurrentVersion = 2;
constexpr int VersionWithoutChain = 1; // a checksum covers its own line, and the encoding is not named

constexpr std::size_t CheckLength = HexLength;
constexpr char LineEnd = '\n';
// In the place of a line number.
constexpr std::string_view Saving = "saving ";
constexpr std::string_view Inserting = "insert ";
constexpr std::string_view Holding = "holds ";
constexpr std::string_view Renumbering = "numbers ";

constexpr std::array<std::pair<Encoding, std::string_view>, 3> EncodingNames{{
    {Encoding::Windows1252, "windows-1252"},
    {Encoding::Utf8, "utf-8"},
    {Encoding::Utf8WithMark, "utf-8-with-mark"},
}};

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
    return std::to_string(file.bytes.size) + ' ' + file.bytes.digest + ' ' + Escaped(file.path);
}

std::optional<FileIdentity> ParseIdentity(std::string_view body) {
    FileIdentity file;
    if (!TakeNumber(body, file.bytes.size)) {
        return std::nullopt;
    }
    file.bytes.digest = TakeWord(body);
    auto path = Unescaped(body);
    if (file.bytes.digest.size() != 2 * CheckLength || !path) {
        return std::nullopt;
    }
    file.path = std::move(*path);
    return file;
}

std::string_view NameOf(Encoding encoding) {
    const auto* const found = std::find_if(EncodingNames.begin(), EncodingNames.end(),
                                           [&](const auto& name) { return name.first == encoding; });
    return found->second;
}

std::optional<Encoding> EncodingNamed(std::string_view sought) {
    const auto* const found = std::find_if(EncodingNames.begin(), EncodingNames.end(),
                                           [&](const auto& name) { return name.second == sought; });
    return found == EncodingNames.end() ? std::nullopt : std::optional(found->first);
}

std::optional<SlotChange> ParseChange(std::string_view body) {
    const bool isInserted = body.starts_with(Inserting);
    body.remove_prefix(isInserted ? Inserting.size() : 0);
    SlotChange change;
    std::int32_t after = 0;
    std::size_t length = 0;
    if (!TakeNumber(body, change.line) || !TakeNumber(body, change.slot) || (isInserted && !TakeNumber(body, after)) ||
        !TakeNumber(body, length)) {
        return std::nullopt;
    }
    auto text = Unescaped(body);
    if (change.line < 1 || change.slot < 1 || after < 0 || !text || text->size() != length) {
        return std::nullopt;
    }
    change.text = std::move(*text);
    if (isInserted) {
        change.after = after;
    }
    return change;
}

std::optional<LineNumbers> ParseNumbers(std::string_view body) {
    LineNumbers numbers;
    bool isKnown = TakeNumber(body, numbers.line) && TakeNumber(body, numbers.countNow) && numbers.countNow >= 0;
    while (isKnown && !body.empty()) {
        std::int32_t number = 0;
        isKnown = TakeNumber(body, number) && number >= 0 && number <= numbers.countNow;
        numbers.now.push_back(number);
    }
    return isKnown ? std::optional(std::move(numbers)) : std::nullopt;
}

// Adds what a line says; returns false when it says nothing that is known.
bool AddRecord(RecoveryFile& recovery, std::string_view body) {
    if (body.starts_with(Saving)) {
        recovery.savedAs = ParseIdentity(body.substr(Saving.size()));
        return recovery.savedAs.has_value();
    }
    if (body.starts_with(Holding)) {
        auto name = Unescaped(body.substr(Holding.size()));
        if (name) {
            recovery.holds.push_back(std::move(*name));
        }
        return name.has_value();
    }
    if (body.starts_with(Renumbering)) {
        auto numbers = ParseNumbers(body.substr(Renumbering.size()));
        if (numbers) {
            recovery.numbers.push_back(std::move(*numbers));
        }
        return numbers.has_value();
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

// The version that the first line names; 0 when it names none.
int VersionIn(std::string_view firstLine) {
    int version = 0;
    if (firstLine.starts_with(Title)) {
        firstLine.remove_prefix(Title.size());
        TakeNumber(firstLine, version);
    }
    return version;
}

std::string_view FirstLineOf(std::string_view content) {
    return content.substr(0, content.find(LineEnd));
}

std::uint64_t Checksum(std::string_view text, std::uint64_t before = 0) {
    return XXH3_64bits_withSeed(text.data(), text.size(), before);
}

// Takes the lines of a recovery file one after the other, as far as their checksums are right.
class TrustedLines {
public:
    explicit TrustedLines(std::string_view content) : m_rest(WholeLines(content)) {
        const std::string_view first = TakeLine();
        m_version = VersionIn(first);
        m_checksum = Checksum(first);
    }

    [[nodiscard]] int Version() const { return m_version; }
    [[nodiscard]] bool AtEnd() const { return m_rest.empty(); }

    // The next line without its checksum.
    std::optional<std::string_view> Next() {
        const std::string_view line = TakeLine();
        if (line.size() <= CheckLength || line[CheckLength] != ' ') {
            return std::nullopt;
        }
        const std::string_view body = line.substr(CheckLength + 1);
        m_checksum = Checksum(body, m_version == VersionWithoutChain ? 0 : m_checksum);
        return line.substr(0, CheckLength) == Hex(m_checksum) ? std::optional(body) : std::nullopt;
    }

private:
    std::string_view TakeLine() {
        const std::string_view line = FirstLineOf(m_rest);
        m_rest.remove_prefix(std::min(line.size() + 1, m_rest.size()));
        return line;
    }

    std::string_view m_rest;
    int m_version = 0;
    std::uint64_t m_checksum = 0;
};

std::optional<RecoveryFile> ParseHeader(std::string_view body, int version) {
    RecoveryFile recovery;
    if (version != VersionWithoutChain) {
        const auto encoding = EncodingNamed(TakeWord(body));
        if (!encoding) {
            return std::nullopt;
        }
        recovery.encoding = *encoding;
    }
    auto file = ParseIdentity(body);
    if (!file) {
        return std::nullopt;
    }
    recovery.file = std::move(*file);
    return recovery;
}

} // namespace

std::string IdentityLine(const FileIdentity& file) {
    const std::string body = Identity(file);
    return Hex(Checksum(body)) + ' ' + body + LineEnd;
}

std::optional<FileIdentity> ParseIdentityLine(std::string_view lineWithoutEnd) {
    const std::string_view body = lineWithoutEnd.substr(std::min(CheckLength + 1, lineWithoutEnd.size()));
    const bool isWhole = lineWithoutEnd.starts_with(Hex(Checksum(body)) + ' ');
    return isWhole ? ParseIdentity(body) : std::nullopt;
}

RecoveryRecords::RecoveryRecords(const FileIdentity& file, Encoding encoding)
    : m_content(std::string(Title) + std::to_string(CurrentVersion)), m_checksum(Checksum(m_content)) {
    m_content += LineEnd;
    AddLine(std::string(NameOf(encoding)) + ' ' + Identity(file));
}

void RecoveryRecords::AddLine(std::string_view body) {
    const std::uint64_t checksum = Checksum(body, m_checksum);
    std::string line = Hex(checksum);
    line.append(1, ' ').append(body).append(1, LineEnd);
    m_content += line; // as a whole, or not at all where there is not enough memory
    m_checksum = checksum;
}

void RecoveryRecords::AddChange(const SlotChange& change) {
    const auto number = [](auto n) { return std::to_string(n) + ' '; };
    AddLine((change.after ? std::string(Inserting) : std::string()) + number(change.line) + number(change.slot) +
            (change.after ? number(*change.after) : std::string()) + number(change.text.size()) + Escaped(change.text));
}

void RecoveryRecords::AddSaving(const FileIdentity& file) {
    AddLine(std::string(Saving) + Identity(file));
}

void RecoveryRecords::AddHeld(std::string_view leftOver) {
    AddLine(std::string(Holding) + Escaped(leftOver));
}

void RecoveryRecords::AddNumbers(const LineNumbers& numbers) {
    std::string body = std::string(Renumbering) + std::to_string(numbers.line) + ' ' + std::to_string(numbers.countNow);
    for (const std::int32_t number : numbers.now) {
        body += ' ' + std::to_string(number);
    }
    AddLine(body);
}

std::optional<RecoveryFile> ParseRecoveryFile(std::string_view content) {
    TrustedLines lines(content);
    if (lines.Version() < VersionWithoutChain || lines.Version() > CurrentVersion) {
        return std::nullopt;
    }
    const auto header = lines.Next();
    auto recovery = header ? ParseHeader(*header, lines.Version()) : std::nullopt;
    while (recovery && !recovery->isDamaged && !lines.AtEnd()) {
        const auto body = lines.Next();
        recovery->isDamaged = !body || !AddRecord(*recovery, *body);
    }
    return recovery;
}

bool IsOfNewerVersion(std::string_view content) {
    return VersionIn(FirstLineOf(content)) > CurrentVersion;
}

} // namespace CommonRoutines
