#pragma once

// The rules of a variation once more, written to be understood instead of to be fast: texts are
// copied, positions count from 1 and 0 means "not there", every rule is one step. Random texts are
// given to these and to the routines of the program, which must agree on every one of them.

#include "core/Ansi.h"
#include "core/State.h"

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace Slow {

// The characters of a text of the open file, which is Windows-1252 or valid UTF-8.
inline std::vector<std::string> Characters(const std::string& text) {
    std::vector<std::string> characters;
    for (const char c : text) {
        const int byte = (c + 256) % 256;
        if (CommonRoutines::TextsAreUtf8() && byte >= 0x80 && byte < 0xC0) {
            characters.back() += c;
        } else {
            characters.emplace_back(1, c);
        }
    }
    return characters;
}

inline int CodeOf(const std::string& character) {
    const int first = (character[0] + 256) % 256;
    int code = character.size() == 1   ? first
               : character.size() == 2 ? first % 32
               : character.size() == 3 ? first % 16
                                       : first % 8;
    for (std::size_t i = 1; i < character.size(); ++i) {
        code = code * 64 + (character[i] + 256) % 64;
    }
    return code;
}

inline std::size_t InStr(const std::string& text, const std::string& part) {
    const auto at = text.find(part);
    return at == std::string::npos ? 0 : at + 1;
}

inline std::size_t InStrRev(const std::string& text, char part) {
    std::size_t position = text.size();
    while (position > 0 && text[position - 1] != part) {
        --position;
    }
    return position;
}

inline std::string Trimmed(std::string text) {
    while (!text.empty() && text.front() == ' ') {
        text.erase(0, 1);
    }
    while (!text.empty() && text.back() == ' ') {
        text.pop_back();
    }
    return text;
}

inline bool IsMarker(char c) {
    return c == '!' || c == '%';
}

struct Split {
    std::string prefix;
    std::string base;
    std::string suffix;
};

inline Split SplitAtMarkers(const std::string& variation) {
    Split split;
    std::string text = Trimmed(variation);
    while (!text.empty() && IsMarker(text.front())) {
        split.prefix += text.front();
        text.erase(0, 1);
    }
    if (!split.prefix.empty()) {
        while (!text.empty() && text.front() == ' ') {
            text.erase(0, 1);
        }
    }
    std::size_t marker = 0;
    for (std::size_t position = text.size(); position >= 1; --position) {
        if (IsMarker(text[position - 1])) {
            marker = position;
        }
    }
    split.base = text;
    if (marker > 1) {
        split.base = text.substr(0, marker - 1);
        split.suffix = text.substr(marker - 1);
    }
    return split;
}

inline bool PassesQuestionMark(const std::string& variation) {
    const std::string base = SplitAtMarkers(variation).base;
    return InStr(base, "?") == 0 || Trimmed(base).size() <= 1;
}

// A validation with the state that it leaves to the next one.
struct Validation {
    bool readingFile = false;
    std::string invalidReason;
    bool warning = false;
    std::string warningReason;
    bool nullDistrict = false;

    bool Check(const std::string& v) {
        nullDistrict = false;
        if (InStr(v, "|") > 0) {
            return Refused("Invalid Char - |");
        }
        const std::string t = Trimmed(v);
        const bool dateMark = t.substr(0, 1) == "%" || t.substr(0, 2) == "!%";
        const std::size_t first = InStr(t, "%");
        const std::size_t last = InStrRev(t, '%');
        if (first > 0 && first == last) {
            if (dateMark && first == t.size()) {
                return RefusedAsNull();
            }
            if (!dateMark && (first == t.size() || Trimmed(t.substr(0, first - 1)).empty())) {
                return RefusedAsNull();
            }
        }
        const std::size_t charactersToLast = Characters(t.substr(0, last)).size();
        if (first != last && (!dateMark || last == t.size() || charactersToLast < 4)) {
            return Refused("Invalid VNF dependency format");
        }
        const std::size_t shriek = InStr(t, "!");
        const bool single = InStrRev(t, '!') == shriek;
        bool valid = single || Refused("Multiple !'s");
        if (shriek > 0 && shriek == t.size()) {
            return RefusedAsNull();
        }
        if (shriek > 0 && shriek < v.size() && v[shriek] == ' ') {
            valid = Refused("Space after !");
        }
        valid = CheckBlanks(v) && valid;
        if (valid && !PassesQuestionMark(v)) {
            valid = Refused("Question Mark");
        }
        Warn(v);
        return CheckCodes(v) && valid;
    }

private:
    bool Refused(const std::string& reason) {
        invalidReason = reason;
        return false;
    }

    bool RefusedAsNull() {
        nullDistrict = readingFile;
        return readingFile ? false : Refused("Null District");
    }

    bool CheckBlanks(const std::string& v) {
        bool valid = true;
        if (InStr(v, "% ") > 0) {
            valid = Refused("Space after %");
        }
        if (InStr(v, " %") > 0) {
            valid = Refused("Space before %");
        }
        if (v.substr(0, 1) == " ") {
            valid = Refused("Leading space");
        }
        if (!v.empty() && v.substr(v.size() - 1) == " ") {
            valid = Refused("Trailing space");
        }
        return valid;
    }

    void Warn(const std::string& v) {
        const Split split = SplitAtMarkers(v);
        warning = false;
        warningReason = "";
        for (const char* strange : {"_", "*", "[", "]", "{", "}"}) {
            if (InStr(split.base, strange) > 0 && InStr(split.prefix, "!") == 0) {
                warning = true;
                warningReason = "Should have !";
                break;
            }
        }
    }

    bool CheckCodes(const std::string& v) {
        const std::vector<std::string> characters = Characters(v);
        for (std::size_t i = 1; i <= characters.size(); ++i) {
            const int code = CodeOf(characters[i - 1]);
            const std::string where = " char at position " + std::to_string(i) + " (Char=" + std::to_string(code) + ")";
            if (code < 32) {
                return Refused("Invalid" + where);
            }
            if (code > 126) {
                warning = true;
                warningReason = "Unusual" + where;
            }
        }
        return true;
    }
};

inline std::string ExpectedForm(const std::string& word) {
    std::size_t capitals = Characters(word)[0].size();
    if (word.front() == '[') {
        capitals = InStr(word, "]") > 0 ? InStr(word, "]") : word.size();
    }
    return Ansi::Upper(word.substr(0, capitals)) + Ansi::Lower(word.substr(capitals));
}

inline bool UnusualCapitals(const std::string& variation, const std::vector<std::string>& words) {
    std::string name = Trimmed(SplitAtMarkers(variation).base);
    while (!name.empty() && IsMarker(name.front())) {
        name.erase(0, 1);
    }
    for (char& c : name) {
        if (c == ' ' || c == '-' || c == '.' || c == ',' || c == '(' || c == '/' || c == '\'') {
            c = '\t';
        }
    }
    name += '\t';
    for (std::size_t end = InStr(name, "\t"); end > 0; end = InStr(name, "\t")) {
        const std::string word = name.substr(0, end - 1);
        name.erase(0, end);
        bool fine = word.empty() || word == ExpectedForm(word);
        for (const std::string& listed : words) {
            fine = fine || listed == Ansi::Lower(word);
        }
        if (!fine) {
            return true;
        }
    }
    return false;
}

inline std::string RandomText(std::mt19937& random, const std::vector<std::string>& alphabet, std::size_t longest) {
    std::string text;
    for (auto count = random() % (longest + 1); count > 0; --count) {
        text += alphabet[random() % alphabet.size()];
    }
    return text;
}

inline std::string RandomText(std::mt19937& random, std::string_view alphabet, std::size_t longest) {
    std::string text(random() % (longest + 1), ' ');
    for (char& c : text) {
        c = alphabet[random() % alphabet.size()];
    }
    return text;
}

} // namespace Slow
