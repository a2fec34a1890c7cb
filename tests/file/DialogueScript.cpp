#include "file/DialogueScript.h"

#include "core/Ansi.h"
#include "core/Lines.h"
#include "support/ScriptedDesktop.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <stdexcept>

using namespace CommonRoutines;

namespace {

constexpr std::string_view CrLf = "\r\n";

const std::map<std::string, BoxIcon> Icons{{"critical", BoxIcon::Critical},
                                           {"question", BoxIcon::Question},
                                           {"exclamation", BoxIcon::Exclamation},
                                           {"information", BoxIcon::Information}};

// A text of the script with its "\xHH" and "\\" replaced by what they stand for.
std::string Unescape(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        std::size_t used = 1;
        char c = text.front();
        if (text.starts_with("\\\\")) {
            used = 2;
        } else if (text.starts_with("\\x") && text.size() >= 4) {
            unsigned code = 0;
            std::from_chars(text.data() + 2, text.data() + 4, code, 16);
            c = static_cast<char>(code);
            used = 4;
        } else if (c == '\\') {
            throw std::runtime_error("unknown escape in: " + std::string(text));
        }
        plain += c;
        text.remove_prefix(used);
    }
    return plain;
}

class DialogueReader {
public:
    explicit DialogueReader(ScriptedDesktop& desktop) : m_desktop(desktop) {}

    void Read(std::string_view text) {
        Lines lines(text);
        while (const auto line = lines.Next()) {
            if (!line->empty()) {
                ReadLine(*line);
            }
        }
        if (m_open) {
            throw std::runtime_error("no answer at the end of: " + m_kind);
        }
        if (m_prompts == 0 && !m_isSilent) {
            throw std::runtime_error("neither a prompt nor \"no prompts\"");
        }
    }

private:
    void ReadLine(std::string_view line) {
        const std::string_view word = Ansi::FirstWord(line);
        const std::string rest = Unescape(line.substr(std::min(word.size() + 1, line.size())));
        if (word == "box" || word == "choice" || word == "input" || word == "report") {
            Open(std::string(word), rest);
        } else if (word == ">" || word == "-") {
            AddText(word == "-", rest);
        } else if (word == "buttons") {
            for (const std::string_view caption : Ansi::Split(rest, ',')) {
                m_captions.emplace_back(Ansi::Trim(caption));
            }
        } else if (line == "printable" && m_open && m_kind == "report") {
            m_printable = true;
        } else if (line == "no prompts" && m_prompts == 0) {
            m_isSilent = true;
        } else {
            Answer(std::string(word), rest);
        }
    }

    void Open(const std::string& kind, const std::string& detail) {
        if (m_open || m_isSilent) {
            throw std::runtime_error("unexpected prompt: " + kind + ' ' + detail);
        }
        m_open = true;
        ++m_prompts;
        m_kind = kind;
        m_detail = detail;
        m_texts.clear();
        m_captions.clear();
        m_printable = false;
    }

    // Every "-" begins a new text, a ">" goes on with the last one in a new line.
    void AddText(bool isItem, const std::string& text) {
        if (isItem || m_texts.empty()) {
            m_texts.push_back(text);
        } else {
            m_texts.back().append(CrLf).append(text);
        }
    }

    void Answer(const std::string& answer, const std::string& detail) {
        m_texts.resize(m_kind == "report" ? m_texts.size() : 1);
        if (m_open && m_kind == "box" && answer == "ok") {
            m_desktop.ExpectBox(m_texts.front(), Icons.at(m_detail));
        } else if (m_open && m_kind == "box" && (answer == "yes" || answer == "no")) {
            m_desktop.ExpectBox(m_texts.front(), Icons.at(m_detail), BoxButtons::YesNo,
                                answer == "yes" ? BoxAnswer::Yes : BoxAnswer::No);
        } else if (m_open && m_kind == "choice" && (answer == "press" || answer == "leave")) {
            m_desktop.ExpectChoice(m_texts.front(), m_captions, detail);
        } else if (m_open && m_kind == "input" && answer == "type") {
            m_desktop.ExpectInput(m_texts.front(), detail);
        } else if (m_open && m_kind == "input" && answer == "cancel") {
            m_desktop.ExpectInput(m_texts.front(), std::nullopt);
        } else if (m_open && m_kind == "report" && answer == "close") {
            m_desktop.ExpectReport(m_detail, m_texts, m_printable);
        } else {
            throw std::runtime_error("out of place: " + answer + ' ' + detail);
        }
        m_open = false;
    }

    ScriptedDesktop& m_desktop;
    int m_prompts = 0;
    bool m_isSilent = false;
    bool m_open = false; // a prompt waits for its answer
    std::string m_kind;
    std::string m_detail; // the icon of a box, the caption of a report
    std::vector<std::string> m_texts;
    std::vector<std::string> m_captions;
    bool m_printable = false; // the report can be printed and saved
};

} // namespace

std::string ExpectDialogue(std::string_view text, ScriptedDesktop& desktop) {
    try {
        DialogueReader(desktop).Read(text);
        return {};
    } catch (const std::exception& problem) {
        return problem.what();
    }
}
