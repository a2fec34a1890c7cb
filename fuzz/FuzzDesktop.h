#pragma once

#include "core/State.h"
#include "support/QuietDesktop.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// One file in memory, and a choice for every repair taken in turn from a list of answers, as are the texts
// that are typed. Nothing can be put into its state folder.
class FuzzDesktop : public QuietDesktop {
public:
    FuzzDesktop(std::string content, std::string_view answers) : m_content(std::move(content)), m_answers(answers) {
        state.canWrite = state.canLock = false;
    }

    std::string MyMsgBox(const std::string& /*Prompt*/, std::int32_t /*Img*/, const std::string& /*Title*/,
                         std::span<const std::string> ButtonCaptions) override {
        return ButtonCaptions[NextAnswer() % ButtonCaptions.size()];
    }
    std::optional<std::string> InputBox(std::string_view /*prompt*/) override {
        static const std::vector<std::string> texts{"", "%", " !Elm%12 ", "a|b", "Caf\xE9", "x\ty"};
        // Every second text is a valid one: the question is asked until there is one.
        return ++m_inputs % 2 == 0
                   ? "Typed"
                   : CommonRoutines::Recoded(texts[NextAnswer() % texts.size()], CommonRoutines::Encoding::Windows1252,
                                             CommonRoutines::eFileEncoding);
    }
    std::optional<std::string> ReadFile(const std::string& /*path*/) override { return m_content; }

private:
    std::size_t NextAnswer() {
        return m_answers.empty() ? 0 : static_cast<unsigned char>(m_answers[m_next++ % m_answers.size()]);
    }

    std::string m_content;
    std::string m_answers;
    std::size_t m_next = 0;
    std::size_t m_inputs = 0;
};
