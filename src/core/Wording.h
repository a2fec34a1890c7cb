#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace CommonRoutines {

// What is said to the person: text of the core, among which paths of files may stand. A path is kept as the
// machine has it, since its characters need not exist in the encoding of the text. Plain text is a wording as it is.
class Wording {
public:
    struct Part {
        std::string text;
        bool isPath = false; // in the machine's own encoding, perhaps with bytes that are no characters
    };

    Wording(std::string text) { Append(std::move(text), false); }
    Wording(std::string_view text) : Wording(std::string(text)) {}
    Wording(const char* text) : Wording(std::string(text)) {}
    [[nodiscard]] static Wording OfPath(std::string path);

    friend Wording operator+(Wording a, const Wording& b);

    // In their order; neighbours differ in their kind.
    [[nodiscard]] const std::vector<Part>& Parts() const { return m_parts; }

    // As UTF-8; the bytes of a path stay as they are.
    [[nodiscard]] std::string Utf8() const;
    // As text of the core, for files: what that lacks of a path is "?".
    [[nodiscard]] std::string AsText() const;

private:
    Wording() = default;
    void Append(std::string text, bool isPath);

    std::vector<Part> m_parts;
};

// The next one of some lines; nothing behind the last one.
using LineSource = std::function<std::optional<Wording>()>;

} // namespace CommonRoutines
