#pragma once

#include "support/Table.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The golden cases of a kind: each is a folder of tests/golden/<kind>, and a test of its own.
namespace Golden {

inline std::filesystem::path FolderOf(const std::string& kind) {
    return std::filesystem::path(QUEXAL_GOLDEN_DIR) / kind;
}

inline std::vector<std::string> CaseNames(const std::string& kind) {
    std::vector<std::string> names;
    for (const std::filesystem::directory_entry& entry : std::filesystem::directory_iterator(FolderOf(kind))) {
        if (entry.is_directory()) {
            names.push_back(entry.path().filename().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

inline std::string TestName(const testing::TestParamInfo<std::string>& info) {
    std::string name = info.param;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return std::string_view("-. ").find(c) != std::string_view::npos; },
        '_');
    return name;
}

// A text as a golden file shows it: bytes that are no printable ASCII, and a blank at the end, as
// "\xHH", a backslash as two.
inline std::string Escaped(std::string_view text) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string escaped;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto code = static_cast<unsigned char>(text[i]);
        if (code == '\\') {
            escaped += "\\\\";
        } else if (code < 0x20 || code > 0x7E || (code == ' ' && i + 1 == text.size())) {
            escaped.append("\\x") += Digits[code / 16];
            escaped += Digits[code % 16];
        } else {
            escaped += text[i];
        }
    }
    return escaped;
}

// A test with the name of its case as the parameter.
class Test : public StateTest, public testing::WithParamInterface<std::string> {
protected:
    explicit Test(const char* kind) : m_folder(FolderOf(kind) / GetParam()) {}

    // A file that a case may have.
    [[nodiscard]] std::optional<std::string> Content(const char* name) const {
        std::ifstream file(m_folder / name, std::ios::binary);
        if (!file) {
            return std::nullopt;
        }
        return std::string(std::istreambuf_iterator<char>(file), {});
    }
    // A file that a case must have.
    [[nodiscard]] std::string Needed(const char* name) const {
        const auto content = Content(name);
        EXPECT_TRUE(content) << "no " << name;
        return content.value_or("");
    }

private:
    std::filesystem::path m_folder;
};

} // namespace Golden
