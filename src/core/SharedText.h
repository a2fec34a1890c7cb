#pragma once

#include "core/AnsiString.h"
#include "core/SeededHash.h"

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace CommonRoutines {

// A text that never changes, and that is there once for all its copies.
class SharedText {
public:
    SharedText() = default;
    explicit SharedText(std::string_view text) : m_text(std::make_shared<const Ansi::String>(text)) {}

    operator std::string_view() const { return m_text ? m_text->View() : std::string_view(); }
    friend std::string operator+(std::string a, const SharedText& b) { return a.append(std::string_view(b)); }
    friend bool operator==(const SharedText& a, std::string_view b) { return std::string_view(a) == b; }

private:
    std::shared_ptr<const Ansi::String> m_text;
};

// Makes equal texts one.
class SharedTexts {
public:
    [[nodiscard]] SharedText Share(std::string_view text) {
        const auto known = m_texts.find(text);
        if (known != m_texts.end()) {
            return known->second;
        }
        SharedText shared(text);
        m_texts.emplace(std::string_view(shared), shared);
        return shared;
    }

private:
    std::unordered_map<std::string_view, SharedText, SeededHash> m_texts; // each by itself
};

} // namespace CommonRoutines
